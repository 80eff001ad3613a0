#include "core/core/directorio_programa.h"

#include "core/core/archivos.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace vadro {

namespace fs = std::filesystem;

namespace {

std::string Variable(const char* nombre) {
    const char* valor = std::getenv(nombre);
    return valor != nullptr ? std::string(valor) : std::string();
}

std::string CarpetaDatosUsuario() {
    const std::string aplicacion = "VADRO Programador";
#if defined(_WIN32)
    return UnirRuta(Variable("APPDATA"), aplicacion);
#elif defined(__APPLE__)
    return UnirRuta(UnirRuta(Variable("HOME"), "Library/Application Support"), aplicacion);
#else
    const std::string datos = Variable("XDG_DATA_HOME");
    return UnirRuta(datos.empty() ? UnirRuta(Variable("HOME"), ".local/share") : datos, aplicacion);
#endif
}

} // namespace

bool EsEscribible(const std::string& carpeta) {
    if (carpeta.empty()) {
        return false;
    }
    const std::string prueba = UnirRuta(carpeta, ".vadro-escritura.$$$");
    bool escribible = false;
    {
        std::ofstream archivo(fs::path(std::u8string(prueba.begin(), prueba.end())));
        escribible = static_cast<bool>(archivo);
    }
    BorrarArchivo(prueba);
    return escribible;
}

std::string ResolverDirectorioPrograma(const std::string& carpetaEjecutable) {
    if (const std::string elegido = Variable("VADRO_DIR"); !elegido.empty()) {
        return NormalizarRuta(elegido);
    }
    if (EsEscribible(carpetaEjecutable)) {
        return NormalizarRuta(carpetaEjecutable);
    }
    std::string datos = CarpetaDatosUsuario();
    std::error_code ec;
    fs::create_directories(fs::path(std::u8string(datos.begin(), datos.end())), ec);
    return datos;
}

} // namespace vadro
