#include "edicion_prueba.h"

#include <gtest/gtest.h>

namespace vadro {
namespace {

using namespace pruebas;
using Escenarios = PruebaEdicion;

TEST_F(Escenarios, ANewModelBuiltCopiedPastedDraggedAndKeptThroughANo) {
    Modelo nuevo;
    nuevo.Nombre = "Presa";
    Abrir(nuevo);
    ed.SubirContador(1); // R 2
    ed.SoltarRaton(N("R 2"));
    ed.AñadirCriterio("Criterio");   // C 3
    ed.AñadirIndicador("Indicador"); // I 4
    ed.InsertarAntes();              // I 5, before I 4, which stays selected
    ed.CambiarDescripcion("caudal");
    Sel("C 3");
    ed.Copiar(); // C 6 [I 7, I 8] in the clipboard
    Sel("R 2");
    ed.Pegar();
    ed.Pegar();
    EXPECT_EQ(Claves(), "M 1[R 2[C 3[I 5,I 4],C 6[I 7,I 8],C 9[I 10,I 11]]]");
    Arrastrar("I 10", "C 3");
    mensajes.Esperar(kMoverNodo, PreguntaMover("Criterio", "Criterio"), Respuesta::Si);
    ed.Soltar();
    Sel("C 6");
    Eliminar(Respuesta::No);
    EXPECT_EQ(Tags(), "M 1#1[R 2#2[C 3#3[I 5#5,I 4#4,I 10#7],C 6#8[I 7#-,I 8#-],C 9#9[I 11#6]]]");
    EXPECT_EQ(Textos(), "Modelo presa[Requerimiento[Criterio[Indicador,Indicador,Indicador],"
                        "Criterio[Indicador,Indicador],Criterio[Indicador]]]");
    EXPECT_EQ(ed.tvwArbol.Seleccionado(), N("C 3"));
    EXPECT_EQ(ed.ContadorClaves, 11);
    EXPECT_TRUE(Reg("R 2").PesosBorrados);
    EXPECT_EQ(Pesos("C 3") + Pesos("I 10"), "3/3/");
    EXPECT_EQ(Reg("I 4").Descripcion, "caudal");
    EXPECT_EQ(ed.Selector(2).Claves, (Lista{"C 3", "C 6", "C 9"}));

    ed.LlamaLlenarRequerimientos();
    const NodoRequerimiento& r = sesion().modelo.Requerimientos(1);
    EXPECT_EQ(ed.SiguienteNodoEdicion, 12) << "the pasted indicators got their records";
    EXPECT_EQ(sesion().modelo.NumRequerimientos.Texto() + r.NumCriterios.Texto(), "13");
    EXPECT_EQ(r.Criterios(1).Indicadores(2).Descripcion, "caudal");
    EXPECT_EQ(r.Criterios(1).Indicadores(1).Saaty.Cota(), 3);
    EXPECT_EQ(r.Criterios(2).Indicadores(2).Clave, "R1C2I2");
    EXPECT_EQ(r.Criterios(3).NumIndicadores, ValorLibre(1));
}

TEST_F(Escenarios, SubcriteriaMadeRenamedAndRemovedLeaveTheIndicatorsReversed) {
    Modelo m = ModeloCon({Requerimiento("A", {Criterio("C", {Indicador("i1"), Indicador("i2")})})});
    m.ConSubcriterios = true;
    Abrir(m);
    Sel("C1R1");
    ed.AñadirSubcriterio("Subcriterio"); // S 6 takes both indicators
    ed.SoltarRaton(N("I2C1R1"));
    ed.AñadirIndicador("Indicador"); // I 7
    ed.Renombrar("Caudal");
    Arrastrar("I 7", "C1R1");
    ed.Soltar(); // no highlight on a criterion with subcriteria
    EXPECT_EQ(Claves(), "M[R1[C1R1[S 6[I1C1R1,I2C1R1,I 7]]]]");
    ed.EliminarSubcriteriosDelNodo(N("M"));
    ed.Reordenar();
    EXPECT_EQ(Tags(), "M 1#1[R 2#2[C 3#3[I 6#7,I 5#5,I 4#4]]]");
    ed.LlamaLlenarRequerimientos();
    const NodoCriterio& c = sesion().modelo.Requerimientos(1).Criterios(1);
    EXPECT_EQ(c.NumIndicadores.Texto() + c.NumSubcriterios.Texto(), "30");
    EXPECT_EQ(c.Indicadores(1).Nombre + c.Indicadores(3).Nombre, "Caudali1");
    EXPECT_EQ(c.Indicadores(3).Clave, "R1C1I3");
    EXPECT_EQ(c.Indicadores(3).Funcion.Tipo, FuncionContinua);
    EXPECT_EQ(c.Indicadores(1).Saaty.Cota(), 3);
}

} // namespace
} // namespace vadro
