#include "core/functions/curva_continua.h"

#include "core/functions/funcion_valor.h"

#include <cmath>

namespace vadro {

namespace {

// 1 - exp(-K (|x - RMin| / D)^P). Zero to the power zero counts as 1, so P 0 gives a
// constant curve.
double Corchete(double x, double RMin, double D, double K, double P) {
    return 1 - std::exp(-K * std::pow(std::fabs(x - RMin) / D, P));
}

double RedondearCuatroDecimales(double valor) {
    return std::nearbyint(valor * 10000) / 10000;
}

template <typename Funcion> std::optional<CurvaContinua> CurvaDe(const Funcion& funcion) {
    if (funcion.RMin.EsVacio() || funcion.RMax.EsVacio() || funcion.C.EsVacio() ||
        funcion.K.EsVacio() || funcion.P.EsVacio()) {
        return std::nullopt;
    }
    const double RMin = funcion.RMin.Numero();
    const double RMax = funcion.RMax.Numero();
    const Extremos extremos = ExtremosFuncion(RMin, RMax);
    const auto inferior = static_cast<float>(extremos.Inferior);
    const auto superior = static_cast<float>(extremos.Superior);
    if (!(superior - inferior > 0)) {
        return std::nullopt;
    }
    const double D = ParametroEfectivo(LecturaC::ComoAlmacenada, funcion.C.Numero(), RMin);
    const double K = funcion.K.Numero();
    const double P = funcion.P.Numero();
    const auto B = FactorContinuo(RMin, RMax, D, K, P);
    if (!B) {
        return std::nullopt;
    }
    return CurvaContinua{RMin, RMax, D, K, P, *B, inferior, superior};
}

} // namespace

double ParametroEfectivo(LecturaC lectura, double C, double RMin) {
    return lectura == LecturaC::DistanciaDesdeRMin ? std::fabs(C - RMin) : C;
}

std::optional<double> FactorContinuo(double RMin, double RMax, double D, double K, double P) {
    if (!(D > 0)) {
        return std::nullopt;
    }
    const double denominador = Corchete(RMax, RMin, D, K, P);
    if (!(std::fabs(denominador) > 0)) {
        return std::nullopt;
    }
    return 1 / denominador;
}

std::optional<double> ValorContinuo(double x, double RMin, double RMax, double CEfectivo, double K,
                                    double P) {
    const auto B = FactorContinuo(RMin, RMax, CEfectivo, K, P);
    if (!B) {
        return std::nullopt;
    }
    return *B * Corchete(x, RMin, CEfectivo, K, P);
}

double NivelReferencia(double B, double RMin, double RMax, double D, double K, double P) {
    // A parameter that leaves no distance has no curve; the line stands at full satisfaction.
    if (!(D > 0)) {
        return 1;
    }
    return RedondearCuatroDecimales(B * Corchete(RMax, RMin, D, K, P));
}

bool CurvaEditor::Preparar(double C, double RMin, double RMax, double K, double P) {
    RMin_ = RMin;
    RMax_ = RMax;
    D_ = ParametroEfectivo(LecturaC::DistanciaDesdeRMin, C, RMin);
    K_ = K;
    P_ = P;
    const auto B = FactorContinuo(RMin, RMax, D_, K, P);
    if (B) {
        B_ = *B;
    }
    return B.has_value();
}

double CurvaEditor::Valor(double x) const {
    return B_ * Corchete(x, RMin_, D_, K_, P_);
}

double CurvaEditor::Nivel() const {
    return NivelReferencia(B_, RMin_, RMax_, D_, K_, P_);
}

double CurvaContinua::Valor(double x) const {
    return B * Corchete(x, RMin, D, K, P);
}

double CurvaContinua::Nivel() const {
    return NivelReferencia(B, RMin, RMax, D, K, P);
}

std::optional<CurvaContinua> CurvaAlmacenada(const FuncionValor& funcion) {
    return CurvaDe(funcion);
}

std::optional<CurvaContinua> CurvaAlmacenada(const FuncionOptativo& funcion) {
    return CurvaDe(funcion);
}

} // namespace vadro
