#include "edicion_prueba.h"

#include <gtest/gtest.h>

namespace vadro {
namespace {

using namespace pruebas;
using Eventos = PruebaEdicion;

const std::string kMover = "VADRO PROGRAMADOR: mover nodo";

std::string PreguntaMover(const std::string& viejo, const std::string& nuevo) {
    return "En caso de haber sido introducidas, se borrarán las matrices de pesos "
           "correspondientes a los nodos:\n- " +
           viejo + "\n- " + nuevo +
           "\n\nEstá usted seguro de querer mover el elemento seleccionado?";
}

// C1R1 holds three indicators; C2R1 holds the subcriterion "S 9" when asked.
Modelo Base(bool conSubcriterio = false) {
    Modelo m = ModeloCon(
        {Requerimiento("A", {Criterio("C1", {Indicador("i1"), Indicador("i2"), Indicador("i3")}),
                             Criterio("C2", {},
                                      conSubcriterio ? std::vector{Subcriterio("S", {})}
                                                     : std::vector<NodoSubcriterio>{})}),
         Requerimiento("B", {})});
    return m;
}

void Arrastrar(EdicionRequerimientos& ed, NodoArbol* nodo) {
    ed.PulsarRaton(nodo);
    ed.MoverRaton(true);
    ed.ArrastrarSobre(nodo);
}

TEST_F(Eventos, TheHighlightFollowsTheRuleAndIsTestedOnlyOnANewNode) {
    Abrir(Base(true));
    Arrastrar(ed, N("I1C1R1"));
    EXPECT_EQ(ed.NivelArrastre, 4);
    ed.ArrastrarSobre(N("C2R1"));
    EXPECT_EQ(ed.tvwArbol.ResaltadoDestino(), nullptr) << "a criterion with subcriteria";
    ed.ArrastrarSobre(N("S1C2R1"));
    EXPECT_EQ(ed.tvwArbol.ResaltadoDestino(), N("S1C2R1"));
    ed.ArrastrarSobre(N("C2R1"));
    ed.tvwArbol.Quitar(N("S1C2R1"));
    ed.ArrastrarSobre(N("C2R1"));
    EXPECT_EQ(ed.tvwArbol.ResaltadoDestino(), nullptr) << "same node, no new test";
    ed.ArrastrarSobre(nullptr);
    ed.ArrastrarSobre(N("C2R1"));
    EXPECT_EQ(ed.tvwArbol.ResaltadoDestino(), N("C2R1"));
}

TEST_F(Eventos, ADropOnTheOwnParentMovesLastAndKeepsEveryWeight) {
    Abrir(Base());
    Arrastrar(ed, N("I1C1R1"));
    ed.ArrastrarSobre(N("C1R1"));
    ed.Soltar();
    EXPECT_EQ(Claves(), "M[R1[C1R1[I2C1R1,I3C1R1,I1C1R1],C2R1],R2]");
    EXPECT_EQ(Pesos("I1C1R1"), "3/10");
    EXPECT_EQ(Pesos("I2C1R1"), "3/10");
    EXPECT_EQ(ed.tvwArbol.ResaltadoDestino(), nullptr);
    EXPECT_EQ(ed.Selector(4).Seleccion, 3) << "the selectors show the moved node";
}

TEST_F(Eventos, ADropElsewhereAsksAndOnYesErasesOldThenNewSiblings) {
    Abrir(Base());
    Arrastrar(ed, N("I1C1R1"));
    ed.ArrastrarSobre(N("C2R1"));
    mensajes.Esperar(kMover, PreguntaMover("C1", "C2"), Respuesta::No);
    ed.Soltar();
    EXPECT_EQ(Claves(), "M[R1[C1R1[I1C1R1,I2C1R1,I3C1R1],C2R1],R2]");
    EXPECT_EQ(Pesos("I2C1R1"), "3/10");
    EXPECT_EQ(ed.tvwArbol.ResaltadoDestino(), nullptr);

    // Copies have no records; the old parent's children get theirs first.
    Sel("C1R1");
    ed.Copiar();
    Sel("R2");
    ed.Pegar();
    ed.Pegar();
    Arrastrar(ed, N("I 10"));
    ed.ArrastrarSobre(N("C 13"));
    mensajes.Esperar(kMover, PreguntaMover("C1", "C1"), Respuesta::Si);
    ed.Soltar();
    EXPECT_EQ(Tags().substr(Tags().find("R 8")),
              "R 8#8[C 9#-[I 11#9,I 12#10],C 13#-[I 14#11,I 15#12,I 16#13,I 10#14]]]");
    EXPECT_EQ(Pesos("I 11"), "2/");
    EXPECT_EQ(Pesos("I 10"), "4/");
}

TEST_F(Eventos, TheTreeMenuFollowsTheTargetAndThePasteRule) {
    Abrir(Base(true));
    MenuArbol menu = ed.MenuContextual(nullptr);
    EXPECT_TRUE(menu.AñadirRVisible && menu.PegarVisible);
    EXPECT_FALSE(menu.InsertarVisible || menu.EliminarVisible || menu.CopiarVisible);
    EXPECT_FALSE(menu.PegarHabilitado);
    menu = ed.MenuContextual(N("C1R1"));
    EXPECT_EQ(menu.EliminarTitulo, "&Eliminar criterio");
    EXPECT_TRUE(menu.InsertarVisible && menu.Separador1Visible && menu.AñadirIVisible);
    EXPECT_FALSE(menu.AñadirSVisible || menu.AñadirCVisible || menu.AñadirRVisible);
    menu = ed.MenuContextual(N("C2R1"));
    EXPECT_FALSE(menu.AñadirIVisible);
    ed.Copiar();
    EXPECT_EQ(ed.NivelCopia, 0) << "noted at the next release";
    menu = ed.MenuContextual(N("R2"));
    EXPECT_EQ(ed.NivelCopia, 2);
    EXPECT_TRUE(menu.PegarHabilitado && ed.PegarHabilitado);
    EXPECT_EQ(menu.EliminarTitulo, "&Eliminar requerimiento");
    menu = ed.MenuContextual(N("I1C1R1"));
    EXPECT_FALSE(menu.PegarHabilitado || menu.Separador1Visible);
    EXPECT_EQ(menu.EliminarTitulo, "&Eliminar indicador");
    menu = ed.MenuContextual(N("M"));
    EXPECT_TRUE(menu.AñadirRVisible && menu.CopiarVisible && menu.RenombrarVisible);
    EXPECT_FALSE(menu.EliminarVisible);
}

TEST_F(Eventos, KeysFollowTheSelectionDeleteCopyAndAskForTheLabelEdit) {
    Abrir(Base());
    Sel("I2C1R1");
    EXPECT_EQ(ed.Tecla(40), PeticionTecla::Ninguna);
    EXPECT_EQ(ed.NodoActual, N("I2C1R1"));
    EXPECT_EQ(ed.NivelArrastre, 4);
    EXPECT_EQ(ed.Selector(4).Seleccion, 2);
    EXPECT_EQ(ed.Tecla(113), PeticionTecla::EditarEtiqueta);
    ed.Caracter(3);
    EXPECT_EQ(Forma(ed.tvwCopia), "I 9");
    ed.Tecla(46);
    EXPECT_EQ(Textos(), "Modelo [A[C1[i1,i3],C2],B]");
}

TEST_F(Eventos, RenamingSetsTheTextAndANodeKeyedPAsksFirst) {
    Abrir(Base());
    ed.SoltarRaton(N("R2"));
    EXPECT_TRUE(ed.Renombrar("Seguridad"));
    EXPECT_EQ(ed.Selector(1).Nombres, (std::vector<std::string>{"A", "Seguridad"}));
    ed.tvwArbol.Seleccionar(ed.tvwArbol.Añadir(N("M"), Relacion::UltimoHijo, "P", "x", 6));
    const std::string titulo = "VADRO PROGRAMADOR: cambio de nombre";
    const std::string pregunta = "Está seguro que quiere cambiar el nombre del modelo?";
    mensajes.Esperar(titulo, pregunta, Respuesta::No).Esperar(titulo, pregunta, Respuesta::Si);
    EXPECT_FALSE(ed.Renombrar("Presa ÉBANO"));
    EXPECT_EQ(N("P")->Text(), "x");
    EXPECT_TRUE(ed.Renombrar("Presa ÉBANO"));
    EXPECT_EQ(N("P")->Text(), "presa ébano");
}

TEST_F(Eventos, DescriptionAndFunctionMakeTheMissingRecordFirst) {
    Abrir(Base());
    Sel("I1C1R1");
    ed.Copiar();
    Sel("C1R1");
    ed.Pegar();
    ed.SoltarRaton(N("I 9"));
    EXPECT_EQ(ed.Descripcion, "");
    EXPECT_FALSE(N("I 9")->Tag());
    ed.CambiarDescripcion("n");
    EXPECT_EQ(Reg("I 9").Descripcion, "n");
    EXPECT_EQ(N("I 9")->Tag(), 9);
    EXPECT_EQ(Pesos("I 4"), "4/") << "the new record erased its siblings' weights";
    sesion().NodoEdicionActual = 0;
    ed.SoltarRaton(N("I 5"));
    EXPECT_EQ(ed.ClicFuncion(), "i2");
    EXPECT_EQ(sesion().NodoEdicionActual, 5);
    ed.SoltarRaton(N("C 3"));
    EXPECT_EQ(ed.ClicFuncion(), std::nullopt) << "the button is off away from indicators";
}

} // namespace
} // namespace vadro
