#include "core/files/busqueda_texto.h"

#include <algorithm>
#include <cstring>
#include <functional>

namespace vadro {

namespace {

constexpr std::size_t kTrozo = 4;
constexpr unsigned kBitsHuella = 14;
constexpr std::size_t kPalabras = (std::size_t{1} << kBitsHuella) / 64;
// Passes over the whole text that searches may make before the summary pays for itself; a file
// read from start to end with no key missing makes about one.
constexpr std::size_t kPasadasSinResumen = 3;
// What looking at a block's summary is charged, in bytes read: a search that only skips
// blocks still costs time in proportion to the text.
constexpr std::size_t kCosteBloque = BuscadorTexto::kBloque / 128;

std::uint32_t Trozo(const char* p) {
    std::uint32_t valor = 0;
    std::memcpy(&valor, p, kTrozo);
    return valor;
}

// The bit of a piece in a block's set: a multiplicative hash, the top bits.
std::uint32_t Huella(std::uint32_t trozo) {
    return (trozo * 0x9E3779B1u) >> (32 - kBitsHuella);
}

const char* Primera(const char* inicio, std::size_t largo, std::string_view buscado) {
#if defined(__GLIBC__) || defined(__APPLE__)
    return static_cast<const char*>(memmem(inicio, largo, buscado.data(), buscado.size()));
#else
    const std::string_view tramo(inicio, largo);
    const auto donde = tramo.find(buscado);
    return donde == std::string_view::npos ? nullptr : inicio + donde;
#endif
}

} // namespace

std::size_t BuscadorTexto::Buscar(std::string_view texto, std::string_view buscado,
                                  std::size_t desde, std::size_t hasta, std::size_t& leidos) {
    hasta = std::min(hasta, texto.size());
    if (desde > hasta || buscado.size() > hasta - desde) {
        return kNoEncontrado;
    }
    const bool porBloques = Resumido() && buscado.size() >= kTrozo && buscado.size() <= kBloque;
    if (porBloques) {
        return BuscarPorBloques(texto, buscado, desde, hasta, leidos);
    }
    const std::size_t antes = leidos;
    const std::size_t donde = BuscarEnTramo(texto, buscado, desde, hasta, leidos);
    leidosSinResumen_ += leidos - antes;
    if (!Resumido() && leidosSinResumen_ > kPasadasSinResumen * texto.size() &&
        texto.size() > kBloque) {
        Resumir(texto);
    }
    return donde;
}

std::size_t BuscadorTexto::BuscarEnTramo(std::string_view texto, std::string_view buscado,
                                         std::size_t desde, std::size_t hasta,
                                         std::size_t& leidos) {
    const char* inicio = texto.data() + desde;
    const char* hallado = Primera(inicio, hasta - desde, buscado);
    if (hallado == nullptr) {
        leidos += hasta - desde;
        return kNoEncontrado;
    }
    const auto donde = static_cast<std::size_t>(hallado - texto.data());
    leidos += donde + buscado.size() - desde;
    return donde;
}

// An occurrence that starts in a block ends in that block or the next, so every piece of it
// stands in one of the two: a block whose pair lacks a piece cannot hold the start of one.
std::size_t BuscadorTexto::BuscarPorBloques(std::string_view texto, std::string_view buscado,
                                            std::size_t desde, std::size_t hasta,
                                            std::size_t& leidos) const {
    std::vector<std::uint32_t> huellas;
    huellas.reserve(buscado.size() - kTrozo + 1);
    for (std::size_t i = 0; i + kTrozo <= buscado.size(); ++i) {
        huellas.push_back(Huella(Trozo(buscado.data() + i)));
    }
    const std::size_t ultimo = (hasta - buscado.size()) / kBloque;
    for (std::size_t bloque = desde / kBloque; bloque <= ultimo; ++bloque) {
        leidos += kCosteBloque;
        if (!BloquePuedeTener(bloque, huellas)) {
            continue;
        }
        const std::size_t inicio = std::max(desde, bloque * kBloque);
        const std::size_t fin = std::min(hasta, (bloque + 1) * kBloque + buscado.size() - 1);
        if (fin - inicio < buscado.size()) {
            continue;
        }
        const std::size_t donde = BuscarEnTramo(texto, buscado, inicio, fin, leidos);
        if (donde != kNoEncontrado) {
            return donde;
        }
    }
    return kNoEncontrado;
}

bool BuscadorTexto::BloquePuedeTener(std::size_t bloque,
                                     const std::vector<std::uint32_t>& huellas) const {
    const std::uint64_t* este = resumen_.data() + bloque * kPalabras;
    const bool haySiguiente = (bloque + 1) * kPalabras < resumen_.size();
    const std::uint64_t* siguiente = haySiguiente ? este + kPalabras : nullptr;
    return std::all_of(huellas.begin(), huellas.end(), [&](std::uint32_t huella) {
        std::uint64_t palabra = este[huella / 64];
        if (siguiente != nullptr) {
            palabra |= siguiente[huella / 64];
        }
        return (palabra >> (huella % 64) & 1u) != 0;
    });
}

void BuscadorTexto::Resumir(std::string_view texto) {
    const std::size_t bloques = texto.size() / kBloque + 1;
    resumen_.assign(bloques * kPalabras, 0);
    if (texto.size() < kTrozo) {
        return;
    }
    for (std::size_t p = 0; p + kTrozo <= texto.size(); ++p) {
        const std::uint32_t huella = Huella(Trozo(texto.data() + p));
        resumen_[(p / kBloque) * kPalabras + huella / 64] |= std::uint64_t{1} << (huella % 64);
    }
}

} // namespace vadro
