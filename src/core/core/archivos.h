#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace vadro {

// Paths accept "\" and "/" as separators and are written with the platform's.
char SeparadorRuta();
std::string NormalizarRuta(const std::string& ruta);
std::string UnirRuta(const std::string& directorio, const std::string& nombre);

bool ExisteArchivo(const std::string& ruta);

// Far more than any model: a larger file is refused before it is read.
inline constexpr std::uintmax_t kLargoMaximoArchivo = std::uintmax_t{1} << 30;

// The bytes of a file. A missing file is runtime error 53; what is not a regular file (a folder,
// a device, a pipe) or cannot be read, 75 (70 without permission); a file larger than
// kLargoMaximoArchivo, or one that memory does not hold, "Memoria insuficiente" (7).
std::string LeerArchivo(const std::string& ruta);

// Writes the whole file so that the previous one is never damaged: the bytes go to a
// temporary file beside the target, are flushed to the disk, and the file takes the target's
// place only when complete. The target keeps its permissions; a symbolic link is followed and
// its target written; a target without write permission is refused (70, "Permiso denegado")
// whoever runs the program. A failure is reported by its cause: disk full (61), permission
// (70), missing folder (76), other (75).
void EscribirArchivo(const std::string& ruta, const std::string& bytes);

// Appends to a file, creating it if missing.
void AnadirArchivo(const std::string& ruta, const std::string& bytes);

// Deletes a file; a file that is not there is no failure.
void BorrarArchivo(const std::string& ruta);

// Calls `hacer` with each line of 8-bit text: carriage return and line feed together end a
// line, and so does either of them alone. A last line without an end still counts.
template <typename Hacer> void PorCadaLinea(std::string_view bytes, Hacer&& hacer) {
    std::size_t inicio = 0;
    std::size_t i = 0;
    while (i < bytes.size()) {
        const char c = bytes[i];
        if (c != '\r' && c != '\n') {
            ++i;
            continue;
        }
        hacer(bytes.substr(inicio, i - inicio));
        i += (c == '\r' && i + 1 < bytes.size() && bytes[i + 1] == '\n') ? 2 : 1;
        inicio = i;
    }
    if (inicio < bytes.size()) {
        hacer(bytes.substr(inicio));
    }
}

// Splits 8-bit text into lines, as PorCadaLinea does.
std::vector<std::string> DividirLineas(std::string_view bytes);

// Joins lines, each ended by carriage return and line feed.
std::string UnirLineas(const std::vector<std::string>& lineas);

} // namespace vadro
