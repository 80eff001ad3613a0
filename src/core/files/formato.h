#pragma once

#include "core/core/valor_libre.h"

#include <string>

namespace vadro {

// The print form of a number in a file: one blank before a positive number or zero, the sign
// before a negative one, and one blank behind either; no zero before the decimal point.
std::string FormaImpresa(double numero);

// A value as a file line prints it: a number in the print form, a text as it stands.
std::string FormaValor(const ValorLibre& valor);

// A scaled number: the integer part, rounded towards minus infinity, of the value times
// 1000000 in the print form; nothing at all for the empty text. So no decimal separator ever
// stands in a file, whatever the locale.
std::string NumeroEscalado(const ValorLibre& valor);

// The reverse: the empty text stays empty, anything else is divided by 1000000.
ValorLibre LeerEscalado(const ValorLibre& leido);

// Booleans are stored as "Verdadero" or "Falso"; on reading "Verdadero" and "True" are true.
std::string BooleanoArchivo(bool valor);
bool LeerBooleanoArchivo(const ValorLibre& leido);

} // namespace vadro
