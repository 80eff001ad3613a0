#include "core/functions/curva_continua.h"

#include <gtest/gtest.h>

namespace vadro {
namespace {

TEST(ValorContinuo, TheTwoReadingsOfCGiveTwoCurvesThroughTheSameEnds) {
    // RMin 20, RMax 100, C 60, K 0.5, P 3: the editor's D is 40, the stored one 60; by hand
    // the values at 60 are 0.40081 and 0.19832.
    const double editor = ParametroEfectivo(LecturaC::DistanciaDesdeRMin, 60, 20);
    const double informe = ParametroEfectivo(LecturaC::ComoAlmacenada, 60, 20);
    EXPECT_NEAR(*ValorContinuo(60, 20, 100, editor, 0.5, 3), 0.400810, 1e-6);
    EXPECT_NEAR(*ValorContinuo(60, 20, 100, informe, 0.5, 3), 0.198321, 1e-6);
    for (const double D : {editor, informe}) {
        EXPECT_NEAR(*ValorContinuo(20, 20, 100, D, 0.5, 3), 0, 1e-12);
        EXPECT_NEAR(*ValorContinuo(100, 20, 100, D, 0.5, 3), 1, 1e-12);
    }
    EXPECT_NEAR(*ValorContinuo(0, 100, 0, 50, 0.5, 2), 1, 1e-12) << "decreasing";
    EXPECT_NEAR(*ValorContinuo(50, 100, 0, 50, 0.5, 2), 0.455054, 1e-6);
}

TEST(ValorContinuo, GuardsGiveNoCurveAndPZeroGivesOne) {
    EXPECT_FALSE(ValorContinuo(50, 20, 100, 0, 0.5, 3)) << "C at RMin in the editor";
    EXPECT_FALSE(ValorContinuo(50, 20, 100, -5, 0.5, 3));
    EXPECT_FALSE(ValorContinuo(50, 20, 100, 40, 0, 3)) << "K 0: denominator 0";
    EXPECT_FALSE(ValorContinuo(50, 20, 20, 40, 0.5, 3)) << "no range";
    EXPECT_DOUBLE_EQ(*ValorContinuo(20, 20, 100, 40, 0.5, 0), 1) << "0 to the power 0 is 1";
}

TEST(NivelReferencia, RoundedToFourDecimalsFromTheLastGoodFactor) {
    EXPECT_DOUBLE_EQ(NivelReferencia(0.123456789, 0, 100, 10, 100, 1), 0.1235);
    CurvaEditor curva;
    EXPECT_FALSE(curva.Preparar(60, 20, 100, 0, 3));
    EXPECT_EQ(curva.Nivel(), 0) << "no good drawing yet: B is 0";
    for (const double P : {0.0, 0.5, 3.0, 7.5}) {
        ASSERT_TRUE(curva.Preparar(37.3, 20, 100, 0.3, P));
        EXPECT_EQ(curva.Nivel(), 1.0) << P;
    }
    const double bueno = curva.B();
    EXPECT_FALSE(curva.Preparar(60, 20, 100, 0, 3));
    EXPECT_EQ(curva.B(), bueno) << "kept from the last good drawing";
    EXPECT_EQ(curva.Nivel(), 0) << "the old B times the new, empty bracket";
    EXPECT_FALSE(curva.Preparar(20, 20, 100, 0.5, 3));
    EXPECT_EQ(curva.Nivel(), 1) << "no distance: exactly 1";
}

TEST(CurvaAlmacenada, NeedsFiveValuesARangeAPositiveCAndADenominator) {
    FuncionOptativo buena;
    buena.RMin = 100.0;
    buena.RMax = 0.0;
    buena.C = 50.0;
    buena.K = 0.5;
    buena.P = 2.0;
    const auto curva = CurvaAlmacenada(buena);
    ASSERT_TRUE(curva);
    EXPECT_EQ(std::pair(curva->Inferior, curva->Superior), std::pair(0.0f, 100.0f));
    EXPECT_NEAR(curva->Valor(50), 0.455054, 1e-6) << "C as stored";
    for (ValorLibre FuncionOptativo::*campo :
         {&FuncionOptativo::RMin, &FuncionOptativo::RMax, &FuncionOptativo::C, &FuncionOptativo::K,
          &FuncionOptativo::P}) {
        FuncionOptativo f = buena;
        f.*campo = ValorLibre();
        EXPECT_FALSE(CurvaAlmacenada(f));
    }
    FuncionOptativo f = buena;
    f.RMax = 100 + 1e-12;
    EXPECT_FALSE(CurvaAlmacenada(f)) << "a range below single precision";
    f = buena;
    f.C = -50.0;
    EXPECT_FALSE(CurvaAlmacenada(f));
}

} // namespace
} // namespace vadro
