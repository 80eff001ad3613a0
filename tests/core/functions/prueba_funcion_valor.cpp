#include "core/core/error_ejecucion.h"
#include "core/functions/funcion_valor.h"
#include "soporte/acta.h"

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

// A case "limits <XMin> <XMax> steps from <first start> to <last end>": closed steps open the
// limits; an open start closes the lower limit; "<" clears below but keeps its sign above; a
// bare number's first digit is no symbol; each half needs both of its values.
TEST(NormalizarLimites, TheLimitsFollowTheOuterStepsUnequally) {
    pruebas::Acta acta;
    for (const pruebas::Caso& caso : pruebas::Casos("funciones/normalizar_limites.txt")) {
        FuncionOptativo f;
        f.XMin = caso.campos.at(1);
        f.XMax = caso.campos.at(2);
        f.Escalones.Redimensionar(2);
        f.Escalones(1).ValorInicial = caso.campos.at(5);
        f.Escalones(2).ValorFinal = caso.campos.at(7);
        NormalizarLimites(f);
        EXPECT_FALSE(f.XMin.EsNumero() || f.XMax.EsNumero()) << "limits stay texts";
        acta.Fila(caso.texto, "'" + f.XMin.Texto() + "' '" + f.XMax.Texto() + "'");
    }
    acta.Comparar("funciones/normalizar_limites.txt");
    FuncionValor sinPasos;
    sinPasos.XMin = "<1";
    NormalizarLimites(sinPasos);
    EXPECT_EQ(sinPasos.XMin, ValorLibre("<1"));
}

} // namespace
} // namespace vadro
