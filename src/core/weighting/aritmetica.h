#pragma once

namespace vadro {

// Double arithmetic that fails as the classic runtime does instead of going on with an
// infinity: a result out of range is an overflow (6), a number over zero a division by
// zero (11), and zero over zero an overflow too.
double Sumar(double a, double b);
double Restar(double a, double b);
double Multiplicar(double a, double b);
double Dividir(double a, double b);

} // namespace vadro
