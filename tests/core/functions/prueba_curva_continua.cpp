#include "core/functions/curva_continua.h"

#include <gtest/gtest.h>

#include <cmath>

namespace vadro {
namespace {

FuncionValor Continua(ValorLibre RMin, ValorLibre RMax, ValorLibre C, ValorLibre K, ValorLibre P) {
    FuncionValor f;
    f.Tipo = FuncionContinua;
    f.RMin = RMin;
    f.RMax = RMax;
    f.C = C;
    f.K = K;
    f.P = P;
    return f;
}

TEST(ValorContinuo, GoesFromZeroAtRMinToOneAtRMax) {
    for (const auto& [RMin, RMax] : {std::pair{20.0, 100.0}, std::pair{100.0, 0.0}}) {
        const double D = std::fabs(RMax - RMin) / 2;
        EXPECT_NEAR(*ValorContinuo(RMin, RMin, RMax, D, 0.5, 3), 0, 1e-12);
        EXPECT_NEAR(*ValorContinuo(RMax, RMin, RMax, D, 0.5, 3), 1, 1e-12);
    }
}

TEST(ValorContinuo, ADecreasingFunctionMeasuresFromRMinToo) {
    // RMin 100 and RMax 0: the value at 0 is 1, at 100 it is 0, and at 50 it is the rising
    // curve's value at the same distance from RMin (0.4551 with D 50, K 0.5, P 2).
    EXPECT_NEAR(*ValorContinuo(0, 100, 0, 50, 0.5, 2), 1, 1e-12);
    EXPECT_NEAR(*ValorContinuo(100, 100, 0, 50, 0.5, 2), 0, 1e-12);
    EXPECT_NEAR(*ValorContinuo(50, 100, 0, 50, 0.5, 2), 0.455054, 1e-6);
    EXPECT_NEAR(*ValorContinuo(50, 100, 0, 50, 0.5, 2), *ValorContinuo(150, 100, 200, 50, 0.5, 2),
                1e-12);
}

TEST(ValorContinuo, TheTwoReadingsOfCGiveTwoCurves) {
    // RMin 20, RMax 100, C 60, K 0.5, P 3: the editor measures C from RMin (D 40), the report
    // takes it as stored (D 60). Hand values at x 60: 0.40081 and 0.19832.
    const double editor = ParametroEfectivo(LecturaC::DistanciaDesdeRMin, 60, 20);
    const double informe = ParametroEfectivo(LecturaC::ComoAlmacenada, 60, 20);
    EXPECT_EQ(editor, 40);
    EXPECT_EQ(informe, 60);
    EXPECT_NEAR(*ValorContinuo(60, 20, 100, editor, 0.5, 3), 0.400810, 1e-6);
    EXPECT_NEAR(*ValorContinuo(60, 20, 100, informe, 0.5, 3), 0.198321, 1e-6);
    for (const double D : {editor, informe}) {
        EXPECT_NEAR(*ValorContinuo(20, 20, 100, D, 0.5, 3), 0, 1e-12);
        EXPECT_NEAR(*ValorContinuo(100, 20, 100, D, 0.5, 3), 1, 1e-12);
    }
    EXPECT_EQ(ParametroEfectivo(LecturaC::DistanciaDesdeRMin, 10, 20), 10) << "a distance";
}

TEST(ValorContinuo, NoCurveWithoutDistanceOrWithAZeroDenominator) {
    EXPECT_FALSE(ValorContinuo(50, 20, 100, 0, 0.5, 3)) << "C at RMin in the editor";
    EXPECT_FALSE(ValorContinuo(50, 20, 100, -5, 0.5, 3));
    EXPECT_FALSE(ValorContinuo(50, 20, 100, 40, 0, 3)) << "K 0";
    EXPECT_FALSE(ValorContinuo(50, 20, 20, 40, 0.5, 3)) << "no range";
    EXPECT_FALSE(FactorContinuo(20, 100, std::nan(""), 0.5, 3));
}

TEST(ValorContinuo, PZeroGivesTheConstantOneEvenAtRMin) {
    for (const double x : {20.0, 35.0, 100.0}) {
        EXPECT_DOUBLE_EQ(*ValorContinuo(x, 20, 100, 40, 0.5, 0), 1) << x;
    }
}

TEST(NivelReferencia, OneWithoutDistanceOtherwiseRoundedToFourDecimals) {
    EXPECT_EQ(NivelReferencia(0, 20, 100, 0, 0.5, 3), 1);
    EXPECT_EQ(NivelReferencia(7, 20, 100, 0, 0, 3), 1) << "B does not matter without distance";
    // With K large the bracket is 1 within double precision, so the level is B rounded.
    EXPECT_DOUBLE_EQ(NivelReferencia(0.123456789, 0, 100, 10, 100, 1), 0.1235);
    EXPECT_DOUBLE_EQ(NivelReferencia(0.12344, 0, 100, 10, 100, 1), 0.1234);
}

TEST(NivelReferencia, EveryDrawableCurveReachesExactlyOne) {
    for (const double K : {0.01, 0.3, 0.5, 0.99, 1.0}) {
        for (const double P : {0.0, 0.5, 1.0, 3.0, 7.5}) {
            for (const double C : {21.0, 37.3, 60.0, 99.9}) {
                CurvaEditor curva;
                ASSERT_TRUE(curva.Preparar(C, 20, 100, K, P));
                EXPECT_EQ(curva.Nivel(), 1.0) << K << ' ' << P << ' ' << C;
            }
        }
    }
}

TEST(CurvaEditor, KeepsTheLastGoodFactorAfterADrawingWithoutCurve) {
    CurvaEditor nueva;
    EXPECT_FALSE(nueva.Preparar(60, 20, 100, 0, 3));
    EXPECT_EQ(nueva.B(), 0) << "no good drawing yet";
    EXPECT_EQ(nueva.Nivel(), 0);

    CurvaEditor curva;
    ASSERT_TRUE(curva.Preparar(60, 20, 100, 0.5, 3));
    const double bueno = curva.B();
    EXPECT_NEAR(curva.Valor(60), 0.400810, 1e-6);
    EXPECT_FALSE(curva.Preparar(60, 20, 100, 0, 3)) << "K 0: denominator 0";
    EXPECT_EQ(curva.B(), bueno);
    EXPECT_EQ(curva.Nivel(), 0) << "the old B times the new, empty bracket";
    EXPECT_FALSE(curva.Preparar(20, 20, 100, 0.5, 3)) << "C at RMin";
    EXPECT_EQ(curva.B(), bueno);
    EXPECT_EQ(curva.Nivel(), 1);
}

TEST(CurvaAlmacenada, NeedsAllFiveValuesARangeAndAPositiveC) {
    const FuncionValor buena = Continua(20.0, 100.0, 60.0, 0.5, 3.0);
    const auto curva = CurvaAlmacenada(buena);
    ASSERT_TRUE(curva);
    EXPECT_EQ(curva->D, 60) << "C as stored";
    EXPECT_NEAR(curva->Valor(60), 0.198321, 1e-6);
    EXPECT_EQ(curva->Nivel(), 1);
    EXPECT_EQ(curva->Inferior, 20.0f);
    EXPECT_EQ(curva->Superior, 100.0f);

    for (int vacio = 0; vacio < 5; ++vacio) {
        FuncionValor f = buena;
        ValorLibre* campos[] = {&f.RMin, &f.RMax, &f.C, &f.K, &f.P};
        *campos[vacio] = ValorLibre();
        EXPECT_FALSE(CurvaAlmacenada(f)) << vacio;
    }
    EXPECT_FALSE(CurvaAlmacenada(Continua(50.0, 50.0, 60.0, 0.5, 3.0))) << "no range";
    EXPECT_FALSE(CurvaAlmacenada(Continua(20.0, 100.0, 0.0, 0.5, 3.0)));
    EXPECT_FALSE(CurvaAlmacenada(Continua(20.0, 100.0, -60.0, 0.5, 2.0)));
    EXPECT_FALSE(CurvaAlmacenada(Continua(20.0, 100.0, 60.0, 0.0, 3.0)));
}

TEST(CurvaAlmacenada, ARangeBelowSinglePrecisionIsNoRange) {
    EXPECT_FALSE(CurvaAlmacenada(Continua(1.0, 1.0 + 1e-12, 1.0, 0.5, 1.0)));
}

TEST(CurvaAlmacenada, TheOptionalIndicatorReadsTheSameWay) {
    FuncionOptativo o;
    o.RMin = 100.0;
    o.RMax = 0.0;
    o.C = 50.0;
    o.K = 0.5;
    o.P = 2.0;
    const auto curva = CurvaAlmacenada(o);
    ASSERT_TRUE(curva);
    EXPECT_EQ(curva->Inferior, 0.0f);
    EXPECT_EQ(curva->Superior, 100.0f);
    EXPECT_NEAR(curva->Valor(0), 1, 1e-12);
    EXPECT_NEAR(curva->Valor(50), 0.455054, 1e-6);
}

} // namespace
} // namespace vadro
