#include "edicion_prueba.h"

#include <gtest/gtest.h>

namespace vadro {
namespace {

using namespace pruebas;
using Escritura = PruebaEdicion;

TEST_F(Escritura, AnUntouchedTreeWritesBackWithRootFirstKeysAndNoRatio) {
    Abrir();
    Modelo esperado = sesion().modelo;
    EXPECT_TRUE(ed.GuardarArbol());
    esperado.Requerimientos(1).PesoAuxiliar = ValorLibre();
    esperado.Requerimientos(1).Criterios(1).Indicadores(3).Clave = "R1C1I3";
    for (int i = 1; i <= 2; ++i) {
        esperado.Requerimientos(i).Clave = "R" + std::to_string(i);
        esperado.Requerimientos(1).Criterios(i).Clave = "R1C" + std::to_string(i);
        esperado.Requerimientos(1).Criterios(1).Indicadores(i).Clave = "R1C1I" + std::to_string(i);
    }
    EXPECT_EQ(sesion().modelo, esperado);
}

TEST_F(Escritura, ChildrenAreTakenAsOfTheKindOfTheFirstAndTheRootAloneLeavesNone) {
    Abrir(true, true);
    ed.SoltarRaton(N("S1C2R1"));
    ed.AñadirIndicador("Indicador");
    ed.InsertarDespues(); // an indicator beside it
    Sel("S1C2R1");
    ed.InsertarDespues();
    Sel("C2R1");
    ed.InsertarDespues();
    ed.LlamaLlenarRequerimientos();
    const NodoCriterio& c2 = sesion().modelo.Requerimientos(1).Criterios(2);
    EXPECT_EQ(c2.NumIndicadores.Texto() + c2.NumSubcriterios.Texto(), "02");
    EXPECT_EQ(c2.Subcriterios(1).Indicadores(2).Clave, "R1C2S1I2");
    EXPECT_EQ(c2.Subcriterios(2).Clave + c2.Subcriterios(2).NumIndicadores.Texto(), "R1C2S20");
    EXPECT_EQ(sesion().modelo.Requerimientos(1).Criterios(3).Nombre, "Criterio");
    Sel("R1");
    Eliminar(Respuesta::Si);
    Sel("R 2"); // renumbered by the deletion
    ed.Eliminar();
    ed.LlamaLlenarRequerimientos();
    EXPECT_EQ(sesion().modelo.NumRequerimientos, ValorLibre(0));
}

TEST_F(Escritura, APastedNodeGetsItsRecordAndItsSlotKeepsWhatItHeld) {
    Abrir();
    Sel("C2R1");
    ed.Eliminar();
    Sel("C 3");
    ed.Copiar();
    Sel("R 2");
    ed.Pegar();
    ed.LlamaLlenarRequerimientos();
    EXPECT_EQ(Tags(), "M 1#1[R 2#2[C 3#3[I 4#4,I 5#5,I 6#6],C 8#9[I 9#10,I 10#11,I 11#12]],R 7#8]");
    const NodoCriterio& copia = sesion().modelo.Requerimientos(1).Criterios(2);
    EXPECT_EQ(copia.Nombre + "|" + copia.Descripcion, "C1|d:C2") << "the slot held the old C2";
    EXPECT_EQ(copia.Peso, ValorLibre(10));
    EXPECT_EQ(copia.Indicadores(2).Nombre, "i2");
    EXPECT_EQ(copia.Indicadores(2).Funcion.Tipo, FuncionNinguna);
    EXPECT_TRUE(sesion().modelo.Requerimientos(1).Criterios(1).Peso.EsVacio());
}

TEST_F(Escritura, ARowOfTheWrongWidthStopsACriterionsWeightsButNotAnIndicators) {
    Abrir();
    Sel("C1R1");
    Eliminar(Respuesta::Si);
    ed.LlamaLlenarRequerimientos();
    const NodoCriterio& c = sesion().modelo.Requerimientos(1).Criterios(1);
    EXPECT_EQ(c.Nombre + "|" + c.Descripcion, "C2|d:C2");
    EXPECT_EQ(c.Peso, ValorLibre(10)) << "what the slot of C1 held";
    EXPECT_EQ(Pesos("C 3"), "1/") << "erased to the right width by the write";
    // Below the criterion the test looks at the criterion's row, not at the node's own.
    Abrir();
    Sel("I2C1R1");
    ed.Eliminar();
    ed.LlamaLlenarRequerimientos();
    const NodoIndicador& i3 = sesion().modelo.Requerimientos(1).Criterios(1).Indicadores(2);
    EXPECT_EQ(i3.Nombre + "|" + i3.Funcion.Unidades, "i3|u:i3");
    EXPECT_EQ(i3.Saaty.Cota(), 3) << "a row one too wide travels";
    EXPECT_TRUE(i3.Peso.EsVacio());
}

} // namespace
} // namespace vadro
