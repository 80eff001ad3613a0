#include "soporte/prueba_sesion.h"

#include "core/core/archivos.h"
#include "core/files/modelo_archivo.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>

namespace vadro::pruebas {

namespace fs = std::filesystem;

namespace {

std::string DirectorioNuevo() {
    static std::mt19937_64 azar{std::random_device{}()};
    const fs::path ruta = fs::temp_directory_path() / ("vadro-prueba-" + std::to_string(azar()));
    fs::create_directories(ruta);
    return ruta.string();
}

} // namespace

PruebaSesion::PruebaSesion() : directorio_(DirectorioNuevo()) {
#ifdef _WIN32
    ::_putenv_s("VADRO_DIR", directorio_.c_str());
#else
    ::setenv("VADRO_DIR", directorio_.c_str(), 1);
#endif
    ReiniciarSesion();
    SesionActual().DirectorioPrograma = directorio_;
    SesionActual().servicios.durante_escritura = nullptr;
}

PruebaSesion::~PruebaSesion() {
    SesionActual().servicios.durante_escritura = nullptr;
    std::error_code ec;
    fs::remove_all(directorio_, ec);
}

std::string PruebaSesion::Ruta(const std::string& nombre) const {
    return UnirRuta(directorio_, nombre);
}

std::string PruebaSesion::Contenido(const std::string& ruta) {
    std::ifstream entrada(ruta, std::ios::binary);
    return std::string((std::istreambuf_iterator<char>(entrada)), std::istreambuf_iterator<char>());
}

void PruebaSesion::Escribir(const std::string& ruta, const std::string& bytes) {
    std::ofstream salida(ruta, std::ios::binary | std::ios::trunc);
    salida << bytes;
}

std::string PruebaSesion::NombreGuardadoEn(const std::string& ruta) {
    Modelo leido;
    CargarModelo(leido, ruta);
    return leido.Nombre;
}

} // namespace vadro::pruebas
