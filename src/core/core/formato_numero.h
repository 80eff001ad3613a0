#pragma once

#include "core/core/valor_libre.h"

#include <string>

namespace vadro {

// A number shown with a fixed number of decimals, as the classic format "0.00" does: the
// number is first written as a decimal text of 15 significant digits (the precision in which
// the system shows a double), and that text is rounded half away from zero. So 2.675, whose
// double lies just under it, still shows "2.68", and 0.285 shows "0.29". The separator is
// always ".". A negative number that rounds to nothing keeps its sign ("-0.00"); zero itself
// has none.
std::string FormatoDecimal(double valor, int decimales);

// The format "0.00", in which every weight, ratio and score is shown.
std::string Formato00(double valor);

// The same for a free value: the empty text stays empty, a number or a text that reads as one
// is formatted, and a text that is no number is shown as it stands.
std::string Formato00(const ValorLibre& valor);

// A figure as the user sees it, read back as a number: the value rounded by the format.
double Redondeado00(double valor);

} // namespace vadro
