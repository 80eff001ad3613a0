#include "edicion_prueba.h"

#include <gtest/gtest.h>

namespace vadro {
namespace {

using namespace pruebas;
using Operaciones = PruebaEdicion;

// M 1, R1 2, C1R1 3 with three indicators 4 to 6, C2R1 7, R2 8.
Modelo Base() {
    Modelo m = ModeloCon(
        {Requerimiento("A", {Criterio("C1", {Indicador("i1"), Indicador("i2"), Indicador("i3")}),
                             Criterio("C2", {})}),
         Requerimiento("B", {})});
    m.Requerimientos(1).PesoAuxiliar = 0.1;
    return m;
}

TEST_F(Operaciones, OpeningTagsEveryNodeByPositionAndCopiesItsData) {
    Abrir(Base());
    EXPECT_EQ(Tags(), "M#1[R1#2[C1R1#3[I1C1R1#4,I2C1R1#5,I3C1R1#6],C2R1#7],R2#8]");
    EXPECT_EQ(ed.ContadorClaves, 8);
    EXPECT_EQ(ed.SiguienteNodoEdicion, 9);
    EXPECT_EQ(sesion().NodosEdicion.Tamano(), 8);
    EXPECT_EQ(Reg("I2C1R1").Descripcion, "d:i2");
    EXPECT_EQ(Pesos("I2C1R1"), "3/10");
    EXPECT_EQ(Reg("I2C1R1").Funcion.Unidades, "u:i2");
    EXPECT_EQ(Reg("I2C1R1").Directo, ValorLibre(5));
    EXPECT_TRUE(Reg("R1").PesoAuxiliar.EsVacio()) << "the ratio is not loaded";
    EXPECT_EQ(Reg("M").Calculo, CalculoSaaty);
    EXPECT_EQ(ed.tvwArbol.Seleccionado(), N("M"));
    EXPECT_EQ(ed.NodoActual, N("M"));
}

TEST_F(Operaciones, ANewRequirementGoesUnderTheRootAndErasesItsSiblingsWeights) {
    Abrir(Base());
    Sel("I2C1R1");
    ed.AñadirRequerimiento("Requerimiento");
    EXPECT_EQ(Claves(), "M[R1[C1R1[I1C1R1,I2C1R1,I3C1R1],C2R1],R2,R 9]");
    EXPECT_EQ(N("R 9")->Tag(), 9);
    EXPECT_EQ(sesion().NodoEdicionActual, 9);
    EXPECT_EQ(Reg("R 9").Calculo, CalculoDirecto);
    EXPECT_EQ(Pesos("R1"), "3/");
    EXPECT_EQ(Reg("R1").Descripcion, "d:A") << "only weights are erased";
    EXPECT_EQ(Pesos("I1C1R1"), "3/10");
    EXPECT_EQ(ed.tvwArbol.Seleccionado(), N("R 9"));
    EXPECT_EQ(ed.Selector(1).Nombres, (std::vector<std::string>{"A", "B", "Requerimiento"}));
    EXPECT_EQ(ed.Selector(1).Seleccion, 3);
}

TEST_F(Operaciones, ACriterionGoesByTheLevelOfTheSelection) {
    Abrir(Base());
    Sel("R1");
    ed.AñadirCriterio("Criterio");
    Sel("C1R1");
    ed.AñadirCriterio("Criterio");
    Sel("I2C1R1");
    ed.AñadirCriterio("Criterio");
    EXPECT_EQ(Claves(), "M[R1[C1R1[I1C1R1,I2C1R1,I3C1R1],C2R1,C 9,C 10,C 11],R2]");
    Sel("M");
    EXPECT_EQ(NumeroDeError([&] { ed.AñadirCriterio("Criterio"); }), 91);
    EXPECT_EQ(ed.ContadorClaves, 12) << "the number was drawn before the failure";
    EXPECT_EQ(ed.tvwArbol.Cuenta(), 11);
}

TEST_F(Operaciones, TheFirstSubcriterionTakesTheIndicatorsAndACriterionFromThemLandsTooDeep) {
    Abrir(Base());
    Sel("C1R1");
    ed.AñadirSubcriterio("Subcriterio");
    EXPECT_EQ(Tags(), "M#1[R1#2[C1R1#3[S 9#9[I1C1R1#4,I2C1R1#5,I3C1R1#6]],C2R1#7],R2#8]");
    // The new record erased the criterion's rows, itself counted, before the indicators moved.
    EXPECT_EQ(Pesos("I3C1R1"), "4/");
    EXPECT_EQ(ed.Selector(4).Contador, 3);
    EXPECT_EQ(ed.Selector(3).Contador, 1);
    Sel("I2C1R1");
    ed.AñadirCriterio("Criterio");
    EXPECT_EQ(Claves(), "M[R1[C1R1[S 9[I1C1R1,I2C1R1,I3C1R1],C 10],C2R1],R2]");
    // A second subcriterion made from the first takes the first one's indicators.
    Sel("S 9");
    ed.AñadirSubcriterio("Subcriterio");
    EXPECT_EQ(Claves(), "M[R1[C1R1[S 9,C 10,S 11[I1C1R1,I2C1R1,I3C1R1]],C2R1],R2]");
}

TEST_F(Operaciones, AnIndicatorOnARequirementBringsAnUnrecordedCriterion) {
    Abrir(Base());
    Sel("R2");
    ed.AñadirIndicador("Indicador");
    EXPECT_EQ(Tags().substr(Tags().find("R2")), "R2#8[C 9#-[I 10#9]]]");
    EXPECT_EQ(Textos().substr(Textos().find("B[")), "B[Criterio[Indicador]]]");
    EXPECT_EQ(ed.ContadorClaves, 10);
    EXPECT_EQ(Pesos("I 10"), "1/");
    ed.AñadirIndicador("Indicador");
    EXPECT_EQ(Claves().substr(Claves().find("R2")), "R2[C 9[I 10,I 11]]]");
}

TEST_F(Operaciones, InsertionsAddADefaultSiblingAndLeaveSelectionAndSelectorsAlone) {
    Abrir(Base());
    ed.SoltarRaton(N("I2C1R1"));
    ed.InsertarAntes();
    Sel("R2");
    ed.InsertarDespues();
    EXPECT_EQ(Claves(), "M[R1[C1R1[I1C1R1,I 9,I2C1R1,I3C1R1],C2R1],R2,R 10]");
    EXPECT_EQ(N("I 9")->Text(), "Indicador");
    EXPECT_EQ(N("R 10")->Text(), "Requerimiento");
    EXPECT_EQ(N("R 10")->Tag(), 10);
    EXPECT_EQ(Pesos("I1C1R1"), "4/");
    EXPECT_EQ(ed.tvwArbol.Seleccionado(), N("R2"));
    EXPECT_EQ(ed.Selector(4).Nombres, (std::vector<std::string>{"i1", "i2", "i3"}));
    ed.tvwArbol.Seleccionar(nullptr);
    ed.InsertarAntes();
    EXPECT_EQ(ed.ContadorClaves, 11) << "the counter rises even with nothing selected";
    EXPECT_EQ(ed.tvwArbol.Cuenta(), 10);
}

TEST_F(Operaciones, ANoToTheDeleteQuestionKeepsTheNodeButNotItsSiblingsWeights) {
    Abrir(Base());
    ed.SoltarRaton(N("C1R1"));
    mensajes.Esperar(kEliminarNodo, kPreguntaEliminar, Respuesta::No);
    ed.Eliminar();
    EXPECT_EQ(Claves(), "M 1[R 2[C 3[I 4,I 5,I 6],C 7],R 8]");
    EXPECT_TRUE(Reg("R 2").PesosBorrados);
    EXPECT_EQ(Pesos("C 3"), "2/");
    EXPECT_EQ(Pesos("C 7"), "2/");
    EXPECT_EQ(Pesos("I 4"), "3/10");
    EXPECT_EQ(ed.tvwArbol.Seleccionado(), N("C 7")) << "the next sibling, for want of a previous";
    EXPECT_EQ(ed.Selector(2).Seleccion, 2);
}

TEST_F(Operaciones, DeletingRemovesTheSubtreeAndClosesThePositions) {
    Abrir(Base());
    Sel("C1R1");
    mensajes.Esperar(kEliminarNodo, kPreguntaEliminar, Respuesta::Si);
    ed.Eliminar();
    EXPECT_EQ(Tags(), "M 1#1[R 2#2[C 3#7],R 4#8]");
    EXPECT_EQ(ed.ContadorClaves, 4);
    EXPECT_EQ(Pesos("C 3"), "2/") << "sized with the deleted node still counted";
    Sel("M 1");
    ed.Eliminar();
    EXPECT_EQ(ed.tvwArbol.Cuenta(), 4) << "the root stays";
}

TEST_F(Operaciones, DeletingAnOnlyChildSelectsNothingAndEmptiesTheSelectors) {
    Abrir(Base());
    Sel("R2");
    ed.AñadirIndicador("Indicador");
    ed.Eliminar();
    EXPECT_EQ(ed.tvwArbol.Seleccionado(), nullptr);
    for (int i = 1; i <= 4; ++i) {
        EXPECT_EQ(ed.Selector(i).Contador, 0);
        EXPECT_TRUE(ed.Selector(i).Nombres.empty());
    }
    EXPECT_EQ(ed.Descripcion, "");
    EXPECT_EQ(ed.TitulosMarcos[0], "Requerimientos");
}

TEST_F(Operaciones, ACopyCanBePastedTwiceAndArrivesWithoutRecords) {
    Abrir(Base());
    Sel("C1R1");
    ed.Copiar();
    EXPECT_EQ(Forma(ed.tvwCopia), "C 9[I 10,I 11,I 12]");
    EXPECT_TRUE(ed.PegarHabilitado);
    Sel("R2");
    ed.Pegar();
    ed.Pegar();
    EXPECT_EQ(Tags(), "M 1#1[R 2#2[C 3#3[I 4#4,I 5#5,I 6#6],C 7#7],R 8#8[C 9#-[I 10#-,I 11#-,I "
                      "12#-],C 13#-[I 14#-,I 15#-,I 16#-]]]");
    EXPECT_EQ(Textos().substr(Textos().find("B[")), "B[C1[i1,i2,i3],C1[i1,i2,i3]]]");
    EXPECT_EQ(ed.ContadorClaves, 16);
    EXPECT_EQ(ed.tvwArbol.Seleccionado(), N("R 8"));
    EXPECT_EQ(Forma(ed.tvwCopia), "C 9[I 10,I 11,I 12]") << "the clipboard stays";
    ed.tvwArbol.Seleccionar(nullptr);
    ed.Pegar();
    EXPECT_EQ(ed.tvwArbol.Raices().size(), 2u) << "with no target the copy stands at the top";
}

TEST_F(Operaciones, ACopyDrawsAgainWhileItsKeyIsTaken) {
    Abrir(Base());
    ed.Reordenar();
    ed.ContadorClaves = 2;
    ed.CopiaNodo(ed.tvwArbol, N("C 3"), ed.tvwArbol, N("R 8"));
    EXPECT_EQ(Claves().substr(Claves().find("R 8")), "R 8[C 4[I 7,I 8,I 9]]]");
    EXPECT_EQ(ed.ContadorClaves, 9);
}

TEST_F(Operaciones, AnyOtherFailureOfACopyIsShownOnceAndEndsIt) {
    Abrir(Base());
    ed.ContadorClaves = 32766;
    Sel("C1R1");
    mensajes.Esperar("VADRO PROGRAMADOR", "Error grave en -11665\nDesbordamiento");
    ed.Copiar();
    EXPECT_EQ(Forma(ed.tvwCopia), "C 32767");
    ASSERT_EQ(mensajes.Vistos().size(), 1u);
    EXPECT_EQ(mensajes.Vistos()[0].icono, Icono::Critico);
}

TEST_F(Operaciones, CountersOverflowPastTheirSixteenBits) {
    Abrir(Base());
    ed.ContadorClaves = 32767;
    EXPECT_EQ(NumeroDeError([&] { ed.AñadirRequerimiento("Requerimiento"); }), 6);
    EXPECT_EQ(ed.ContadorClaves, 32767);
    EXPECT_EQ(ed.tvwArbol.Cuenta(), 8);
    ed.ContadorClaves = 8;
    ed.SiguienteNodoEdicion = 32767;
    Sel("R2");
    EXPECT_EQ(NumeroDeError([&] { ed.AñadirCriterio("Criterio"); }), 6);
    EXPECT_EQ(sesion().NodoEdicionActual, 32767);
    EXPECT_FALSE(N("C 9")->Tag()) << "the node is in, its record is not";
}

} // namespace
} // namespace vadro
