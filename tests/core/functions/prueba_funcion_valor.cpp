#include "core/core/error_ejecucion.h"
#include "core/functions/funcion_valor.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>

namespace vadro {
namespace {

int NumeroDeError(const std::function<void()>& accion) {
    try {
        accion();
    } catch (const ErrorEjecucion& e) {
        return e.Numero();
    }
    return 0;
}

Escalon Paso(const char* inicio, const char* fin, double valor) {
    return {ValorLibre(inicio), ValorLibre(fin), ValorLibre(valor)};
}

FuncionValor ConPasos(const char* xmin, const char* xmax, std::vector<Escalon> pasos) {
    FuncionValor f;
    f.Tipo = FuncionEscalon;
    f.XMin = ValorLibre(xmin);
    f.XMax = ValorLibre(xmax);
    f.Escalones.Redimensionar(static_cast<int>(pasos.size()));
    for (int n = 1; n <= f.Escalones.Cota(); ++n) {
        f.Escalones(n) = pasos[static_cast<std::size_t>(n - 1)];
    }
    return f;
}

TEST(TextoIntervalo, TheSymbolIsTheFirstCharacterAndTheNumberTheRest) {
    EXPECT_EQ(SignoIntervalo(ValorLibre("<10")), "<");
    EXPECT_EQ(TextoNumeroIntervalo(ValorLibre("<10")), "10");
    EXPECT_EQ(NumeroIntervalo(ValorLibre("=2.5")), 2.5);
    EXPECT_EQ(NumeroIntervalo(ValorLibre(">-3")), -3);
    EXPECT_EQ(NumeroIntervalo(ValorLibre("=1E-06")), 0.000001);
    EXPECT_EQ(SignoIntervalo(ValorLibre()), "");
    EXPECT_EQ(TextoNumeroIntervalo(ValorLibre()), "");
}

TEST(TextoIntervalo, ATextWithoutSymbolLosesItsFirstDigit) {
    EXPECT_EQ(SignoIntervalo(ValorLibre("15")), "1");
    EXPECT_EQ(NumeroIntervalo(ValorLibre("15")), 5);
    EXPECT_EQ(SignoIntervalo(ValorLibre(15.0)), "1") << "a number is split like its text";
    EXPECT_EQ(NumeroDeError([] { (void)NumeroIntervalo(ValorLibre("=")); }), ErrTipos);
    EXPECT_EQ(NumeroDeError([] { (void)NumeroIntervalo(ValorLibre("<abc")); }), ErrTipos);
}

TEST(TextoIntervalo, ASymbolOutsideAsciiIsDroppedWhole) {
    EXPECT_EQ(SignoIntervalo(ValorLibre("\xE2\x89\xA4"
                                        "5")),
              "\xE2\x89\xA4");
    EXPECT_EQ(NumeroIntervalo(ValorLibre("\xC2\xBA"
                                         "7")),
              7);
}

TEST(ExtremosFuncion, RisingOrderWithEqualityOnTheDecreasingBranch) {
    const Extremos creciente = ExtremosFuncion(20, 100);
    EXPECT_EQ(creciente.Inferior, 20);
    EXPECT_EQ(creciente.Superior, 100);
    const Extremos decreciente = ExtremosFuncion(100, 0);
    EXPECT_EQ(decreciente.Inferior, 0);
    EXPECT_EQ(decreciente.Superior, 100);
    // Equal limits are told apart only by the sign of zero: Inferior comes from RMax.
    const Extremos iguales = ExtremosFuncion(0.0, -0.0);
    EXPECT_TRUE(std::signbit(iguales.Inferior));
    EXPECT_FALSE(std::signbit(iguales.Superior));
}

TEST(LimitesConVacios, EitherEmptyLimitReplacesBoth) {
    const auto definidos = LimitesConVacios(ValorLibre(5.0), ValorLibre(-8.0));
    EXPECT_EQ(definidos.Minimo, 5);
    EXPECT_EQ(definidos.Maximo, -8);
    for (const auto& [minimo, maximo] :
         {std::pair{ValorLibre(), ValorLibre(40.0)}, std::pair{ValorLibre(30.0), ValorLibre()},
          std::pair{ValorLibre(), ValorLibre()}}) {
        const auto limites = LimitesConVacios(minimo, maximo);
        EXPECT_EQ(limites.Minimo, 0);
        EXPECT_EQ(limites.Maximo, 100);
    }
}

TEST(ValorIntervalo, GivesTheValueAndBothBoundsWithoutSymbols) {
    const Intervalo i = ValorIntervalo(Paso(">10", "=20", 0.75));
    EXPECT_EQ(i.Inicio, 10);
    EXPECT_EQ(i.Fin, 20);
    EXPECT_EQ(i.Valor, 0.75);
    Escalon vacio = Paso("=0", "<5", 0);
    vacio.Valor = ValorLibre();
    EXPECT_EQ(NumeroDeError([&] { (void)ValorIntervalo(vacio); }), ErrTipos)
        << "an empty cell is no number";
}

TEST(ConvertirFuncion, CopiesEveryFieldAndLeavesTheListsAbsent) {
    FuncionOptativo o;
    o.Nombre = "caudal";
    o.Clave = "O2I1C1R1";
    o.Tipo = FuncionEscalon;
    o.Unidades = "m3/s";
    o.XMin = "<0";
    o.XMax = "=9";
    o.RMin = 0.0;
    o.RMax = 9.0;
    o.C = 4.0;
    o.K = 0.5;
    o.P = 2.0;
    o.Escalones.Redimensionar(1);
    o.Escalones(1) = Paso("=0", "=9", 1);
    const FuncionValor f = ConvertirFuncion(o);
    EXPECT_EQ(f.Nombre, o.Nombre);
    EXPECT_EQ(f.Clave, o.Clave);
    EXPECT_EQ(f.Tipo, o.Tipo);
    EXPECT_EQ(f.Unidades, o.Unidades);
    EXPECT_EQ(f.XMin, o.XMin);
    EXPECT_EQ(f.XMax, o.XMax);
    EXPECT_EQ(f.RMin, o.RMin);
    EXPECT_EQ(f.RMax, o.RMax);
    EXPECT_EQ(f.C, o.C);
    EXPECT_EQ(f.K, o.K);
    EXPECT_EQ(f.P, o.P);
    EXPECT_EQ(f.Escalones, o.Escalones);
    EXPECT_EQ(f.OptativoSeleccionado, 0);
    EXPECT_FALSE(f.Optativos.Presente());
    EXPECT_FALSE(f.Puntuaciones.Presente());
}

TEST(NormalizarLimites, TheLowerLimitFollowsTheFirstStep) {
    FuncionValor cerrado = ConPasos("=3", "", {Paso("=0", "<5", 0), Paso("=5", "=9", 1)});
    NormalizarLimites(cerrado);
    EXPECT_EQ(cerrado.XMin, ValorLibre("<0")) << "a closed first step means an open limit";

    FuncionValor abierto = ConPasos("<3", "", {Paso(">0", "=9", 1)});
    NormalizarLimites(abierto);
    EXPECT_EQ(abierto.XMin, ValorLibre("=0")) << "an open first step means a closed limit";

    FuncionValor borrado = ConPasos("<3", "", {Paso("<5", "=9", 1)});
    NormalizarLimites(borrado);
    EXPECT_TRUE(borrado.XMin.EsVacio());
}

TEST(NormalizarLimites, TheUpperLimitFollowsTheLastStepButKeepsItsSymbolAfterAnOpenEnd) {
    FuncionValor cerrado = ConPasos("", "=50", {Paso("=0", "<5", 0), Paso("=5", "=9", 1)});
    NormalizarLimites(cerrado);
    EXPECT_EQ(cerrado.XMax, ValorLibre(">9"));

    FuncionValor borrado = ConPasos("", "=50", {Paso("=0", ">9", 1)});
    NormalizarLimites(borrado);
    EXPECT_TRUE(borrado.XMax.EsVacio());

    // The lower end would turn "<" into a cleared limit; the upper end only takes the number.
    FuncionValor abierto = ConPasos("", "=50", {Paso("=0", "<9", 1)});
    NormalizarLimites(abierto);
    EXPECT_EQ(abierto.XMax, ValorLibre("=9"));
    FuncionValor otroSigno = ConPasos("", ">50", {Paso("=0", "<9", 1)});
    NormalizarLimites(otroSigno);
    EXPECT_EQ(otroSigno.XMax, ValorLibre(">9"));
}

TEST(NormalizarLimites, EachHalfRunsOnlyWhenBothValuesAreDefined) {
    FuncionValor sinLimites = ConPasos("", "", {Paso("=0", "=9", 1)});
    NormalizarLimites(sinLimites);
    EXPECT_TRUE(sinLimites.XMin.EsVacio());
    EXPECT_TRUE(sinLimites.XMax.EsVacio());

    FuncionValor pasoVacio = ConPasos("<1", ">8", {Paso("", "", 1)});
    NormalizarLimites(pasoVacio);
    EXPECT_EQ(pasoVacio.XMin, ValorLibre("<1"));
    EXPECT_EQ(pasoVacio.XMax, ValorLibre(">8"));

    FuncionValor sinPasos = ConPasos("<1", ">8", {});
    NormalizarLimites(sinPasos);
    EXPECT_EQ(sinPasos.XMin, ValorLibre("<1"));
    FuncionValor ausente;
    ausente.XMin = "<1";
    NormalizarLimites(ausente);
    EXPECT_EQ(ausente.XMin, ValorLibre("<1"));
}

TEST(NormalizarLimites, AStepWithoutSymbolGivesItsFirstDigitAsTheSymbol) {
    FuncionValor f = ConPasos("<0", "", {Paso("25", "=30", 1)});
    NormalizarLimites(f);
    EXPECT_EQ(f.XMin, ValorLibre("<5")) << "'2' is no known symbol: the limit keeps its own";
}

TEST(NormalizarLimites, TheOptionalIndicatorFormDoesTheSame) {
    FuncionOptativo o;
    o.XMin = "=1";
    o.XMax = "=2";
    o.Escalones.Redimensionar(2);
    o.Escalones(1) = Paso("=4", "<6", 0);
    o.Escalones(2) = Paso("=6", "=7", 1);
    NormalizarLimites(o);
    EXPECT_EQ(o.XMin, ValorLibre("<4"));
    EXPECT_EQ(o.XMax, ValorLibre(">7"));
}

} // namespace
} // namespace vadro
