// Saving and loading generated models of growing size, against the plain reading of the same
// file's lines. Loading asks for its keys in the order of writing, so it should stay linear.

#include "core/core/sesion.h"
#include "core/files/modelo_archivo.h"
#include "core/files/texto_modelo.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <map>
#include <string>
#include <unistd.h>

namespace {

using namespace vadro;

constexpr int kIndicadoresPorCriterio = 10;
constexpr int kCriteriosPorRequerimiento = 10;

void Cabeza(CabeceraNodo& nodo, const std::string& nombre, int hermanos) {
    nodo.Nombre = nombre;
    nodo.Descripcion = "Descripción de " + nombre;
    nodo.Peso = 100.0 / hermanos;
    nodo.Directo = 1.0;
    nodo.Saaty.Redimensionar(hermanos);
    for (int j = 1; j <= hermanos; ++j) {
        nodo.Saaty(j) = 1.0 + j / 8.0;
    }
}

// Half of the indicators continuous, half with four steps.
FuncionValor Funcion(int n) {
    FuncionValor f;
    f.Unidades = "kg/m3";
    f.RMin = 0.0;
    f.RMax = 100.0;
    if (n % 2 == 0) {
        f.Tipo = FuncionContinua;
        f.XMin = "<0";
        f.XMax = "=100";
        f.C = 40.0;
        f.K = 0.5;
        f.P = 2.5;
        return f;
    }
    f.Tipo = FuncionEscalon;
    f.XMin = "<0";
    f.XMax = ">100";
    f.Escalones.Redimensionar(4);
    for (int e = 1; e <= 4; ++e) {
        const std::string inicio = (e == 1 ? "=" : ">") + std::to_string((e - 1) * 25);
        f.Escalones(e) = {inicio, "=" + std::to_string(e * 25), (e - 1) / 3.0};
    }
    return f;
}

Modelo ModeloGenerado(int indicadores) {
    const int requerimientos = indicadores / (kIndicadoresPorCriterio * kCriteriosPorRequerimiento);
    Modelo m;
    m.Nombre = "Generado";
    m.NumRequerimientos = requerimientos;
    m.Requerimientos.Redimensionar(requerimientos);
    int n = 0;
    for (NodoRequerimiento& r : m.Requerimientos) {
        Cabeza(r, "Requerimiento", requerimientos);
        r.NumCriterios = kCriteriosPorRequerimiento;
        r.Criterios.Redimensionar(kCriteriosPorRequerimiento);
        for (NodoCriterio& c : r.Criterios) {
            Cabeza(c, "Criterio", kCriteriosPorRequerimiento);
            c.NumSubcriterios = 0;
            c.NumIndicadores = kIndicadoresPorCriterio;
            c.Indicadores.Redimensionar(kIndicadoresPorCriterio);
            for (NodoIndicador& i : c.Indicadores) {
                Cabeza(i, "Indicador " + std::to_string(++n), kIndicadoresPorCriterio);
                i.Funcion = Funcion(n);
            }
        }
    }
    return m;
}

// One working directory for the run, and one saved file per size.
class Banco {
public:
    Banco() {
        directorio_ =
            std::filesystem::temp_directory_path() / ("vadro-bench-" + std::to_string(::getpid()));
        std::filesystem::create_directories(directorio_);
        SesionActual().DirectorioPrograma = directorio_.string();
    }
    ~Banco() {
        std::error_code ec;
        std::filesystem::remove_all(directorio_, ec);
    }

    std::string Ruta(int indicadores) const {
        return (directorio_ / ("modelo" + std::to_string(indicadores) + ".vdm")).string();
    }

    Modelo& ModeloDe(int indicadores) {
        auto it = modelos_.find(indicadores);
        if (it == modelos_.end()) {
            it = modelos_.emplace(indicadores, ModeloGenerado(indicadores)).first;
            GuardarModelo(it->second, Ruta(indicadores), false);
        }
        return it->second;
    }

private:
    std::filesystem::path directorio_;
    std::map<int, Modelo> modelos_;
};

Banco& ElBanco() {
    static Banco banco;
    return banco;
}

void Lineas(benchmark::State& state, const std::string& ruta) {
    ArchivoEntrada archivo = ArchivoEntrada::Abrir(ruta);
    state.counters["lineas"] = static_cast<double>(archivo.NumLineas());
    archivo.BorrarTemporal();
}

void BM_GuardarModelo(benchmark::State& state) {
    const int indicadores = static_cast<int>(state.range(0));
    Modelo& modelo = ElBanco().ModeloDe(indicadores);
    const std::string ruta = ElBanco().Ruta(indicadores);
    for (auto _ : state) {
        GuardarModelo(modelo, ruta, false);
    }
    Lineas(state, ruta);
}

void BM_CargarModelo(benchmark::State& state) {
    const int indicadores = static_cast<int>(state.range(0));
    ElBanco().ModeloDe(indicadores);
    const std::string ruta = ElBanco().Ruta(indicadores);
    for (auto _ : state) {
        Modelo leido;
        CargarModelo(leido, ruta);
        benchmark::DoNotOptimize(leido.NumRequerimientos);
    }
    Lineas(state, ruta);
}

// The same file opened as plain lines, without a single key looked for: what a load costs
// before it parses anything.
void BM_LeerLineas(benchmark::State& state) {
    const int indicadores = static_cast<int>(state.range(0));
    ElBanco().ModeloDe(indicadores);
    const std::string ruta = ElBanco().Ruta(indicadores);
    for (auto _ : state) {
        ArchivoEntrada archivo = ArchivoEntrada::Abrir(ruta);
        benchmark::DoNotOptimize(archivo.NumLineas());
        archivo.BorrarTemporal();
    }
    Lineas(state, ruta);
}

BENCHMARK(BM_GuardarModelo)->Arg(1000)->Arg(4000)->Arg(16000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_CargarModelo)->Arg(1000)->Arg(4000)->Arg(16000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_LeerLineas)->Arg(1000)->Arg(4000)->Arg(16000)->Unit(benchmark::kMillisecond);

} // namespace
