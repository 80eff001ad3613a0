#include "core/core/codigo_pagina.h"

#include <array>
#include <cstdint>

namespace vadro {

namespace {

// Characters of the codes 128 to 159, where the page departs from Latin-1.
constexpr std::array<char32_t, 32> kTramo80 = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

char32_t CaracterDeCodigo(unsigned char codigo) {
    return (codigo >= 0x80 && codigo < 0xA0) ? kTramo80[codigo - 0x80] : char32_t{codigo};
}

int CodigoDeCaracter(char32_t caracter) {
    if (caracter < 0x80 || (caracter >= 0xA0 && caracter <= 0xFF)) {
        return static_cast<int>(caracter);
    }
    for (std::size_t i = 0; i < kTramo80.size(); ++i) {
        if (kTramo80[i] == caracter) {
            return static_cast<int>(0x80 + i);
        }
    }
    return -1;
}

void AnadirUtf8(std::string& destino, char32_t c) {
    auto byte = [&destino](uint32_t b) { destino += static_cast<char>(b); };
    const auto v = static_cast<uint32_t>(c);
    if (v < 0x80) {
        byte(v);
    } else if (v < 0x800) {
        byte(0xC0 | (v >> 6));
        byte(0x80 | (v & 0x3F));
    } else if (v < 0x10000) {
        byte(0xE0 | (v >> 12));
        byte(0x80 | ((v >> 6) & 0x3F));
        byte(0x80 | (v & 0x3F));
    } else {
        byte(0xF0 | (v >> 18));
        byte(0x80 | ((v >> 12) & 0x3F));
        byte(0x80 | ((v >> 6) & 0x3F));
        byte(0x80 | (v & 0x3F));
    }
}

// Decodes the UTF-8 character at position i and moves past it; a broken sequence gives
// U+FFFD and moves one byte on.
char32_t LeerUtf8(std::string_view texto, std::size_t& i) {
    const auto primero = static_cast<unsigned char>(texto[i++]);
    if (primero < 0x80) {
        return primero;
    }
    int siguen = 0;
    char32_t valor = 0;
    if ((primero & 0xE0) == 0xC0) {
        siguen = 1;
        valor = primero & 0x1F;
    } else if ((primero & 0xF0) == 0xE0) {
        siguen = 2;
        valor = primero & 0x0F;
    } else if ((primero & 0xF8) == 0xF0) {
        siguen = 3;
        valor = primero & 0x07;
    } else {
        return 0xFFFD;
    }
    if (i + static_cast<std::size_t>(siguen) > texto.size()) {
        return 0xFFFD;
    }
    for (int k = 0; k < siguen; ++k) {
        const auto b = static_cast<unsigned char>(texto[i + static_cast<std::size_t>(k)]);
        if ((b & 0xC0) != 0x80) {
            return 0xFFFD;
        }
        valor = (valor << 6) | (b & 0x3F);
    }
    i += static_cast<std::size_t>(siguen);
    return valor;
}

} // namespace

std::string DesdeOchoBits(std::string_view ochoBits) {
    std::string utf8;
    utf8.reserve(ochoBits.size() + ochoBits.size() / 8);
    for (const char c : ochoBits) {
        const auto codigo = static_cast<unsigned char>(c);
        if (codigo < 0x80) {
            utf8 += c;
        } else {
            AnadirUtf8(utf8, CaracterDeCodigo(codigo));
        }
    }
    return utf8;
}

std::string AOchoBits(std::string_view utf8) {
    std::string ochoBits;
    ochoBits.reserve(utf8.size());
    std::size_t i = 0;
    while (i < utf8.size()) {
        if (static_cast<unsigned char>(utf8[i]) < 0x80) {
            ochoBits += utf8[i++];
            continue;
        }
        const int codigo = CodigoDeCaracter(LeerUtf8(utf8, i));
        ochoBits += codigo < 0 ? '?' : static_cast<char>(codigo);
    }
    return ochoBits;
}

unsigned char MayusculaOchoBits(unsigned char codigo) {
    if (codigo >= 'a' && codigo <= 'z') {
        return static_cast<unsigned char>(codigo - 32);
    }
    if (codigo >= 0xE0 && codigo <= 0xFE && codigo != 0xF7) {
        return static_cast<unsigned char>(codigo - 32);
    }
    switch (codigo) {
    case 0x9A: // š
    case 0x9C: // œ
    case 0x9E: // ž
        return static_cast<unsigned char>(codigo - 16);
    case 0xFF: // ÿ
        return 0x9F;
    default:
        return codigo;
    }
}

unsigned char MinusculaOchoBits(unsigned char codigo) {
    if (codigo >= 'A' && codigo <= 'Z') {
        return static_cast<unsigned char>(codigo + 32);
    }
    if (codigo >= 0xC0 && codigo <= 0xDE && codigo != 0xD7) {
        return static_cast<unsigned char>(codigo + 32);
    }
    switch (codigo) {
    case 0x8A: // Š
    case 0x8C: // Œ
    case 0x8E: // Ž
        return static_cast<unsigned char>(codigo + 16);
    case 0x9F: // Ÿ
        return 0xFF;
    default:
        return codigo;
    }
}

namespace {

// Each character of the page through `cambio`; the others, and broken sequences, as they are.
std::string CambiarCaracteres(std::string_view utf8, unsigned char (*cambio)(unsigned char)) {
    std::string resultado;
    resultado.reserve(utf8.size());
    std::size_t i = 0;
    while (i < utf8.size()) {
        const std::size_t inicio = i;
        const int codigo = CodigoDeCaracter(LeerUtf8(utf8, i));
        if (codigo < 0) {
            resultado.append(utf8.substr(inicio, i - inicio));
        } else {
            AnadirUtf8(resultado, CaracterDeCodigo(cambio(static_cast<unsigned char>(codigo))));
        }
    }
    return resultado;
}

} // namespace

std::string EnMayusculas(std::string_view utf8) {
    return CambiarCaracteres(utf8, MayusculaOchoBits);
}

std::string EnMinusculas(std::string_view utf8) {
    return CambiarCaracteres(utf8, MinusculaOchoBits);
}

} // namespace vadro
