// Compiling generated models that are sound, so that the report is short and the time is the
// walk of the tree: 1,000 to 16,000 indicators, half of the criteria with two subcriteria, and
// one model whose first criterion holds a single set of 2,000 indicators, the case the name
// check finds hardest.

#include "core/compilation/compilacion.h"

#include <benchmark/benchmark.h>

#include <map>
#include <stdexcept>
#include <string>

namespace {

using namespace vadro;

constexpr int kIndicadoresPorCriterio = 10;
constexpr int kCriteriosPorRequerimiento = 10;

void Cabeza(CabeceraNodo& nodo, const std::string& nombre, int hermanos) {
    nodo.Nombre = nombre;
    nodo.Peso = 100.0 / hermanos;
    nodo.PesoAuxiliar = 0.05;
    nodo.Saaty.Redimensionar(hermanos);
    for (int j = 1; j <= hermanos; ++j) {
        nodo.Saaty(j) = 1.0;
    }
}

// Continuous, step and scoring functions in turn, all complete.
FuncionValor Funcion(int n) {
    FuncionValor f;
    f.Unidades = "kg/m3";
    f.RMin = 0.0;
    f.RMax = 100.0;
    f.C = 40.0;
    f.K = 0.5;
    f.P = 2.5;
    switch (n % 3) {
    case 0:
        f.Tipo = FuncionContinua;
        break;
    case 1:
        f.Tipo = FuncionEscalon;
        f.Escalones.Redimensionar(4);
        for (int e = 1; e <= 4; ++e) {
            f.Escalones(e) = {"=" + std::to_string((e - 1) * 25), "<" + std::to_string(e * 25),
                              (e - 1) / 3.0};
        }
        break;
    default:
        f.Tipo = FuncionPuntuacion;
        f.Puntuaciones.Redimensionar(2);
        f.Puntuaciones(1) = {PuntuacionBooleana, "Certificado", "", "", 0.0, 1.0};
        f.Puntuaciones(2) = {PuntuacionNumerica, "Plazo", 0.0, 12.0, 0.0, 1.0};
        break;
    }
    return f;
}

void Indicadores(ValorLibre& cuenta, Arreglo<NodoIndicador>& indicadores, int numero, int& n) {
    cuenta = numero;
    indicadores.Redimensionar(numero);
    for (NodoIndicador& indicador : indicadores) {
        ++n;
        Cabeza(indicador, "Indicador " + std::to_string(n), numero);
        indicador.Funcion = Funcion(n);
    }
}

// Even criteria hold their indicators, odd ones two subcriteria of half as many each. With a
// large first set, the first criterion holds it and the last criteria give way to it.
Modelo ModeloGenerado(int indicadores, int primerConjunto) {
    Modelo m;
    m.ConSubcriterios = true;
    m.NumEtapas = 1;
    m.Etapas.Redimensionar(1);
    m.Etapas(1) = "Diseño";
    m.NumComponentes = 1;
    m.Componentes.Redimensionar(1);
    m.Componentes(1).Nombre = "Estructura";
    const int criterios =
        (indicadores - primerConjunto) / kIndicadoresPorCriterio + (primerConjunto > 0 ? 1 : 0);
    const int requerimientos = criterios / kCriteriosPorRequerimiento;
    m.NumRequerimientos = requerimientos;
    m.Requerimientos.Redimensionar(requerimientos);
    int n = 0;
    int numeroCriterio = 0;
    for (NodoRequerimiento& r : m.Requerimientos) {
        Cabeza(r, "Requerimiento " + std::to_string(n), requerimientos);
        r.NumCriterios = kCriteriosPorRequerimiento;
        r.Criterios.Redimensionar(kCriteriosPorRequerimiento);
        for (NodoCriterio& c : r.Criterios) {
            Cabeza(c, "Criterio " + std::to_string(++numeroCriterio), kCriteriosPorRequerimiento);
            c.NumSubcriterios = 0;
            c.NumIndicadores = 0;
            if (numeroCriterio == 1 && primerConjunto > 0) {
                Indicadores(c.NumIndicadores, c.Indicadores, primerConjunto, n);
            } else if (numeroCriterio % 2 == 0) {
                Indicadores(c.NumIndicadores, c.Indicadores, kIndicadoresPorCriterio, n);
            } else {
                c.NumSubcriterios = 2;
                c.Subcriterios.Redimensionar(2);
                for (NodoSubcriterio& s : c.Subcriterios) {
                    Cabeza(s, "Subcriterio " + std::to_string(n), 2);
                    Indicadores(s.NumIndicadores, s.Indicadores, kIndicadoresPorCriterio / 2, n);
                }
            }
        }
    }
    return m;
}

const Modelo& ModeloDe(int indicadores, int primerConjunto) {
    static std::map<std::pair<int, int>, Modelo> modelos;
    const auto clave = std::make_pair(indicadores, primerConjunto);
    auto it = modelos.find(clave);
    if (it == modelos.end()) {
        it = modelos.emplace(clave, ModeloGenerado(indicadores, primerConjunto)).first;
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
    Modelo modelo;
    modelo.NumRequerimientos = 1;
    modelo.Requerimientos.Redimensionar(1);
    Cabeza(modelo.Requerimientos(1), "Requerimiento", 1);
    NodoRequerimiento& r = modelo.Requerimientos(1);
    r.NumCriterios = 1;
    r.Criterios.Redimensionar(1);
    Cabeza(r.Criterios(1), "Criterio", 1);
    int n = 0;
    Indicadores(r.Criterios(1).NumIndicadores, r.Criterios(1).Indicadores, 2000, n);
    for (auto _ : state) {
        benchmark::DoNotOptimize(ComprobarModelo(modelo).Lineas().size());
    }
}

BENCHMARK(BM_Compilar)->Arg(1000)->Arg(4000)->Arg(16000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_CompilarConUnConjuntoDe2000)->Arg(16000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_UnConjuntoDe2000)->Unit(benchmark::kMillisecond);

} // namespace
