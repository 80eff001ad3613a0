#include "core/core/error_ejecucion.h"
#include "core/core/formato_numero.h"
#include "core/weighting/conjunto_pesos.h"
#include "referencia_ahp.h"
#include "soporte/modelo_sano.h"
#include "soporte/prueba_sesion.h"

#include <gtest/gtest.h>

namespace vadro {
namespace {

// Two requirements; the first has criteria A (two subcriteria and one direct indicator),
// B (indicators only) and C. The set under edit is A, B, C.
class ConjuntoPesos : public pruebas::PruebaSesion {
protected:
    ConjuntoPesos() {
        using namespace pruebas;
        sesion().modelo = ModeloCon(
            {Requerimiento(
                 "Coste", {pruebas::Criterio("A", {Indicador("IA")},
                                             {Subcriterio("S1", {}),
                                              Subcriterio("S2", {Indicador("X"), Indicador("Y")})}),
                           pruebas::Criterio("B", {Indicador("J1"), Indicador("J2")}),
                           pruebas::Criterio("C", {})}),
             Requerimiento("Plazo", {})});
        edicion.Direccion = {1, ValorLibre(), ValorLibre()};
    }
    CabeceraNodo& Criterio(int c) { return sesion().modelo.Requerimientos(1).Criterios(c); }
    void Fila(int c, const std::vector<ValorLibre>& celdas) {
        Criterio(c).Saaty.Redimensionar(static_cast<int>(celdas.size()));
        std::copy(celdas.begin(), celdas.end(), Criterio(c).Saaty.begin());
    }
    std::string Nombres(const DireccionConjunto& direccion) {
        std::string nombres;
        for (const CabeceraNodo* nodo : NodosConjunto(sesion().modelo, direccion)) {
            nombres += nodo->Nombre + " ";
        }
        return nombres;
    }
    std::string Textos(const RejillaMemoria& r, std::vector<std::pair<int, int>> celdas) const {
        std::string texto;
        for (const auto& [f, c] : celdas) {
            texto += r.Texto(f, c) + "|";
        }
        return texto;
    }

