// The model report of a large model: the lines built in the core (what the window lays out
// later) and their plain text (what the companion prints).
#include "core/reports/informe_modelo.h"
#include "soporte/modelo_sano.h"

#include <benchmark/benchmark.h>

namespace vadro {
namespace {

void BM_GenerarInforme(benchmark::State& state) {
    const Modelo modelo = pruebas::ModeloGenerado(static_cast<int>(state.range(0)));
    std::size_t lineas = 0;
    for (auto _ : state) {
        const Informe informe = GenerarInforme(modelo);
        lineas = informe.Lineas().size();
        benchmark::DoNotOptimize(lineas);
    }
    state.counters["lineas"] = static_cast<double>(lineas);
}
BENCHMARK(BM_GenerarInforme)->Arg(500)->Arg(16000)->Unit(benchmark::kMillisecond);

// Everything the report window asks for when it is rebuilt: the four parts and the whole.
void BM_ActualizarPaneles(benchmark::State& state) {
    const Modelo modelo = pruebas::ModeloGenerado(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        const PanelesInforme paneles = ActualizarPaneles(modelo);
        benchmark::DoNotOptimize(paneles.Completo.Lineas().data());
    }
}
BENCHMARK(BM_ActualizarPaneles)->Arg(500)->Arg(16000)->Unit(benchmark::kMillisecond);

void BM_TextoPlano(benchmark::State& state) {
    const Informe informe =
        GenerarInforme(pruebas::ModeloGenerado(static_cast<int>(state.range(0))));
    std::size_t bytes = 0;
    for (auto _ : state) {
        const std::string texto = TextoPlano(informe);
        bytes = texto.size();
        benchmark::DoNotOptimize(bytes);
    }
    state.counters["bytes"] = static_cast<double>(bytes);
}
BENCHMARK(BM_TextoPlano)->Arg(500)->Arg(16000)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace vadro
