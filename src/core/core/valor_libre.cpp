#include "core/core/valor_libre.h"

#include "core/core/error_ejecucion.h"

#include <cctype>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>

namespace vadro {

bool ValorLibre::EsVacio() const {
    const auto* texto = std::get_if<std::string>(&valor_);
    return texto != nullptr && texto->empty();
}

double ValorLibre::Numero() const {
    if (const auto* numero = std::get_if<double>(&valor_)) {
        return *numero;
    }
    const auto leido = LeerNumero(std::get<std::string>(valor_));
    if (!leido) {
        throw ErrorEjecucion(ErrTipos);
    }
    return *leido;
}

std::string ValorLibre::Texto() const {
    if (const auto* numero = std::get_if<double>(&valor_)) {
        return TextoNumero(*numero);
    }
    return std::get<std::string>(valor_);
}

bool HayElementos(const ValorLibre& cuenta) { return !cuenta.EsVacio() && cuenta.Numero() > 0; }

int ValorLibre::Cuenta() const {
    return EsVacio() ? 0 : AEntero16(*this);
}

namespace {

bool EsBlanco(char c) {
    return c == ' ' || c == '\t';
}

bool EsDigito(char c) {
    return std::isdigit(static_cast<unsigned char>(c)) != 0;
}

// Collects the digits at position i into the buffer, and says how many it took.
std::size_t TomarDigitos(std::string_view texto, std::size_t& i, std::string& destino) {
    std::size_t tomados = 0;
    while (i < texto.size() && EsDigito(texto[i])) {
        destino += texto[i++];
        ++tomados;
    }
    return tomados;
}

} // namespace

std::optional<double> LeerNumero(std::string_view texto) {
    std::size_t i = 0;
    while (i < texto.size() && EsBlanco(texto[i])) {
        ++i;
    }
    std::string limpio;
    if (i < texto.size() && (texto[i] == '+' || texto[i] == '-')) {
        if (texto[i] == '-') {
            limpio += '-';
        }
        ++i;
    }
    std::size_t digitos = TomarDigitos(texto, i, limpio);
    if (i < texto.size() && (texto[i] == '.' || texto[i] == ',')) {
        limpio += '.';
        ++i;
        digitos += TomarDigitos(texto, i, limpio);
    }
    if (digitos == 0) {
        return std::nullopt;
    }
    if (i < texto.size() && std::string_view("EeDd").find(texto[i]) != std::string_view::npos) {
        limpio += 'e';
        ++i;
        if (i < texto.size() && (texto[i] == '+' || texto[i] == '-')) {
            limpio += texto[i++];
        }
        if (TomarDigitos(texto, i, limpio) == 0) {
            return std::nullopt;
        }
    }
    while (i < texto.size() && EsBlanco(texto[i])) {
        ++i;
    }
    if (i != texto.size()) {
        return std::nullopt;
    }
    // from_chars ignores the locale, which the window layer sets from the user's environment.
    double numero = 0;
    const auto [fin, error] = std::from_chars(limpio.data(), limpio.data() + limpio.size(), numero);
    if (error == std::errc::result_out_of_range) {
        if (limpio.find("e-") != std::string::npos) {
            return 0.0; // too small to hold: it reads as zero
        }
        throw ErrorEjecucion(ErrDesbordamiento);
    }
    if (error != std::errc() || fin != limpio.data() + limpio.size()) {
        return std::nullopt;
    }
    if (!std::isfinite(numero)) {
        throw ErrorEjecucion(ErrDesbordamiento);
    }
    return numero;
}

std::string TextoNumero(double numero) {
    if (numero == 0) {
        return "0";
    }
    char buffer[40];
    const auto fin =
        std::to_chars(buffer, buffer + sizeof buffer, numero, std::chars_format::general, 15).ptr;
    std::string texto(buffer, fin);
    for (char& c : texto) {
        if (c == 'e') {
            c = 'E';
        }
    }
    return texto;
}

namespace {

template <typename Entero> Entero RedondearEntero(double numero) {
    if (std::isnan(numero)) {
        throw ErrorEjecucion(ErrDesbordamiento);
    }
    const double redondeado = std::nearbyint(numero); // the default mode rounds half to even
    if (redondeado < static_cast<double>(std::numeric_limits<Entero>::min()) ||
        redondeado > static_cast<double>(std::numeric_limits<Entero>::max())) {
        throw ErrorEjecucion(ErrDesbordamiento);
    }
    return static_cast<Entero>(redondeado);
}

} // namespace

int16_t AEntero16(double numero) {
    return RedondearEntero<int16_t>(numero);
}
int32_t AEntero32(double numero) {
    return RedondearEntero<int32_t>(numero);
}
int16_t AEntero16(const ValorLibre& valor) {
    return AEntero16(valor.Numero());
}
int32_t AEntero32(const ValorLibre& valor) {
    return AEntero32(valor.Numero());
}

} // namespace vadro
