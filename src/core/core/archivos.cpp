#include "core/core/archivos.h"

#include "core/core/error_ejecucion.h"
#include "core/core/sesion.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <random>
#include <system_error>
#include <unistd.h>

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

// The runtime error of a file that is there but does not open for reading.
int ErrorAlAbrir(int numeroSistema) {
    return numeroSistema == EACCES || numeroSistema == EPERM ? ErrPermiso : ErrAccesoRuta;
}

std::string Utf8(const fs::path& ruta) {
    const std::u8string texto = ruta.u8string();
    return std::string(texto.begin(), texto.end());
}

// The runtime error that stands for a failed write or rename, by its cause.
[[noreturn]] void FalloEscritura(const fs::path& ruta, int numeroSistema) {
    switch (numeroSistema) {
    case ENOSPC:
    case EDQUOT:
        throw ErrorEjecucion(ErrDiscoLleno);
    case EACCES:
    case EPERM:
    case EROFS:
        throw ErrorEjecucion(ErrPermiso);
    default:
        break;
    }
    std::error_code ec;
    if (!ruta.parent_path().empty() && !fs::is_directory(ruta.parent_path(), ec)) {
        throw ErrorEjecucion(ErrRutaNoEncontrada);
    }
    throw ErrorEjecucion(numeroSistema == ENOENT ? ErrRutaNoEncontrada : ErrAccesoRuta);
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

// The file a save writes: a symbolic link is followed to its target, so that the link stays.
fs::path DestinoReal(const fs::path& destino) {
    std::error_code ec;
    fs::path real = destino;
    for (int saltos = 0; saltos < 40 && fs::is_symlink(real, ec); ++saltos) {
        const fs::path objetivo = fs::read_symlink(real, ec);
        if (ec) {
            break;
        }
        real = objetivo.is_absolute() ? objetivo : real.parent_path() / objetivo;
    }
    return real;
}

// A file without the owner's write permission is read-only, whoever runs the program, as the
// read-only attribute of the classic file layer was.
bool SoloLectura(const fs::path& ruta) {
    std::error_code ec;
    const fs::file_status estado = fs::status(ruta, ec);
    return !ec && fs::exists(estado) &&
           (estado.permissions() & fs::perms::owner_write) == fs::perms::none;
}

// Writes all the bytes to a new file descriptor and flushes them to the disk; gives the
// system's error number, or 0.
int EscribirTodo(int descriptor, const std::string& bytes, const std::string& ruta) {
    std::size_t hecho = 0;
    const std::size_t mitad = bytes.size() / 2;
    bool avisado = false;
    while (hecho < bytes.size()) {
        if (!avisado && hecho >= mitad) {
            avisado = true;
            if (const auto& durante = SesionActual().servicios.durante_escritura) {
                durante(ruta);
            }
        }
        const std::size_t tramo =
            std::min(bytes.size() - hecho, hecho < mitad ? mitad - hecho : bytes.size() - hecho);
        const ssize_t escritos = ::write(descriptor, bytes.data() + hecho, tramo);
        if (escritos < 0) {
            if (errno == EINTR) {
                continue;
            }
            return errno;
        }
        hecho += static_cast<std::size_t>(escritos);
    }
    if (!avisado) {
        if (const auto& durante = SesionActual().servicios.durante_escritura) {
            durante(ruta);
        }
    }
    return ::fsync(descriptor) != 0 ? errno : 0;
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
    // A folder, a device or a pipe is no file of this program; /dev/zero would never end.
    if (!fs::is_regular_file(camino, ec)) {
        throw ErrorEjecucion(ErrAccesoRuta, DescripcionError(ErrAccesoRuta) + ": no es un archivo");
    }
    const auto largo = fs::file_size(camino, ec);
    if (!ec && largo > kLargoMaximoArchivo) {
        throw ErrorEjecucion(ErrMemoria, DescripcionError(ErrMemoria) +
                                             ": el archivo ocupa más de lo que ocupa un modelo");
    }
    std::ifstream entrada(camino, std::ios::binary);
    if (!entrada) {
        throw ErrorEjecucion(ErrorAlAbrir(errno));
    }
    try {
        // Read in one piece at the size the file has: growing a buffer while reading touches
        // several times a large model's size in fresh memory.
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
        // The size is unknown or changed while reading: read to the end, within the bound.
        std::string bytes;
        char bloque[65536];
        while (entrada.read(bloque, sizeof bloque) || entrada.gcount() > 0) {
            bytes.append(bloque, static_cast<std::size_t>(entrada.gcount()));
            if (bytes.size() > kLargoMaximoArchivo) {
                throw ErrorEjecucion(ErrMemoria);
            }
        }
        if (entrada.bad()) {
            throw ErrorEjecucion(ErrEntradaSalida);
        }
        return bytes;
    } catch (const std::bad_alloc&) {
        throw ErrorEjecucion(ErrMemoria);
    } catch (const std::length_error&) {
        throw ErrorEjecucion(ErrMemoria);
    }
}

// The new content goes to a temporary file beside the target, with the target's permissions,
// is flushed to the disk, and only then takes the target's place: the previous file is never
// damaged, and after a crash either the old or the new content stands.
void EscribirArchivo(const std::string& ruta, const std::string& bytes) {
    const fs::path pedido = Ruta(ruta);
    if (ruta.empty() || pedido.filename().empty()) {
        throw ErrorEjecucion(ErrNombreArchivo);
    }
    const fs::path destino = DestinoReal(pedido);
    std::error_code ec;
    if (fs::is_directory(destino, ec)) {
        throw ErrorEjecucion(ErrAccesoRuta);
    }
    if (SoloLectura(destino)) {
        throw ErrorEjecucion(ErrPermiso);
    }
    const fs::file_status anterior = fs::status(destino, ec);
    const auto modo = fs::exists(anterior) ? static_cast<mode_t>(anterior.permissions())
                                           : static_cast<mode_t>(0666);
    fs::path temporal;
    int descriptor = -1;
    for (int intento = 0; intento < 100 && descriptor < 0; ++intento) {
        temporal = destino.parent_path() / Ruta(NombreTemporal(destino));
        descriptor = ::open(temporal.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, modo);
        if (descriptor < 0 && errno != EEXIST) {
            FalloEscritura(destino, errno);
        }
    }
    if (descriptor < 0) {
        throw ErrorEjecucion(ErrAccesoRuta);
    }
    int numero = 0;
    try {
        numero = EscribirTodo(descriptor, bytes, ruta);
    } catch (...) {
        ::close(descriptor);
        fs::remove(temporal, ec);
        throw;
    }
    if (::close(descriptor) != 0 && numero == 0) {
        numero = errno;
    }
    if (numero == 0 && fs::exists(anterior)) {
        // The creation mode went through the umask; the previous file's permissions stand.
        fs::permissions(temporal, anterior.permissions(), ec);
    }
    if (numero == 0 && ::rename(temporal.c_str(), destino.c_str()) != 0) {
        numero = errno;
    }
    if (numero != 0) {
        fs::remove(temporal, ec);
        FalloEscritura(destino, numero);
    }
}

void AnadirArchivo(const std::string& ruta, const std::string& bytes) {
    const fs::path destino = Ruta(ruta);
    if (SoloLectura(destino)) {
        throw ErrorEjecucion(ErrPermiso);
    }
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
