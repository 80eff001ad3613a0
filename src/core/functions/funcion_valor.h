#pragma once

#include "core/core/registros.h"

#include <string>

namespace vadro {

// Limits and step bounds are interval texts: one symbol of "=", "<", ">" followed by the
// number. The number is whatever follows the first character; the whole text is never parsed
// as a number, so a text without a symbol loses its first digit to the symbol.

// The first character of the text; the empty text for an undefined value.
std::string SignoIntervalo(const ValorLibre& intervalo);
// The text behind the first character.
std::string TextoNumeroIntervalo(const ValorLibre& intervalo);
// That text read as a number; a text that is no number is a type mismatch.
double NumeroIntervalo(const ValorLibre& intervalo);

// The two reference limits in rising order. Equal limits take the decreasing branch.
struct Extremos {
    double Inferior;
    double Superior;
};
Extremos ExtremosFuncion(double RMin, double RMax);

// The numbers a drawing or a range uses for the reference limits: with either of them
// undefined, 0 and 100 take the place of both.
struct LimitesReferencia {
    double Minimo;
    double Maximo;
};
LimitesReferencia LimitesConVacios(const ValorLibre& RMin, const ValorLibre& RMax);

// A step's satisfaction and its two bounds without their symbols.
struct Intervalo {
    double Valor;
    double Inicio;
    double Fin;
};
Intervalo ValorIntervalo(const Escalon& escalon);

// The function of an optional indicator as a plain value function, field by field; the
// options and the scoring elements stay absent.
FuncionValor ConvertirFuncion(const FuncionOptativo& funcion);

// Makes the limits of a step function follow its outer steps: the lower limit against the
// start of the first step, the upper limit against the end of the last one, each only when
// both values are defined. A function without steps keeps its limits.
void NormalizarLimites(FuncionValor& funcion);
void NormalizarLimites(FuncionOptativo& funcion);

} // namespace vadro
