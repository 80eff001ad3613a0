#include "edicion_prueba.h"
#include "soporte/acta.h"

#include <gtest/gtest.h>

namespace vadro {
namespace {

using namespace pruebas;
using Eventos = PruebaEdicion;

TEST_F(Eventos, TheHighlightFollowsTheRuleAndIsTestedOnlyOnANewNode) {
    Abrir(true);
    Arrastrar("I1C1R1", "C2R1");
    EXPECT_EQ(ed.NivelArrastre, 4);
    EXPECT_EQ(ed.tvwArbol.ResaltadoDestino(), nullptr) << "a criterion with subcriteria";
    ed.ArrastrarSobre(N("S1C2R1"));
    EXPECT_EQ(ed.tvwArbol.ResaltadoDestino(), N("S1C2R1"));
    ed.ArrastrarSobre(N("C2R1"));
    ed.tvwArbol.Quitar(N("S1C2R1"));
    ed.ArrastrarSobre(N("C2R1"));
    EXPECT_EQ(ed.tvwArbol.ResaltadoDestino(), nullptr) << "same node, no new test";
    ed.ArrastrarSobre(N("C1R1"));
    EXPECT_EQ(ed.tvwArbol.ResaltadoDestino(), N("C1R1")) << "a criterion with indicators";
}

TEST_F(Eventos, ADropOnTheOwnParentMovesLastAndKeepsEveryWeight) {
    Abrir();
    Arrastrar("I1C1R1", "C1R1");
    ed.Soltar();
    EXPECT_EQ(Claves(), "M[R1[C1R1[I2C1R1,I3C1R1,I1C1R1],C2R1],R2]");
    EXPECT_EQ(Pesos("I1C1R1") + Pesos("I2C1R1"), "3/103/10");
    EXPECT_EQ(ed.tvwArbol.ResaltadoDestino(), nullptr);
    EXPECT_EQ(ed.Selector(4).Seleccion, 3) << "the selectors show the moved node";
}

TEST_F(Eventos, ADropElsewhereAsksAndOnYesErasesOldThenNewSiblings) {
    Abrir();
    Arrastrar("I1C1R1", "C2R1");
    mensajes.Esperar(kMoverNodo, PreguntaMover("C1", "C2"), Respuesta::No);
    ed.Soltar();
    EXPECT_EQ(Claves(), "M[R1[C1R1[I1C1R1,I2C1R1,I3C1R1],C2R1],R2]");
    EXPECT_EQ(Pesos("I2C1R1"), "3/10");
    EXPECT_EQ(ed.tvwArbol.ResaltadoDestino(), nullptr);
    // Copies have no records: the old parent's children get theirs first.
    Sel("C1R1");
    ed.Copiar();
    Sel("R2");
    ed.Pegar();
    ed.Pegar();
    Arrastrar("I 10", "C 13");
    mensajes.Esperar(kMoverNodo, PreguntaMover("C1", "C1"), Respuesta::Si);
    ed.Soltar();
    EXPECT_EQ(Tags().substr(Tags().find("R 8")),
              "R 8#8[C 9#-[I 11#9,I 12#10],C 13#-[I 14#11,I 15#12,I 16#13,I 10#14]]]");
    EXPECT_EQ(Pesos("I 11") + Pesos("I 10"), "2/4/");
}

// The entries of a tree menu that show, "~" before a paste that is off, and the deletion's
// caption.
std::string Entradas(const MenuArbol& m) {
    std::string texto;
    for (const auto& [visible, nombre] : {std::pair{m.InsertarVisible, "Insertar"},
                                          {m.Separador1Visible, "|"},
                                          {m.EliminarVisible, "Eliminar"},
                                          {m.AñadirRVisible, "AñadirR"},
                                          {m.AñadirCVisible, "AñadirC"},
                                          {m.AñadirSVisible, "AñadirS"},
                                          {m.AñadirIVisible, "AñadirI"},
                                          {m.CopiarVisible, "Copiar"},
                                          {m.RenombrarVisible, "Renombrar"},
                                          {m.Separadores23Visible, "||"}}) {
        texto += visible ? std::string(nombre) + " " : "";
    }
    texto += m.PegarVisible ? (m.PegarHabilitado ? "Pegar" : "~Pegar") : "";
    return texto + (m.EliminarVisible ? ", '" + m.EliminarTitulo + "'" : "");
}

TEST_F(Eventos, TheTreeMenuFollowsTheTargetAndThePasteRule) {
    Abrir(true, false);
    Acta acta;
    const auto menu = [&](const std::string& cuando, const char* clave) {
        acta.Fila(cuando + "'" + clave + "'",
                  Entradas(ed.MenuContextual(*clave ? N(clave) : nullptr)));
    };
    for (const char* clave : {"", "C1R1", "C2R1"}) {
        menu("", clave);
    }
    ed.Copiar();
    EXPECT_EQ(ed.NivelCopia, 0) << "noted at the next release";
    for (const char* clave : {"R2", "I1C1R1", "M"}) {
        menu("a criterion copied, ", clave);
    }
    EXPECT_EQ(ed.NivelCopia, 2);
    acta.Comparar("arboles/menu_eventos.txt");
}

TEST_F(Eventos, KeysFollowTheSelectionDeleteCopyAndEditAndANodeKeyedPAsksBeforeARename) {
    Abrir();
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
    ed.SoltarRaton(N("R 7"));
    EXPECT_TRUE(ed.Renombrar("Seguridad"));
    EXPECT_EQ(ed.Selector(1).Nombres, (Lista{"A", "Seguridad"}));
    ed.tvwArbol.Seleccionar(ed.tvwArbol.Añadir(N("M 1"), Relacion::UltimoHijo, "P", "x", 6));
    const std::string titulo = "VADRO PROGRAMADOR: cambio de nombre";
    const std::string pregunta = "Está seguro que quiere cambiar el nombre del modelo?";
    mensajes.Esperar(titulo, pregunta, Respuesta::No).Esperar(titulo, pregunta, Respuesta::Si);
    EXPECT_FALSE(ed.Renombrar("Presa ÉBANO"));
    EXPECT_EQ(N("P")->Text(), "x");
    EXPECT_TRUE(ed.Renombrar("Presa ÉBANO"));
    EXPECT_EQ(N("P")->Text(), "presa ébano");
}

TEST_F(Eventos, DescriptionAndFunctionMakeTheMissingRecordFirst) {
    Abrir();
    Sel("I1C1R1");
    ed.Copiar();
    Sel("C1R1");
    ed.Pegar();
    ed.SoltarRaton(N("I 9"));
    EXPECT_FALSE(N("I 9")->Tag());
    ed.CambiarDescripcion("n");
    EXPECT_EQ(Reg("I 9").Descripcion, "n");
    EXPECT_EQ(Pesos("I 4"), "4/") << "the new record erased its siblings' weights";
    ed.SoltarRaton(N("I 5"));
    EXPECT_EQ(ed.ClicFuncion(), "i2");
    EXPECT_EQ(sesion().NodoEdicionActual, 5);
    ed.SoltarRaton(N("C 3"));
    EXPECT_EQ(ed.ClicFuncion(), std::nullopt) << "the button is off away from indicators";
}

} // namespace
} // namespace vadro
