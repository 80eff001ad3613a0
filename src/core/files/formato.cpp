#include "core/files/formato.h"

#include "core/core/error_ejecucion.h"

#include <cmath>

namespace vadro {

namespace {

// The print form drops the zero in front of the decimal point: 0.5 prints as ".5".
std::string SinCeroInicial(std::string texto) {
    if (texto.rfind("0.", 0) == 0) {
        texto.erase(0, 1);
    } else if (texto.rfind("-0.", 0) == 0) {
        texto.erase(1, 1);
    }
    return texto;
}

} // namespace

std::string FormaImpresa(double numero) {
    // The reader cannot read "inf" or "nan" back: such a number is refused at the save.
    if (!std::isfinite(numero)) {
        throw ErrorEjecucion(ErrDesbordamiento);
    }
    const std::string texto = SinCeroInicial(TextoNumero(numero));
    return (numero < 0 ? "" : " ") + texto + " ";
}

std::string FormaValor(const ValorLibre& valor) {
    return valor.EsNumero() ? FormaImpresa(valor.Numero()) : valor.Texto();
}

std::string NumeroEscalado(const ValorLibre& valor) {
    if (valor.EsVacio()) {
        return {};
    }
    return FormaImpresa(std::floor(valor.Numero() * 1000000));
}

ValorLibre LeerEscalado(const ValorLibre& leido) {
    if (leido.EsVacio()) {
        return leido;
    }
    return ValorLibre(leido.Numero() / 1000000);
}

std::string BooleanoArchivo(bool valor) {
    return valor ? "Verdadero" : "Falso";
}

bool LeerBooleanoArchivo(const ValorLibre& leido) {
    const std::string texto = leido.Texto();
    return texto == "Verdadero" || texto == "True";
}

} // namespace vadro
