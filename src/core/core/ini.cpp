#include "core/core/ini.h"

#include "core/core/archivos.h"
#include "core/core/codigo_pagina.h"
#include "core/core/error_ejecucion.h"

#include <algorithm>
#include <optional>
#include <string_view>
#include <vector>

namespace vadro {

namespace {

constexpr std::size_t kLargoMaximo = 255;
const char* const kFalta = "-1";

std::string Recortar(const std::string& texto) {
    const auto inicio = texto.find_first_not_of(" \t");
    if (inicio == std::string::npos) {
        return {};
    }
    const auto fin = texto.find_last_not_of(" \t");
    return texto.substr(inicio, fin - inicio + 1);
}

bool IgualSinMayusculas(const std::string& a, const std::string& b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) {
        return MayusculaOchoBits(static_cast<unsigned char>(x)) ==
               MayusculaOchoBits(static_cast<unsigned char>(y));
    });
}

// The name of a section line "[name]", or nothing for any other line.
std::optional<std::string> NombreSeccion(const std::string& linea) {
    const std::string recortada = Recortar(linea);
    if (recortada.empty() || recortada.front() != '[') {
        return std::nullopt;
    }
    const auto cierre = recortada.find(']');
    return Recortar(
        recortada.substr(1, cierre == std::string::npos ? std::string::npos : cierre - 1));
}

bool EsLineaDeClave(const std::string& linea, const std::string& clave) {
    const auto igual = linea.find('=');
    return igual != std::string::npos &&
           IgualSinMayusculas(Recortar(linea.substr(0, igual)), clave);
}

// Where a section's lines stand: the section line, and one past its last line.
struct Tramo {
    std::size_t cabecera;
    std::size_t fin;
};

std::optional<Tramo> BuscarSeccion(const std::vector<std::string>& lineas,
                                   const std::string& seccion) {
    for (std::size_t i = 0; i < lineas.size(); ++i) {
        const auto nombre = NombreSeccion(lineas[i]);
        if (!nombre || !IgualSinMayusculas(*nombre, seccion)) {
            continue;
        }
        std::size_t fin = i + 1;
        while (fin < lineas.size() && !NombreSeccion(lineas[fin])) {
            ++fin;
        }
        return Tramo{i, fin};
    }
    return std::nullopt;
}

// The lines of the file; a missing file has none. A file that is there but cannot be read
// gives nothing, so that a write never replaces what it could not see.
// A byte-order mark, or a first character of UTF-16 (an ASCII byte beside a zero byte).
bool OtraCodificacion(std::string_view bytes) {
    if (bytes.substr(0, 3) == "\xEF\xBB\xBF" || bytes.substr(0, 2) == "\xFF\xFE" ||
        bytes.substr(0, 2) == "\xFE\xFF") {
        return true;
    }
    if (bytes.size() < 2) {
        return false;
    }
    const auto primero = static_cast<unsigned char>(bytes[0]);
    const auto segundo = static_cast<unsigned char>(bytes[1]);
    return (primero != 0 && primero < 0x80 && segundo == 0) ||
           (primero == 0 && segundo != 0 && segundo < 0x80);
}

// A file in UTF-16 or with a byte-order mark is left alone: its lines are not 8-bit text, and a
// key written into it would be in another encoding.
std::optional<std::vector<std::string>> LineasDe(const std::string& archivo) {
    try {
        const std::string bytes = LeerArchivo(archivo);
        if (OtraCodificacion(bytes)) {
            return std::nullopt;
        }
        return DividirLineas(bytes);
    } catch (const ErrorEjecucion& error) {
        if (error.Numero() == ErrArchivoNoEncontrado) {
            return std::vector<std::string>{};
        }
        return std::nullopt;
    }
}

// A value between quotes of the same kind loses them, as the profile functions do.
std::string SinComillas(const std::string& valor) {
    if (valor.size() >= 2 && (valor.front() == '"' || valor.front() == '\'') &&
        valor.back() == valor.front()) {
        return valor.substr(1, valor.size() - 2);
    }
    return valor;
}

} // namespace

ValorLibre LeerIni(const std::string& seccion, const std::string& clave,
                   const std::string& archivo) {
    const std::vector<std::string> lineas = LineasDe(archivo).value_or(std::vector<std::string>{});
    const std::string seccion8 = AOchoBits(seccion);
    const std::string clave8 = AOchoBits(clave);
    const auto tramo = BuscarSeccion(lineas, seccion8);
    if (!tramo) {
        return ValorLibre(kFalta);
    }
    for (std::size_t i = tramo->cabecera + 1; i < tramo->fin; ++i) {
        if (EsLineaDeClave(lineas[i], clave8)) {
            std::string valor = SinComillas(Recortar(lineas[i].substr(lineas[i].find('=') + 1)));
            valor = Recortar(valor.substr(0, kLargoMaximo));
            return ValorLibre(DesdeOchoBits(valor));
        }
    }
    return ValorLibre(kFalta);
}

void EscribirIni(const std::string& seccion, const std::string& clave, const std::string& valor,
                 const std::string& archivo) {
    auto leidas = LineasDe(archivo);
    if (!leidas) {
        return;
    }
    std::vector<std::string>& lineas = *leidas;
    const std::string seccion8 = AOchoBits(seccion);
    const std::string clave8 = AOchoBits(clave);
    const std::string linea = clave8 + "=" + AOchoBits(valor);
    const auto tramo = BuscarSeccion(lineas, seccion8);
    if (!tramo) {
        lineas.push_back("[" + seccion8 + "]");
        lineas.push_back(linea);
    } else {
        auto existente =
            std::find_if(lineas.begin() + static_cast<long>(tramo->cabecera) + 1,
                         lineas.begin() + static_cast<long>(tramo->fin),
                         [&](const std::string& l) { return EsLineaDeClave(l, clave8); });
        if (existente != lineas.begin() + static_cast<long>(tramo->fin)) {
            *existente = linea;
        } else {
            // A new key goes behind the section's last line that is not blank.
            std::size_t donde = tramo->fin;
            while (donde > tramo->cabecera + 1 && Recortar(lineas[donde - 1]).empty()) {
                --donde;
            }
            lineas.insert(lineas.begin() + static_cast<long>(donde), linea);
        }
    }
    try {
        EscribirArchivo(archivo, UnirLineas(lineas));
    } catch (const ErrorEjecucion&) {
        // The profile call reports nothing, and no caller looks at its result.
    }
}

} // namespace vadro
