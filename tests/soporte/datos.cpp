#include "soporte/datos.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string_view>

namespace vadro::pruebas {

namespace {

std::filesystem::path RutaDatos(const std::string& nombre) {
    return std::filesystem::path(VADRO_DATOS_PRUEBAS) / nombre;
}

bool Actualizar() {
    const char* valor = std::getenv("VADRO_ACTUALIZAR_DATOS");
    return valor != nullptr && std::string_view(valor) == "1";
}

} // namespace

std::string Datos(const std::string& nombre, const std::string& real) {
    const std::filesystem::path ruta = RutaDatos(nombre);
    if (Actualizar()) {
        std::filesystem::create_directories(ruta.parent_path());
        std::ofstream(ruta, std::ios::binary) << real;
        return real;
    }
    return LeerDatos(nombre).value_or("<no data file " + ruta.string() + ">");
}

std::optional<std::string> LeerDatos(const std::string& nombre) {
    std::ifstream archivo(RutaDatos(nombre), std::ios::binary);
    if (!archivo) {
        return std::nullopt;
    }
    return std::string(std::istreambuf_iterator<char>(archivo), std::istreambuf_iterator<char>());
}

} // namespace vadro::pruebas
