#pragma once

#include "core/core/registros.h"

#include <optional>

namespace vadro {

// The continuous value function. With D the effective abscissa parameter:
//   B    = 1 / (1 - exp(-K (|RMax - RMin| / D)^P))
//   V(x) = B (1 - exp(-K (|x - RMin| / D)^P))
// so V(RMin) is 0 and V(RMax) is 1 whichever of the two is the larger. A curve that cannot be
// drawn is no error: it is simply absent, and nobody is told.

// The two readings of `C`. The editor's main drawing takes `C` as an abscissa on the axis of
// the indicator and measures it from `RMin`; the report and the small drawing of an optional
// indicator take `C` as it is stored. Both readings are kept on purpose.
enum class LecturaC { DistanciaDesdeRMin, ComoAlmacenada };
double ParametroEfectivo(LecturaC lectura, double C, double RMin);

// B, or nothing when D is not above 0 or the denominator is 0.
std::optional<double> FactorContinuo(double RMin, double RMax, double D, double K, double P);

// The satisfaction at x, or nothing where the curve does not exist.
std::optional<double> ValorContinuo(double x, double RMin, double RMax, double CEfectivo, double K,
                                    double P);

// The height of the reference line at satisfaction 1, drawn with a given B: exactly 1 when D
// leaves no distance, otherwise V(RMax) with that B, rounded to 4 decimals.
double NivelReferencia(double B, double RMin, double RMax, double D, double K, double P);

// The curve of the editor's main drawing. B survives from one drawing to the next, so after a
// drawing without a curve the reference level still comes from the last good B (0 before the
// first).
class CurvaEditor {
public:
    // Takes the parameters of a new drawing; true if it has a curve.
    bool Preparar(double C, double RMin, double RMax, double K, double P);
    double Valor(double x) const;
    double Nivel() const;
    double B() const { return B_; }
    double D() const { return D_; }

private:
    double B_ = 0;
    double RMin_ = 0;
    double RMax_ = 0;
    double D_ = 0;
    double K_ = 0;
    double P_ = 0;
};

// The curve of a stored function as the report and the small drawings see it: `C` as
// stored, and the drawing range in single precision.
struct CurvaContinua {
    double RMin;
    double RMax;
    double D;
    double K;
    double P;
    double B;
    float Inferior;
    float Superior;

    double Valor(double x) const;
    double Nivel() const;
};

// Nothing unless `RMin`, `RMax`, `C`, `K` and `P` are all defined, the range is above 0, D is
// above 0 and the denominator is not 0.
std::optional<CurvaContinua> CurvaAlmacenada(const FuncionValor& funcion);
std::optional<CurvaContinua> CurvaAlmacenada(const FuncionOptativo& funcion);

} // namespace vadro
