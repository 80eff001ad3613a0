#include "modelo_prueba.h"
#include "volcado.h"

#include "core/trees/arbol_modelo.h"
#include "core/trees/niveles.h"

#include <gtest/gtest.h>

namespace vadro {
namespace {

using namespace pruebas;

std::string TextoDe(const NodoArbol& n) {
    return n.Text();
}

// R1 holds C1 with subcriteria and a direct indicator at once, and an empty C2; R2 is bare.
Modelo ModeloMixto() {
    return ModeloCon(
        {Requerimiento("A", {Criterio("C1", {Indicador("d")},
                                      {Subcriterio("S1", {Indicador("x"), Indicador("y")}),
                                       Subcriterio("S2", {Indicador("z")})}),
                             Criterio("C2", {})}),
         Requerimiento("B", {})},
        "Mi MODELO Ñandú");
}

TEST(Niveles, PasteAndDropRulesFollowTheLevelTable) {
    Arbol a;
    NodoArbol* m = a.Añadir(nullptr, Relacion::UltimoHijo, "M", "", 5);
    NodoArbol* r = a.Añadir(m, Relacion::UltimoHijo, "R 2", "", 1);
    NodoArbol* conIndicador = a.Añadir(r, Relacion::UltimoHijo, "C 3", "", 2);
    NodoArbol* i = a.Añadir(conIndicador, Relacion::UltimoHijo, "I 4", "", 4);
    NodoArbol* conSub = a.Añadir(r, Relacion::UltimoHijo, "C 5", "", 2);
    NodoArbol* s = a.Añadir(conSub, Relacion::UltimoHijo, "S 6", "", 3);
    NodoArbol* vacio = a.Añadir(r, Relacion::UltimoHijo, "C 7", "", 2);

    EXPECT_TRUE(DestinoPermitido(1, m));
    EXPECT_FALSE(DestinoPermitido(1, r));
    EXPECT_TRUE(DestinoPermitido(1, nullptr));
    EXPECT_TRUE(DestinoPermitido(2, r));
    EXPECT_FALSE(DestinoPermitido(2, m));
    EXPECT_FALSE(DestinoPermitido(2, vacio));
    EXPECT_FALSE(DestinoPermitido(2, nullptr));
    EXPECT_TRUE(DestinoPermitido(3, conSub));
    EXPECT_TRUE(DestinoPermitido(3, vacio));
    EXPECT_FALSE(DestinoPermitido(3, conIndicador));
    EXPECT_FALSE(DestinoPermitido(3, s));
    EXPECT_TRUE(DestinoPermitido(4, s));
    EXPECT_TRUE(DestinoPermitido(4, conIndicador));
    EXPECT_TRUE(DestinoPermitido(4, vacio));
    EXPECT_FALSE(DestinoPermitido(4, conSub));
    EXPECT_FALSE(DestinoPermitido(4, i));
    EXPECT_TRUE(DestinoPermitido(5, i)) << "a copied root goes under an indicator";
    EXPECT_FALSE(DestinoPermitido(5, nullptr));
    EXPECT_FALSE(DestinoPermitido(0, m));
}

TEST(Niveles, DefaultTextsAndLowerCase) {
    Modelo m;
    m.Nombre = "Mi MODELO ÁÉÍÓÚÑÜ × Œ";
    EXPECT_EQ(TextoNivel(5, m), "Modelo mi modelo áéíóúñü × œ");
    EXPECT_EQ(TextoNivel(1, m), "Requerimiento");
    EXPECT_EQ(TextoNivel(4, m), "Indicador");
    EXPECT_EQ(LetraNivel(3), "S");
    EXPECT_EQ(ImagenNivel(6), 0);
}

TEST(LlenarArbol, ANewModelGivesTheRootAlone) {
    Arbol a;
    Modelo nuevo;
    nuevo.Nombre = "Presa";
    LlenarArbol(a, nuevo, true, true, true);
    EXPECT_EQ(Forma(a, TextoDe), "Modelo presa");
    EXPECT_EQ(a.Nodo(1)->Key(), "M");
    EXPECT_EQ(a.Nodo(1)->Image(), 5);
    nuevo.NumRequerimientos = 0;
    LlenarArbol(a, nuevo, false, false, false);
    EXPECT_EQ(a.Cuenta(), 1) << "the tree is emptied first";
}

TEST(LlenarArbol, WalksDepthFirstWithSubcriteriaBeforeDirectIndicators) {
    Arbol a;
    LlenarArbol(a, ModeloMixto(), false, false, false);
    EXPECT_EQ(Forma(a), "M[R1[C1R1[S1C1R1[I1S1C1R1,I2S1C1R1],S2C1R1[I1S2C1R1],I1C1R1],C2R1],R2]");
    EXPECT_EQ(Forma(a, TextoDe), "Modelo mi modelo ñandú[A[C1[S1[x,y],S2[z],d],C2],B]");
    EXPECT_EQ(ClavesPorIndice(a),
              "M|R1|C1R1|S1C1R1|I1S1C1R1|I2S1C1R1|S2C1R1|I1S2C1R1|I1C1R1|C2R1|R2");
    EXPECT_EQ(Forma(a, [](const NodoArbol& n) { return std::to_string(n.Image()); }),
              "5[1[2[3[4,4],3[4],4],2],1]");
    for (int i = 1; i <= a.Cuenta(); ++i) {
        EXPECT_TRUE(a.Nodo(i)->Expandido());
        EXPECT_FALSE(a.Nodo(i)->Tag());
    }
}

TEST(LlenarArbol, KeysWeightsAndFunctionLinesOnRequest) {
    Modelo m = ModeloCon({Requerimiento("A", {Criterio("C", {Indicador("i", 12.5)})}, 0)});
    m.Requerimientos(1).Criterios(1).Peso = ValorLibre();
    Arbol a;
    LlenarArbol(a, m, true, true, true);
    EXPECT_EQ(Forma(a, TextoDe),
              "Modelo [(R1) A (0.00 %)[(C1R1) C[(I1C1R1) i (12.50 %)[C = 12.5; K = ; P = ]]]]");
    EXPECT_EQ(a.Nodo(5)->Key(), "valI1C1R1");
}

TEST(LlenarArbol, WeightsShowTwoDecimalsRoundedAsUsersRead) {
    EXPECT_EQ(FormatoPeso(2.675), "2.68");
    EXPECT_EQ(FormatoPeso(99.999), "100.00");
    EXPECT_EQ(FormatoPeso(0.004), "0.00");
    EXPECT_EQ(FormatoPeso(33.333333333), "33.33");
    EXPECT_EQ(FormatoPeso(12), "12.00");
    EXPECT_EQ(FormatoPeso(ValorLibre("3,5")), "3.50");
    EXPECT_EQ(FormatoPeso(ValorLibre("n/d")), "n/d");
}

TEST(EliminarSubcriteriosDelNodo, IndicatorsComeUpLastFirstAndTheSubcriteriaGo) {
    Modelo m = ModeloCon(
        {Requerimiento("A", {Criterio("C1", {},
                                      {Subcriterio("S1", {Indicador("x"), Indicador("y")}),
                                       Subcriterio("S2", {Indicador("z")})}),
                             Criterio("C2", {Indicador("w")})})});
    Arbol a;
    LlenarArbol(a, m, false, false, false);
    EliminarSubcriteriosDelNodo(a, a.Nodo(1));
    EXPECT_EQ(Forma(a, TextoDe), "Modelo [A[C1[y,x,z],C2[w]]]");
    EXPECT_EQ(Forma(a), "M[R1[C1R1[I2S1C1R1,I1S1C1R1,I1S2C1R1],C2R1[I1C2R1]]]")
        << "keys stay as they were";
}

TEST(EliminarSubcriteriosDelNodo, AnIndicatorEndsTheScanOfItsSiblings) {
    Arbol a;
    NodoArbol* c = a.Añadir(nullptr, Relacion::UltimoHijo, "C1", "C1", 2);
    a.Añadir(c, Relacion::UltimoHijo, "I1", "I1", 4);
    NodoArbol* s = a.Añadir(c, Relacion::UltimoHijo, "S1", "S1", 3);
    a.Añadir(s, Relacion::UltimoHijo, "I2", "I2", 4);
    EliminarSubcriteriosDelNodo(a, c);
    EXPECT_EQ(Forma(a), "C1[I1,S1[I2]]");
}

TEST(EliminarSubcriteriosDelNodo, AnEmptiedNodeLetsTheScanRunOnToItsSiblings) {
    Arbol a;
    NodoArbol* r = a.Añadir(nullptr, Relacion::UltimoHijo, "R1", "R1", 1);
    NodoArbol* c1 = a.Añadir(r, Relacion::UltimoHijo, "C1", "C1", 2);
    a.Añadir(c1, Relacion::UltimoHijo, "S1", "S1", 3);
    NodoArbol* c2 = a.Añadir(r, Relacion::UltimoHijo, "C2", "C2", 2);
    NodoArbol* s2 = a.Añadir(c2, Relacion::UltimoHijo, "S2", "S2", 3);
    a.Añadir(s2, Relacion::UltimoHijo, "I1", "I1", 4);
    EliminarSubcriteriosDelNodo(a, c1);
    EXPECT_EQ(Forma(a), "R1[C1,C2[I1]]");
}

TEST(EliminarSubcriterios, IndicatorsJoinTheirCriterionRenumberedWithWeightsKept) {
    Modelo m = ModeloMixto();
    EliminarSubcriterios(m);
    const NodoCriterio& c1 = m.Requerimientos(1).Criterios(1);
    EXPECT_EQ(c1.NumIndicadores, ValorLibre(3));
    EXPECT_EQ(c1.NumSubcriterios, ValorLibre(0));
    EXPECT_FALSE(c1.Subcriterios.Presente());
    ASSERT_EQ(c1.Indicadores.Tamano(), 3) << "the direct indicator gives way";
    EXPECT_EQ(c1.Indicadores(1).Nombre, "x");
    EXPECT_EQ(c1.Indicadores(2).Nombre, "y");
    EXPECT_EQ(c1.Indicadores(3).Nombre, "z");
    EXPECT_EQ(c1.Indicadores(3).Clave, "I3C1R1");
    EXPECT_EQ(c1.Indicadores(3).Peso, ValorLibre(10));
    EXPECT_EQ(c1.Indicadores(2).Saaty.Cota(), 2) << "the rows still span the old set";
    EXPECT_FALSE(HaySubcriterios(m));
    EXPECT_EQ(m.Requerimientos(1).Criterios(2).NumIndicadores, ValorLibre(0));

    Modelo vacio;
    EliminarSubcriterios(vacio);
    EXPECT_EQ(vacio, Modelo{});
}

} // namespace
} // namespace vadro
