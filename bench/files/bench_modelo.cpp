// Saving and loading generated models of growing size, against the plain reading of the same
// file's lines. Loading asks for its keys in the order of writing, so it should stay linear.

#include "core/core/sesion.h"
#include "core/files/modelo_archivo.h"
#include "core/files/texto_modelo.h"
#include "soporte/modelo_sano.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <map>
#include <string>
#include <unistd.h>

namespace {

using namespace vadro;

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
            it = modelos_.emplace(indicadores, pruebas::ModeloGenerado(indicadores)).first;
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
