#include "core/core/error_ejecucion.h"
#include "core/functions/funcion_valor.h"

#include <gtest/gtest.h>

#include <cmath>
#include <tuple>

namespace vadro {
namespace {

TEST(TextoIntervalo, TheNumberIsWhateverFollowsTheFirstCharacter) {
    EXPECT_EQ(SignoIntervalo(ValorLibre("<10")), "<");
    EXPECT_EQ(NumeroIntervalo(ValorLibre(">-2.5")), -2.5);
    EXPECT_EQ(NumeroIntervalo(ValorLibre("15")), 5) << "a bare number loses its first digit";
    EXPECT_EQ(NumeroIntervalo(ValorLibre("\xE2\x89\xA4"
                                         "7")),
              7)
        << "a wide symbol goes whole";
    EXPECT_THROW((void)NumeroIntervalo(ValorLibre("=")), ErrorEjecucion);
    const Intervalo i = ValorIntervalo({">10", "=20", 0.75});
    EXPECT_EQ(std::tuple(i.Inicio, i.Fin, i.Valor), std::tuple(10.0, 20.0, 0.75));
}

TEST(ExtremosFuncion, RisingOrderAndTheEmptyLimitsRule) {
    EXPECT_EQ(ExtremosFuncion(100, 0).Inferior, 0);
    EXPECT_TRUE(std::signbit(ExtremosFuncion(0.0, -0.0).Inferior)) << "equal: Inferior is RMax";
    EXPECT_EQ(LimitesConVacios(5.0, -8.0).Maximo, -8);
    EXPECT_EQ(LimitesConVacios({}, 40.0).Maximo, 100) << "one empty limit replaces both";
    EXPECT_EQ(LimitesConVacios(30.0, {}).Minimo, 0);
}

TEST(ConvertirFuncion, CopiesTheFieldsAndLeavesOptionsAndScoresAbsent) {
    FuncionOptativo o;
    o.Clave = "O2I1C1R1";
    o.XMax = "=9";
    o.Escalones.Redimensionar(1);
    const FuncionValor f = ConvertirFuncion(o);
    EXPECT_EQ(std::tuple(f.Clave, f.XMax, f.Escalones), std::tuple(o.Clave, o.XMax, o.Escalones));
    EXPECT_FALSE(f.Optativos.Presente() || f.Puntuaciones.Presente());
}

TEST(NormalizarLimites, TheLimitsFollowTheOuterStepsUnequally) {
    struct Caso {
        const char *xmin, *inicio, *fin, *xmax, *xminNuevo, *xmaxNuevo;
    };
    for (const Caso& c : std::vector<Caso>{
             {"=3", "=0", "=9", "=50", "<0", ">9"}, // closed steps, open limits
             {"<3", ">0", ">9", "=50", "=0", ""},   // an open start closes the lower limit
             {"<3", "<5", "<9", "=50", "", "=9"},   // "<" clears below but keeps the sign above
             {"<0", "25", "<9", ">50", "<5", ">9"}, // a bare number's digit is no symbol
             {"", "=0", "", ">8", "", ">8"},        // each half needs both values
         }) {
        FuncionOptativo f;
        f.XMin = c.xmin;
        f.XMax = c.xmax;
        f.Escalones.Redimensionar(2);
        f.Escalones(1).ValorInicial = c.inicio;
        f.Escalones(2).ValorFinal = c.fin;
        NormalizarLimites(f);
        EXPECT_EQ(f.XMin, ValorLibre(c.xminNuevo)) << c.xmin << ' ' << c.inicio;
        EXPECT_EQ(f.XMax, ValorLibre(c.xmaxNuevo)) << c.xmax << ' ' << c.fin;
    }
    FuncionValor sinPasos;
    sinPasos.XMin = "<1";
    NormalizarLimites(sinPasos);
    EXPECT_EQ(sinPasos.XMin, ValorLibre("<1"));
}

} // namespace
} // namespace vadro
