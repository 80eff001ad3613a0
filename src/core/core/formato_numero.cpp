#include "core/core/formato_numero.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace vadro {

namespace {

constexpr int DigitosSignificativos = 15;

// The magnitude as its 15 significant digits and the power of ten of the first one.
struct Decimal {
    std::string digitos;
    int exponente = 0;
};

Decimal DescomponerDecimal(double magnitud) {
    // Independent of the locale, which the window layer sets from the user's environment.
    char texto[64];
    const auto fin = std::to_chars(texto, texto + sizeof texto, magnitud, std::chars_format::scientific,
                                   DigitosSignificativos - 1)
                         .ptr;
    const std::string escrito(texto, fin);
    const auto e = escrito.find('e');
    Decimal decimal;
    decimal.digitos = escrito.substr(0, 1) + escrito.substr(2, e - 2);
    decimal.exponente = std::atoi(escrito.c_str() + e + 1);
    return decimal;
}

// Adds one to a text of decimal digits.
std::string SumarUno(std::string digitos) {
    for (auto i = digitos.size(); i-- > 0;) {
        if (digitos[i] != '9') {
            ++digitos[i];
            return digitos;
        }
        digitos[i] = '0';
    }
    return "1" + digitos;
}

// The magnitude times 10^decimales, rounded half away from zero on its decimal text, as a text
// of digits (possibly empty for zero).
std::string DigitosRedondeados(double magnitud, int decimales) {
    const Decimal d = DescomponerDecimal(magnitud);
    const int conservados = d.exponente + 1 + decimales;
    if (conservados < 0) {
        return {};
    }
    const auto n = static_cast<std::size_t>(conservados);
    if (n >= d.digitos.size()) {
        return d.digitos + std::string(n - d.digitos.size(), '0');
    }
    const std::string cabeza = d.digitos.substr(0, n);
    return d.digitos[n] >= '5' ? SumarUno(cabeza) : cabeza;
}

std::string ConPunto(std::string digitos, int decimales) {
    const auto d = static_cast<std::size_t>(decimales);
    if (digitos.size() < d + 1) {
        digitos.insert(0, d + 1 - digitos.size(), '0');
    }
    const auto corte = digitos.size() - d;
    const auto primero = digitos.find_first_not_of('0');
    const auto inicio = primero == std::string::npos ? corte - 1 : std::min(primero, corte - 1);
    std::string entero = digitos.substr(inicio, corte - inicio);
    return decimales > 0 ? entero + "." + digitos.substr(corte) : entero;
}

} // namespace

std::string FormatoDecimal(double valor, int decimales) {
    if (!std::isfinite(valor)) {
        return TextoNumero(valor);
    }
    if (decimales < 0) {
        decimales = 0;
    }
    const std::string signo = valor < 0 ? "-" : "";
    return signo + ConPunto(DigitosRedondeados(std::fabs(valor), decimales), decimales);
}

std::string Formato00(double valor) {
    return FormatoDecimal(valor, 2);
}

std::string Formato00(const ValorLibre& valor) {
    if (valor.EsNumero()) {
        return Formato00(valor.Numero());
    }
    const auto numero = LeerNumero(valor.Texto());
    return numero ? Formato00(*numero) : valor.Texto();
}

double Redondeado00(double valor) {
    if (!std::isfinite(valor)) {
        return valor;
    }
    return *LeerNumero(Formato00(valor));
}

} // namespace vadro