    EdicionPesos edicion;
    RejillaMemoria rejilla;
};

TEST_F(ConjuntoPesos, ThreeIndicesAddressTheSet) {
    const ValorLibre no;
    EXPECT_EQ(Nombres({no, no, no}), "Coste Plazo ");
    EXPECT_EQ(Nombres({1, no, no}), "A B C ");
    EXPECT_EQ(Nombres({1, 1, no}), "S1 S2 ") << "subcriteria come before direct indicators";
    EXPECT_EQ(Nombres({1, 2, no}), "J1 J2 ");
    EXPECT_EQ(Nombres({1, 1, 2}), "X Y ");
    EXPECT_EQ(Nombres({"1", "3", no}), "") << "an empty count is no node";
}

TEST_F(ConjuntoPesos, LoadingExtendsRowsForcesTheDiagonalAndRecomputes) {
    Fila(1, {5, "3", 0.5});
    Fila(2, {1.0 / 3});
    Fila(3, {2, ValorLibre(), 1, 77});
    Criterio(1).Peso = 12.345;
    EXPECT_EQ(InicializarRejillaSaaty(sesion(), edicion, rejilla),
              (AspectoConsistencia{"", ColorRojo}));
    EXPECT_EQ(Criterio(2).Saaty.Cota(), 3) << "the short row is extended in the model";
    EXPECT_EQ(Criterio(3).Saaty.Cota(), 4);
    EXPECT_EQ(sesion().MatrizSaaty(1, 1), ValorLibre(1));
    EXPECT_EQ(sesion().MatrizSaaty(1, 2), ValorLibre("3")) << "typed text stays text";
    EXPECT_EQ(Textos(rejilla, {{0, 0}, {0, 1}, {3, 0}, {0, 4}, {1, 1}, {1, 2}, {2, 3}}),
              "AHP|A|C|Peso (%)|1|3.00||");
    EXPECT_EQ(rejilla.ColorFondo(2, 2), ColorAmarilloClaro);
    EXPECT_EQ(rejilla.ColorFondo(2, 4), ColorAmarilloClaro);
    EXPECT_EQ(rejilla.ColorFondo(2, 3), ColorBlanco);
    // Incomplete: no weights, no ratio, and the stored weight stays on show.
    EXPECT_EQ(edicion.Consistencia, ValorLibre());
    EXPECT_TRUE(sesion().PesosEdicion(1).EsVacio());
    EXPECT_EQ(Textos(rejilla, {{1, 4}, {2, 4}}), "12.35|33.33|");

    // Typing below the diagonal fills the mirror above it and completes the matrix.
    const auto aspecto = IntroducirValorSaaty(sesion(), edicion, 3, 2, "0.25", rejilla);
    EXPECT_EQ(sesion().MatrizSaaty(2, 3), ValorLibre(4.0));
    EXPECT_EQ(Textos(rejilla, {{3, 2}, {2, 3}}), "0.25|4.00|");
    const auto ref = pruebas::CalcularReferencia({{1, 3, {1, 2}}, {{1, 3}, 1, 4}, {2, {1, 4}, 1}});
    for (int i = 1; i <= 3; ++i) {
        EXPECT_NEAR(sesion().PesosEdicion(i).Numero(), ref.pesos[i - 1].Doble(), 1e-12);
        EXPECT_EQ(rejilla.Texto(i, 4), ref.pesos[i - 1].Texto00());
    }
    const double lambda = Redondeado00(ref.lambda.Doble());
    EXPECT_EQ(Formato00(edicion.Consistencia), Formato00((lambda - 3) / 2 / 0.58));
    EXPECT_EQ(aspecto, ColorConsistencia(edicion.Consistencia));
}

TEST_F(ConjuntoPesos, TheInputBoxTextDecidesWhatACommitDoes) {
    EXPECT_EQ(ClasificarEntradaMatriz(""), EntradaMatriz::Vacia);
    EXPECT_EQ(ClasificarEntradaMatriz("1e"), EntradaMatriz::NoNumero);
    EXPECT_EQ(ClasificarEntradaMatriz("1e999"), EntradaMatriz::Desbordada);
    EXPECT_EQ(ClasificarEntradaMatriz("0"), EntradaMatriz::NoPositiva);
    EXPECT_EQ(ClasificarEntradaMatriz("-2"), EntradaMatriz::NoPositiva);
    EXPECT_EQ(ClasificarEntradaMatriz("3,5"), EntradaMatriz::Valida);
    sesion().MatrizSaaty.Redimensionar(2, 2);
    rejilla.Dimensionar(3, 4);
    EXPECT_THROW(IntroducirValorSaaty(sesion(), edicion, 1, 2, "1e", rejilla), ErrorEjecucion);
    EXPECT_TRUE(sesion().MatrizSaaty(1, 2).EsVacio()) << "nothing is stored";
}

TEST_F(ConjuntoPesos, PerfectConsistencyFromTheFirstRowAndItsTakeOver) {
    Fila(1, {1, 2, 4});
    Fila(2, {3, 1, 9});
    InicializarRejillaSaaty(sesion(), edicion, rejilla);
    ASSERT_TRUE(PrimeraFilaCompleta(sesion().MatrizSaaty));
    RejillaMemoria dialogo;
    ValorLibre razon;
    PrepararConsistenciaPerfecta(sesion(), rejilla, dialogo, razon);
    EXPECT_EQ(razon, ValorLibre(0.0));
    EXPECT_EQ(Textos(dialogo, {{0, 0}, {0, 2}, {3, 0}, {0, 4}, {2, 3}, {3, 1}, {2, 1}}),
              "AHP|B|C|Peso|2.00|0.25|0.50|");
    EXPECT_EQ(Textos(dialogo, {{1, 4}, {2, 4}, {3, 4}}), "57.14|28.57|14.29|");
    EXPECT_EQ(dialogo.ColorFondo(3, 4), ColorAmarilloClaro);

    AdoptarConsistenciaPerfecta(sesion(), dialogo, rejilla);
    EXPECT_EQ(sesion().MatrizSaaty, sesion().MatrizConsistente);
    EXPECT_EQ(sesion().PesosEdicion, sesion().PesosConsistentes);
    EXPECT_EQ(Textos(rejilla, {{0, 4}, {2, 1}, {3, 4}}), "Peso|0.50|14.29|");
    EXPECT_TRUE(sesion().modelo.Modificado);
    sesion().MatrizSaaty(1, 3) = ValorLibre();
    EXPECT_FALSE(PrimeraFilaCompleta(sesion().MatrizSaaty));
}

TEST_F(ConjuntoPesos, WritingBackKeepsBothMethodsAndTakesTheVisibleResult) {
    Fila(1, {1, 3, ValorLibre()});
    Fila(3, {1, 2, 3, 4});
    Criterio(2).Directo = 5;
    InicializarRejillaSaaty(sesion(), edicion, rejilla);
    RejillaMemoria directo;
    InicializarRejillaDirecto(sesion().modelo, edicion, directo);
    EXPECT_EQ(Textos(directo, {{0, 1}, {2, 1}, {4, 0}}), "Puntuación|5.00|TOTAL|");
    edicion.PuntuacionesDirecto(1) = 15;
    LlenarPorcentajesDirecto(edicion.PuntuacionesDirecto, edicion.PorcentajesDirecto, directo);

    EscribirConjunto(sesion(), edicion, CalculoSaaty);
    for (int i = 1; i <= 3; ++i) {
        EXPECT_EQ(Criterio(i).Saaty.Cota(), 3);
        EXPECT_EQ(Criterio(i).PesoAuxiliar, ValorLibre()) << "the matrix is incomplete";
        EXPECT_EQ(Criterio(i).Peso, ValorLibre());
        EXPECT_EQ(Criterio(i).Calculo, CalculoSaaty);
    }
    EXPECT_EQ(Criterio(1).Saaty(2), ValorLibre(3));
    EXPECT_EQ(Criterio(3).Saaty(3), ValorLibre(1)) << "the diagonal as forced on load";
    EXPECT_EQ(Criterio(1).Directo, ValorLibre(15));

    EscribirConjunto(sesion(), edicion, CalculoDirecto);
    EXPECT_EQ(Criterio(1).Peso, ValorLibre(75.0));
    EXPECT_EQ(Criterio(3).Peso, ValorLibre());
    EXPECT_EQ(Criterio(3).Calculo, CalculoDirecto);
    EXPECT_EQ(Criterio(1).Saaty(2), ValorLibre(3)) << "the pairwise data survive";
}

} // namespace
} // namespace vadro
