#include "../core/tabla_funciones.h"
#include "edicion_prueba.h"
#include "modelo_prueba.h"
#include "volcado.h"

#include "core/trees/arbol_modelo.h"
#include "core/trees/niveles.h"
#include "soporte/datos.h"

#include <gtest/gtest.h>

namespace vadro {
namespace {

using namespace pruebas;

std::string TextoDe(const NodoArbol& n) {
    return n.Text();
}

// C1 holds subcriteria and a direct indicator at once; C2 and R2 are bare.
Modelo ModeloMixto() {
    return ModeloCon(
        {Requerimiento("A", {Criterio("C1", {Indicador("d")},
                                      {Subcriterio("S1", {Indicador("x"), Indicador("y")}),
                                       Subcriterio("S2", {Indicador("z")})}),
                             Criterio("C2", {})}),
         Requerimiento("B", {})},
        "Mi MODELO ÑANDÚ × Œ");
}

// Whether a node of a level may be pasted or dropped on a target ('' for the empty place).
TEST(Niveles, PasteAndDropTargetsFollowTheLevelTable) {
    Arbol a;
    Construir(a, "M[R[C1[I1],C2[S[I2]],C3]]");
    Tabular("arboles/destinos.txt",
            {{"DestinoPermitido", [&](const Argumentos& x) {
                  const NodoArbol* destino = x.at(1).empty() ? nullptr : a.NodoPorClave(x.at(1));
                  return SiNo(DestinoPermitido(std::stoi(x.at(0)), destino));
              }}});
}

TEST(LlenarArbol, WalksDepthFirstWithSubcriteriaBeforeDirectIndicators) {
    Arbol a;
    LlenarArbol(a, ModeloMixto(), false, false, false);
    EXPECT_EQ(Forma(a, TextoDe), "Modelo mi modelo ñandú × œ[A[C1[S1[x,y],S2[z],d],C2],B]");
    EXPECT_EQ(ClavesPorIndice(a),
              "M|R1|C1R1|S1C1R1|I1S1C1R1|I2S1C1R1|S2C1R1|I1S2C1R1|I1C1R1|C2R1|R2");
    EXPECT_EQ(Forma(a, [](const NodoArbol& n) { return std::to_string(n.Image()); }),
              "5[1[2[3[4,4],3[4],4],2],1]");
    EXPECT_TRUE(a.Nodo(9)->Expandido());
}

TEST(LlenarArbol, KeysWeightsAndFunctionLinesOnRequest) {
    Modelo m = ModeloCon({Requerimiento("A", {Criterio("C", {Indicador("i")})})});
    m.Requerimientos(1).Peso = 0;
    m.Requerimientos(1).Criterios(1).Peso = ValorLibre();
    m.Requerimientos(1).Criterios(1).Indicadores(1).Peso = 2.675;
    m.Requerimientos(1).Criterios(1).Indicadores(1).Funcion.C = 2.675;
    Arbol a;
    LlenarArbol(a, m, true, true, true);
    EXPECT_EQ(Forma(a, TextoDe),
              "Modelo [(R1) A (0.00 %)[(C1R1) C[(I1C1R1) i (2.68 %)[C = 2.675; K = ; P = ]]]]");
    EXPECT_EQ(a.Nodo(5)->Key(), "valI1C1R1");
}

TEST(EliminarSubcriteriosDelNodo, IndicatorsComeUpLastFirstKeepingTheirKeys) {
    Arbol a;
    Construir(a, "M[R1[C1[S1[I1,I2],S2[I3]],C2[I4]]]");
    EliminarSubcriteriosDelNodo(a, a.Nodo(1));
    EXPECT_EQ(Forma(a), "M[R1[C1[I2,I1,I3],C2[I4]]]");
}

TEST(EliminarSubcriteriosDelNodo, AnIndicatorEndsTheScanAndAnEmptiedNodeLetsItRunOn) {
    Arbol a;
    Construir(a, "C0[I1,S1[I2]]");
    EliminarSubcriteriosDelNodo(a, a.Nodo(1));
    EXPECT_EQ(Forma(a), "C0[I1,S1[I2]]");
    Arbol b;
    Construir(b, "R1[C1[S1],C2[S2[I1]]]");
    EliminarSubcriteriosDelNodo(b, b.NodoPorClave("C1"));
    EXPECT_EQ(Forma(b), "R1[C1,C2[I1]]") << "the scan ran on into C1's siblings";
}

// The direct indicator gives way to the subcriteria's, which keep their weights.
TEST(EliminarSubcriterios, IndicatorsJoinTheirCriterionRenumberedWithWeightsKept) {
    Modelo m = ModeloMixto();
    EliminarSubcriterios(m);
    const std::string escrito = Escrito(m);
    EXPECT_EQ(escrito, Datos("arboles/sin_subcriterios.txt", escrito));
    EXPECT_FALSE(m.Requerimientos(1).Criterios(1).Subcriterios.Presente());
    EXPECT_FALSE(HaySubcriterios(m));
}

} // namespace
} // namespace vadro
