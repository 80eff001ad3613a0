#include "core/core/directorio_programa.h"
#include "core/core/sesion.h"
#include "core/shell/herramientas.h"

#include <algorithm>
#include <filesystem>
#include <iostream>

int main(int argc, char* argv[]) {
    const std::filesystem::path ejecutable = std::filesystem::absolute(argc > 0 ? argv[0] : "");
    const std::u8string carpeta = ejecutable.parent_path().u8string();
    vadro::SesionActual().DirectorioPrograma =
        vadro::ResolverDirectorioPrograma(std::string(carpeta.begin(), carpeta.end()));
    return vadro::EjecutarHerramientas({argv + std::min(argc, 1), argv + argc}, std::cin, std::cout,
                                       std::cerr);
}
