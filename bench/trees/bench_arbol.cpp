// The requirements tree at the size a large model reaches: about 2,000 nodes.
#include "core/core/sesion.h"
#include "core/trees/edicion_requerimientos.h"
#include "soporte/modelo_sano.h"

#include <benchmark/benchmark.h>

#include <memory>

namespace vadro {
namespace {

// r requirements of c criteria of i indicators each.
Modelo ModeloDe(int r, int c, int i) {
    const std::vector<NodoIndicador> indicadores(i, pruebas::Indicador("nodo"));
    const std::vector<NodoCriterio> criterios(c, pruebas::Criterio("nodo", indicadores));
    return pruebas::ModeloCon(
        std::vector<NodoRequerimiento>(r, pruebas::Requerimiento("nodo", criterios)));
}

// A window opened on the model; 10 x 10 x 19 gives 2,011 nodes, 1 x 1 x 2000 one criterion
// with 2,000 indicators.
std::unique_ptr<EdicionRequerimientos> Abrir(int r, int c, int i) {
    ReiniciarSesion();
    InstalarMensajes([](const Mensaje&) { return Respuesta::Si; });
    SesionActual().modelo = ModeloDe(r, c, i);
    auto ed = std::make_unique<EdicionRequerimientos>(SesionActual());
    ed->Abrir();
    return ed;
}

NodoArbol* UnIndicador(EdicionRequerimientos& ed) {
    return ed.tvwArbol.Nodo(ed.tvwArbol.Cuenta() / 2)->Padre()->UltimoHijo();
}

void BM_AñadirIndicador(benchmark::State& state) {
    auto ed = Abrir(10, 10, 19);
    NodoArbol* indicador = UnIndicador(*ed);
    for (auto _ : state) {
        ed->tvwArbol.Seleccionar(indicador);
        ed->AñadirIndicador("Indicador");
        state.PauseTiming();
        ed->tvwArbol.Quitar(ed->tvwArbol.Seleccionado());
        state.ResumeTiming();
    }
    state.counters["nodos"] = ed->tvwArbol.Cuenta();
}
BENCHMARK(BM_AñadirIndicador)->Iterations(5000)->Unit(benchmark::kMicrosecond);

void BM_Eliminar(benchmark::State& state) {
    auto ed = Abrir(10, 10, 19);
    for (auto _ : state) {
        state.PauseTiming();
        ed->tvwArbol.Seleccionar(UnIndicador(*ed));
        ed->AñadirIndicador("Indicador");
        state.ResumeTiming();
        ed->Eliminar();
    }
    state.counters["nodos"] = ed->tvwArbol.Cuenta();
}
BENCHMARK(BM_Eliminar)->Iterations(5000)->Unit(benchmark::kMicrosecond);

void BM_Pegar200(benchmark::State& state) {
    auto ed = Abrir(10, 10, 19);
    NodoArbol* raiz = ed->tvwArbol.Nodo(1);
    ed->tvwArbol.Seleccionar(raiz->PrimerHijo()); // a requirement: 1 + 10 + 190 nodes
    ed->Copiar();
    for (auto _ : state) {
        ed->tvwArbol.Seleccionar(raiz);
        ed->Pegar();
        state.PauseTiming();
        ed->tvwArbol.Quitar(raiz->UltimoHijo());
        ed->Reordenar();
        state.ResumeTiming();
    }
    state.counters["copia"] = ed->tvwCopia.Cuenta();
    state.counters["nodos"] = ed->tvwArbol.Cuenta();
}
BENCHMARK(BM_Pegar200)->Iterations(1000)->Unit(benchmark::kMicrosecond);

void BM_ActualizarCombos(benchmark::State& state) {
    auto ed = Abrir(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)),
                    static_cast<int>(state.range(2)));
    NodoArbol* indicador = UnIndicador(*ed);
    for (auto _ : state) {
        ed->ActualizarCombos(indicador);
        benchmark::DoNotOptimize(ed->Selectores);
    }
    state.counters["nodos"] = ed->tvwArbol.Cuenta();
}
BENCHMARK(BM_ActualizarCombos)
    ->Args({10, 10, 19})
    ->Args({1, 1, 2000})
    ->Unit(benchmark::kMicrosecond);

void BM_Abrir(benchmark::State& state) {
    for (auto _ : state) {
        benchmark::DoNotOptimize(Abrir(10, 10, 19));
    }
}
BENCHMARK(BM_Abrir)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace vadro
