// Saving and loading generated models of growing size, beside two yardsticks: the load's own
// first stage (read, unscramble, temporary copy, split into lines) and a plain std::getline
// read of the same file. Loading asks for its keys in the order of writing, so it should stay
// linear; a file with missing lines should cost little more. The first load in a fresh
// process is the companion's "comprobar", page faults and all.

#include "core/core/archivos.h"
#include "core/core/sesion.h"
#include "core/files/modelo_archivo.h"
#include "core/files/proteccion.h"
#include "core/files/texto_modelo.h"
#include "soporte/modelo_sano.h"

#include <benchmark/benchmark.h>

#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <map>
#include <spawn.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

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

    // The same file with the sign line "_XMNS" of every sixteenth indicator removed: 1,000
    // missing keys in the model of 16,000 indicators.
    std::string RutaSinSignos(int indicadores) {
        ModeloDe(indicadores);
        const std::string ruta =
            (directorio_ / ("sin-signos" + std::to_string(indicadores) + ".vdm")).string();
        if (!ExisteArchivo(ruta)) {
            std::vector<std::string> lineas;
            int signos = 0;
            for (auto& linea : LineasPlanas(LeerArchivo(Ruta(indicadores)))) {
                const bool signo = linea.find("_XMNS = ") != std::string::npos;
                if (!(signo && signos++ % 16 == 0)) {
                    lineas.push_back(std::move(linea));
                }
            }
            EscribirArchivo(ruta, TextoProtegido(lineas));
        }
        return ruta;
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

void BM_CargarModeloSinSignos(benchmark::State& state) {
    const std::string ruta = ElBanco().RutaSinSignos(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        Modelo leido;
        CargarModelo(leido, ruta);
        benchmark::DoNotOptimize(leido.NumRequerimientos);
    }
    Lineas(state, ruta);
}

// The load's own first stage: read, unscramble, temporary copy, split into lines; not a key
// looked for yet.
void BM_PrimeraEtapaCarga(benchmark::State& state) {
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

// The yardstick: the lines of the same file read with std::getline and nothing else.
void BM_LeerConGetline(benchmark::State& state) {
    const int indicadores = static_cast<int>(state.range(0));
    ElBanco().ModeloDe(indicadores);
    const std::string ruta = ElBanco().Ruta(indicadores);
    for (auto _ : state) {
        std::ifstream entrada(ruta, std::ios::binary);
        std::string linea;
        std::size_t lineas = 0;
        while (std::getline(entrada, linea)) {
            ++lineas;
        }
        benchmark::DoNotOptimize(lineas);
    }
    Lineas(state, ruta);
}

// The first load in a fresh process: the companion checks the file, as a user waits for it.
int Comprobar(const std::string& ruta) {
    const std::string programa = VADRO_HERRAMIENTAS;
    std::string orden = "comprobar";
    std::string archivo = ruta;
    char* argumentos[] = {const_cast<char*>(programa.c_str()), orden.data(), archivo.data(),
                          nullptr};
    posix_spawn_file_actions_t acciones;
    posix_spawn_file_actions_init(&acciones);
    posix_spawn_file_actions_addopen(&acciones, 1, "/dev/null", O_WRONLY, 0);
    pid_t hijo = 0;
    const int fallo = posix_spawn(&hijo, programa.c_str(), &acciones, nullptr, argumentos, environ);
    posix_spawn_file_actions_destroy(&acciones);
    int estado = 0;
    if (fallo != 0 || waitpid(hijo, &estado, 0) < 0) {
        return -1;
    }
    return WIFEXITED(estado) ? WEXITSTATUS(estado) : -1;
}

void ComprobarEnProcesoNuevo(benchmark::State& state, const std::string& ruta) {
    for (auto _ : state) {
        if (Comprobar(ruta) < 0) {
            state.SkipWithError("vadro-herramientas no se pudo ejecutar");
            break;
        }
    }
    Lineas(state, ruta);
}

void BM_ComprobarProcesoNuevo(benchmark::State& state) {
    const int indicadores = static_cast<int>(state.range(0));
    ElBanco().ModeloDe(indicadores);
    ComprobarEnProcesoNuevo(state, ElBanco().Ruta(indicadores));
}

void BM_ComprobarProcesoNuevoSinSignos(benchmark::State& state) {
    ComprobarEnProcesoNuevo(state, ElBanco().RutaSinSignos(static_cast<int>(state.range(0))));
}

BENCHMARK(BM_GuardarModelo)->Arg(1000)->Arg(4000)->Arg(16000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_CargarModelo)->Arg(1000)->Arg(4000)->Arg(16000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_CargarModeloSinSignos)->Arg(16000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_PrimeraEtapaCarga)->Arg(1000)->Arg(4000)->Arg(16000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_LeerConGetline)->Arg(1000)->Arg(4000)->Arg(16000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ComprobarProcesoNuevo)->Arg(16000)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(BM_ComprobarProcesoNuevoSinSignos)
    ->Arg(16000)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

} // namespace
