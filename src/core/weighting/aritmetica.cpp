#include "core/weighting/aritmetica.h"

#include "core/core/error_ejecucion.h"

#include <cmath>

namespace vadro {

namespace {

double Comprobado(double resultado) {
    if (!std::isfinite(resultado)) {
        throw ErrorEjecucion(ErrDesbordamiento);
    }
    return resultado;
}

} // namespace

double Sumar(double a, double b) {
    return Comprobado(a + b);
}

double Restar(double a, double b) {
    return Comprobado(a - b);
}

double Multiplicar(double a, double b) {
    return Comprobado(a * b);
}

double Dividir(double a, double b) {
    if (b == 0) {
        throw ErrorEjecucion(a == 0 ? ErrDesbordamiento : ErrDivisionCero);
    }
    return Comprobado(a / b);
}

} // namespace vadro
