#include "core/core/formato_numero.h"
#include "core/weighting/calculo_pesos.h"

#include <benchmark/benchmark.h>

namespace vadro {
namespace {

// A full matrix of size n, reciprocal and mildly inconsistent, as after every entry.
Matriz<ValorLibre> MatrizPrueba(int n) {
    Matriz<ValorLibre> m;
    m.Redimensionar(n, n);
    for (int r = 1; r <= n; ++r) {
        for (int c = 1; c <= n; ++c) {
            const double v = r == c ? 1.0 : 1.0 + (r * 7 + c * 3) % 9;
            m(r, c) = r < c ? ValorLibre(v) : ValorLibre(1.0 / (1.0 + (c * 7 + r * 3) % 9));
        }
        m(r, r) = 1;
    }
    return m;
}

void BM_ActualizarPesos(benchmark::State& estado) {
    const int n = static_cast<int>(estado.range(0));
    const auto matriz = MatrizPrueba(n);
    RejillaMemoria rejilla(n + 1, n + 2);
    Arreglo<ValorLibre> pesos;
    ValorLibre razon;
    for (auto _ : estado) {
        ActualizarPesos(matriz, pesos, razon, rejilla);
        benchmark::DoNotOptimize(razon);
    }
}
BENCHMARK(BM_ActualizarPesos)->Arg(3)->Arg(9)->Arg(16)->Arg(64);

void BM_Formato00(benchmark::State& estado) {
    double valor = 57.142857142857;
    for (auto _ : estado) {
        benchmark::DoNotOptimize(Formato00(valor));
        valor += 0.001;
    }
}
BENCHMARK(BM_Formato00);

} // namespace
} // namespace vadro
