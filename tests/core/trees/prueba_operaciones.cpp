#include "edicion_prueba.h"

#include <gtest/gtest.h>

namespace vadro {
namespace {

using namespace pruebas;
using Operaciones = PruebaEdicion;

TEST_F(Operaciones, AdditionsGoByTheLevelOfTheSelectionAndEraseTheirSiblingsWeights) {
    Abrir();
    Sel("I2C1R1");
    ed.AñadirRequerimiento("Requerimiento"); // always under the root
    EXPECT_EQ(Pesos("R1"), "3/");
    EXPECT_EQ(ed.Selector(1).Nombres, (Lista{"A", "B", "Requerimiento"}));
    for (const char* clave : {"R1", "C1R1", "I2C1R1"}) {
        Sel(clave);
        ed.AñadirCriterio("Criterio");
    }
    Sel("R2");
    ed.AñadirIndicador("Indicador"); // a criterion first, without a record
    EXPECT_EQ(Tags(), "M#1[R1#2[C1R1#3[I1C1R1#4,I2C1R1#5,I3C1R1#6],C2R1#7,C 10#10,C 11#11,C "
                      "12#12],R2#8[C 13#-[I 14#13]],R 9#9]");
    EXPECT_EQ(Textos().substr(Textos().find("B[")), "B[Criterio[Indicador]],Requerimiento]");
    EXPECT_EQ(Reg("R 9").Calculo, CalculoDirecto);
    EXPECT_EQ(Reg("R1").Descripcion, "d:A") << "only weights are erased";
    EXPECT_EQ(Pesos("C1R1"), "5/");
    EXPECT_EQ(Pesos("I1C1R1"), "3/10");
    EXPECT_EQ(Pesos("I 14"), "1/");
    EXPECT_EQ(sesion().NodoEdicionActual, 13);
    EXPECT_EQ(ed.tvwArbol.Seleccionado(), N("I 14"));
    Sel("M");
    EXPECT_EQ(NumeroDeError([&] { ed.AñadirCriterio("Criterio"); }), 91);
    EXPECT_EQ(ed.ContadorClaves, 15) << "the number was drawn before the failure";
}

TEST_F(Operaciones, TheFirstSubcriterionTakesTheIndicatorsAndACriterionFromThemLandsTooDeep) {
    Abrir();
    Sel("C1R1");
    ed.AñadirSubcriterio("Subcriterio");
    EXPECT_EQ(Tags(), "M#1[R1#2[C1R1#3[S 9#9[I1C1R1#4,I2C1R1#5,I3C1R1#6]],C2R1#7],R2#8]");
    // The new record erased the criterion's rows, itself counted, before the indicators moved.
    EXPECT_EQ(Pesos("I3C1R1"), "4/");
    ed.SoltarRaton(N("C1R1"));
    EXPECT_EQ(ed.Selector(3).Contador, 1);
    Sel("I2C1R1");
    ed.AñadirCriterio("Criterio");
    // From inside a criterion the misplaced criterion fills selector 2, its parent's entry last.
    EXPECT_EQ(ed.Selector(2).Nombres, (Lista{"Subcriterio", "Criterio", "C1", "C2"}));
    EXPECT_EQ(ed.Selector(2).Seleccion, 3);
    Sel("S 9");
    ed.AñadirSubcriterio("Subcriterio"); // a second one takes the first one's indicators
    EXPECT_EQ(Claves(), "M[R1[C1R1[S 9,C 10,S 11[I1C1R1,I2C1R1,I3C1R1]],C2R1],R2]");
}

TEST_F(Operaciones, InsertionsAddADefaultSiblingAndLeaveSelectionAndSelectorsAlone) {
    Abrir();
    ed.SoltarRaton(N("I2C1R1"));
    ed.InsertarAntes();
    Sel("R2");
    ed.InsertarDespues();
    EXPECT_EQ(Tags(), "M#1[R1#2[C1R1#3[I1C1R1#4,I 9#9,I2C1R1#5,I3C1R1#6],C2R1#7],R2#8,R 10#10]");
    EXPECT_EQ(N("I 9")->Text() + N("R 10")->Text(), "IndicadorRequerimiento");
    EXPECT_EQ(Pesos("I1C1R1"), "4/");
    EXPECT_EQ(ed.tvwArbol.Seleccionado(), N("R2"));
    EXPECT_EQ(ed.Selector(4).Nombres, (Lista{"i1", "i2", "i3"}));
    ed.tvwArbol.Seleccionar(nullptr);
    ed.InsertarAntes();
    EXPECT_EQ(ed.ContadorClaves, 11) << "the counter rises even with nothing selected";
}

TEST_F(Operaciones, DeletionAsksForASubtreeErasesWeightsFirstAndRenumbers) {
    Abrir();
    ed.SoltarRaton(N("C1R1"));
    Eliminar(Respuesta::No);
    EXPECT_EQ(Claves(), "M 1[R 2[C 3[I 4,I 5,I 6],C 7],R 8]");
    EXPECT_TRUE(Reg("R 2").PesosBorrados);
    EXPECT_EQ(Pesos("C 3") + Pesos("C 7") + Pesos("I 4"), "2/2/3/10");
    EXPECT_EQ(ed.tvwArbol.Seleccionado(), N("C 7")) << "the next sibling, for want of a previous";
    EXPECT_EQ(ed.Selector(2).Seleccion, 2);
    Sel("C 3");
    Eliminar(Respuesta::Si);
    EXPECT_EQ(Tags(), "M 1#1[R 2#2[C 3#7],R 4#8]");
    EXPECT_EQ(ed.ContadorClaves, 4);
    Sel("M 1");
    ed.Eliminar();
    EXPECT_EQ(ed.tvwArbol.Cuenta(), 4) << "the root stays";
    Sel("R 4");
    ed.AñadirIndicador("Indicador");
    ed.Eliminar(); // an only child: nothing to select afterwards
    EXPECT_EQ(ed.tvwArbol.Seleccionado(), nullptr);
    EXPECT_EQ(ed.Selector(1).Contador + ed.Selector(2).Contador + ed.Selector(4).Contador, 0);
    EXPECT_EQ(ed.Descripcion + ed.TitulosMarcos[0], "Requerimientos");
}

TEST_F(Operaciones, ACopyCanBePastedTwiceAndArrivesWithoutRecords) {
    Abrir();
    Sel("C1R1");
    ed.Copiar();
    EXPECT_EQ(Forma(ed.tvwCopia), "C 9[I 10,I 11,I 12]");
    Sel("R2");
    ed.Pegar();
    ed.Pegar();
    EXPECT_EQ(Tags(), "M 1#1[R 2#2[C 3#3[I 4#4,I 5#5,I 6#6],C 7#7],R 8#8[C 9#-[I 10#-,I 11#-,I "
                      "12#-],C 13#-[I 14#-,I 15#-,I 16#-]]]");
    EXPECT_EQ(Textos().substr(Textos().find("B[")), "B[C1[i1,i2,i3],C1[i1,i2,i3]]]");
    EXPECT_EQ(ed.ContadorClaves, 16);
    EXPECT_EQ(ed.tvwArbol.Seleccionado(), N("R 8"));
    ed.tvwArbol.Seleccionar(nullptr);
    ed.Pegar();
    EXPECT_EQ(ed.tvwArbol.Raices().size(), 2u) << "with no target the copy stands at the top";
}

TEST_F(Operaciones, ACopyDrawsAgainOnATakenKeyAndShowsAnyOtherFailureOnce) {
    Abrir();
    ed.Reordenar();
    ed.ContadorClaves = 2;
    ed.CopiaNodo(ed.tvwArbol, N("C 3"), ed.tvwArbol, N("R 8"));
    EXPECT_EQ(Claves().substr(Claves().find("R 8")), "R 8[C 4[I 7,I 8,I 9]]]");
    ed.ContadorClaves = 32766;
    Sel("C 3");
    mensajes.Esperar("VADRO PROGRAMADOR", "Error grave en -11665\nDesbordamiento");
    ed.Copiar();
    EXPECT_EQ(Forma(ed.tvwCopia), "C 32767");
    EXPECT_EQ(mensajes.Vistos().at(0).icono, Icono::Critico);
}

TEST_F(Operaciones, CountersOverflowPastTheirSixteenBits) {
    Abrir();
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
