#include "core/core/archivos.h"

#include "core/core/error_ejecucion.h"
#include "core/core/sesion.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <fstream>
#include <random>
#include <system_error>

namespace vadro {

namespace fs = std::filesystem;

char SeparadorRuta() {
#ifdef _WIN32
    return '\\';
#else
    return '/';
#endif
}

std::string NormalizarRuta(const std::string& ruta) {
    std::string normal = ruta;
    for (char& c : normal) {
        if (c == '\\' || c == '/') {
            c = SeparadorRuta();
        }
    }
    return normal;
}

std::string UnirRuta(const std::string& directorio, const std::string& nombre) {
    std::string ruta = NormalizarRuta(directorio);
    if (!ruta.empty() && ruta.back() != SeparadorRuta()) {
        ruta += SeparadorRuta();
    }
    return ruta + nombre;
}

namespace {

fs::path Ruta(const std::string& ruta) {
    const std::string normal = NormalizarRuta(ruta);
    return fs::path(std::u8string(normal.begin(), normal.end()));
}

std::string Utf8(const fs::path& ruta) {
    const std::u8string texto = ruta.u8string();
    return std::string(texto.begin(), texto.end());
}

// The runtime error that stands for a failed write of a file at the given path.
[[noreturn]] void FalloEscritura(const fs::path& ruta, int numeroSistema) {
    if (numeroSistema == ENOSPC) {
        throw ErrorEjecucion(ErrDiscoLleno);
    }
    std::error_code ec;
    if (!ruta.parent_path().empty() && !fs::is_directory(ruta.parent_path(), ec)) {
        throw ErrorEjecucion(ErrRutaNoEncontrada);
    }
    throw ErrorEjecucion(numeroSistema == EACCES ? ErrPermiso : ErrAccesoRuta);
}

std::string NombreTemporal(const fs::path& destino) {
    static std::mt19937 azar{std::random_device{}()};
    // Appended piece by piece: GCC 12 warns (-Wrestrict, a known false positive) on a literal
    // added to a temporary string.
    std::string nombre(1, '.');
    nombre += Utf8(destino.filename());
    nombre += '.';
    nombre += std::to_string(azar() % 1000000);
    nombre += ".tmp";
    return nombre;
}

} // namespace

bool ExisteArchivo(const std::string& ruta) {
    std::error_code ec;
    return !ruta.empty() && fs::is_regular_file(Ruta(ruta), ec);
}

std::string LeerArchivo(const std::string& ruta) {
    const fs::path camino = Ruta(ruta);
    std::error_code ec;
    if (ruta.empty() || !fs::exists(camino, ec)) {
        throw ErrorEjecucion(ErrArchivoNoEncontrado);
    }
    if (fs::is_directory(camino, ec)) {
        throw ErrorEjecucion(ErrAccesoRuta);
    }
    std::ifstream entrada(camino, std::ios::binary);
    if (!entrada) {
        throw ErrorEjecucion(ErrAccesoRuta);
    }
    // Read in one piece at the size the file has: growing a buffer while reading touches
    // several times a large model's size in fresh memory.
    const auto largo = fs::file_size(camino, ec);
    if (!ec) {
        std::string bytes(static_cast<std::size_t>(largo), '\0');
        entrada.read(bytes.data(), static_cast<std::streamsize>(largo));
        if (static_cast<std::uintmax_t>(entrada.gcount()) == largo &&
            entrada.peek() == std::ifstream::traits_type::eof()) {
            return bytes;
        }
        entrada.clear();
        entrada.seekg(0);
    }
    // The size is unknown or changed while reading: read to the end.
    std::string bytes((std::istreambuf_iterator<char>(entrada)), std::istreambuf_iterator<char>());
    if (entrada.bad()) {
        throw ErrorEjecucion(ErrEntradaSalida);
    }
    return bytes;
}

void EscribirArchivo(const std::string& ruta, const std::string& bytes) {
    const fs::path destino = Ruta(ruta);
    if (ruta.empty() || destino.filename().empty()) {
        throw ErrorEjecucion(ErrNombreArchivo);
    }
    const fs::path temporal = destino.parent_path() / Ruta(NombreTemporal(destino));
    {
        errno = 0;
        std::ofstream salida(temporal, std::ios::binary | std::ios::trunc);
        if (!salida) {
            FalloEscritura(destino, errno);
        }
        try {
            salida.write(bytes.data(), static_cast<std::streamsize>(bytes.size() / 2));
            if (const auto& durante = SesionActual().servicios.durante_escritura) {
                durante(ruta);
            }
            salida.write(bytes.data() + bytes.size() / 2,
                         static_cast<std::streamsize>(bytes.size() - bytes.size() / 2));
            salida.flush();
        } catch (...) {
            salida.close();
            std::error_code ec;
            fs::remove(temporal, ec);
            throw;
        }
        if (!salida) {
            const int numero = errno;
            salida.close();
            std::error_code ec;
            fs::remove(temporal, ec);
            FalloEscritura(destino, numero);
        }
    }
    std::error_code ec;
    fs::rename(temporal, destino, ec);
    if (ec) {
        fs::remove(temporal, ec);
        throw ErrorEjecucion(ErrPermiso);
    }
}

void AnadirArchivo(const std::string& ruta, const std::string& bytes) {
    const fs::path destino = Ruta(ruta);
    errno = 0;
    std::ofstream salida(destino, std::ios::binary | std::ios::app);
    if (!salida) {
        FalloEscritura(destino, errno);
    }
    salida.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    salida.flush();
    if (!salida) {
        FalloEscritura(destino, errno);
    }
}

void BorrarArchivo(const std::string& ruta) {
    std::error_code ec;
    fs::remove(Ruta(ruta), ec);
}

std::vector<std::string> DividirLineas(std::string_view bytes) {
    std::vector<std::string> lineas;
    lineas.reserve(static_cast<std::size_t>(std::count(bytes.begin(), bytes.end(), '\n')) + 1);
    PorCadaLinea(bytes, [&lineas](std::string_view linea) { lineas.emplace_back(linea); });
    return lineas;
}

std::string UnirLineas(const std::vector<std::string>& lineas) {
    std::size_t total = 0;
    for (const auto& linea : lineas) {
        total += linea.size() + 2;
    }
    std::string bytes;
    bytes.reserve(total);
    for (const auto& linea : lineas) {
        bytes += linea;
        bytes += "\r\n";
    }
    return bytes;
}

} // namespace vadro
