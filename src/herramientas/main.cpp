#include "core/core/directorio_programa.h"
#include "core/core/sesion.h"
#include "core/shell/herramientas.h"

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <system_error>

namespace {

// The folder of the executable itself, wherever it was invoked from: run through the search
// path, argv[0] holds no folder at all.
std::filesystem::path CarpetaEjecutable(const char* argv0) {
    std::error_code ec;
    const std::filesystem::path propio = std::filesystem::read_symlink("/proc/self/exe", ec);
    if (!ec && propio.is_absolute()) {
        return propio.parent_path();
    }
    const std::filesystem::path invocado = std::filesystem::canonical(argv0 ? argv0 : "", ec);
    return ec ? std::filesystem::path() : invocado.parent_path();
}

} // namespace

int main(int argc, char* argv[]) {
    const std::u8string carpeta = CarpetaEjecutable(argc > 0 ? argv[0] : nullptr).u8string();
    vadro::SesionActual().DirectorioPrograma =
        vadro::ResolverDirectorioPrograma(std::string(carpeta.begin(), carpeta.end()));
    return vadro::EjecutarHerramientas({argv + std::min(argc, 1), argv + argc}, std::cin, std::cout,
                                       std::cerr);
}
