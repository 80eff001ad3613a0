// Compiling generated models that are sound, so that the report is short and the time is the
// walk of the tree: 1,000 to 16,000 indicators, half of the criteria with two subcriteria, and
// one model whose first criterion holds a single set of 2,000 indicators, the case the name
// check finds hardest.

#include "core/compilation/compilacion.h"
#include "soporte/modelo_sano.h"

#include <benchmark/benchmark.h>

#include <map>
#include <stdexcept>
#include <string>

namespace {

using namespace vadro;

const Modelo& ModeloDe(int indicadores, int primerConjunto) {
    static std::map<std::pair<int, int>, Modelo> modelos;
    const auto clave = std::make_pair(indicadores, primerConjunto);
    auto it = modelos.find(clave);
    if (it == modelos.end()) {
        it = modelos.emplace(clave, pruebas::ModeloGenerado(indicadores, primerConjunto)).first;
        if (ComprobarModelo(it->second).Errores() != 0) {
            throw std::logic_error("the generated model should compile without errors");
        }
    }
    return it->second;
}

void Compilar(benchmark::State& state, int indicadores, int primerConjunto) {
    const Modelo& modelo = ModeloDe(indicadores, primerConjunto);
    std::size_t lineas = 0;
    for (auto _ : state) {
        const InformeErrores informe = ComprobarModelo(modelo);
        lineas = informe.Lineas().size();
        benchmark::DoNotOptimize(lineas);
    }
    state.counters["lineas"] = static_cast<double>(lineas);
}

void BM_Compilar(benchmark::State& state) {
    Compilar(state, static_cast<int>(state.range(0)), 0);
}

void BM_CompilarConUnConjuntoDe2000(benchmark::State& state) {
    Compilar(state, static_cast<int>(state.range(0)), 2000);
}

// A model of that one set and nothing else: what the large set costs by itself.
void BM_UnConjuntoDe2000(benchmark::State& state) {
    std::vector<NodoIndicador> indicadores(2000);
    for (std::size_t i = 0; i < indicadores.size(); ++i) {
        indicadores[i] = pruebas::Indicador("Indicador " + std::to_string(i + 1));
    }
    const Modelo modelo = pruebas::ModeloCon(
        {pruebas::Requerimiento("Requerimiento", {pruebas::Criterio("Criterio", indicadores)})});
    for (auto _ : state) {
        benchmark::DoNotOptimize(ComprobarModelo(modelo).Lineas().size());
    }
}

BENCHMARK(BM_Compilar)->Arg(1000)->Arg(4000)->Arg(16000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_CompilarConUnConjuntoDe2000)->Arg(16000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_UnConjuntoDe2000)->Unit(benchmark::kMillisecond);

} // namespace
