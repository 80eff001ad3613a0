#include "edicion_prueba.h"

#include <gtest/gtest.h>

namespace vadro {
namespace {

using namespace pruebas;
using Eventos = PruebaEdicion;

// A dragged indicator may drop on a subcriterion or a criterion with indicators, not on a
// criterion with subcriteria; the rule is tested again only on a new node under the pointer.
TEST_F(Eventos, TheHighlightFollowsTheRuleAndIsTestedOnlyOnANewNode) {
    Abrir(true);
    Pasos("arboles/pasos/resaltado.txt");
}

// The selectors show the moved node.
TEST_F(Eventos, ADropOnTheOwnParentMovesLastAndKeepsEveryWeight) {
    Abrir();
    Pasos("arboles/pasos/soltar_mismo_padre.txt");
}

// Copies have no records: on a Yes, the old parent's children get theirs first.
TEST_F(Eventos, ADropElsewhereAsksAndOnYesErasesOldThenNewSiblings) {
    Abrir();
    Pasos("arboles/pasos/soltar_otro_padre.txt", {Respuesta::No, Respuesta::Si});
}

// The menu by its target; a copy's level is noted at the next release, and a copied criterion
// goes only under a requirement.
TEST_F(Eventos, TheTreeMenuFollowsTheTargetAndThePasteRule) {
    Abrir(true, false);
    Pasos("arboles/pasos/menu.txt");
}

// A key (down, 40) takes up the tree's selection as the current node, F2 (113) asks for the
// label editor, Ctrl+C (3) copies, Delete (46) deletes; a rename reaches the selectors.
TEST_F(Eventos, KeysFollowTheSelectionDeleteCopyAndEditAndARenameReachesTheSelectors) {
    Abrir();
    Pasos("arboles/pasos/teclas.txt");
}

TEST_F(Eventos, ANodeKeyedPAsksBeforeARename) {
    Abrir();
    ed.tvwArbol.Seleccionar(ed.tvwArbol.Añadir(N("M"), Relacion::UltimoHijo, "P", "x", 6));
    const std::string titulo = "VADRO PROGRAMADOR: cambio de nombre";
    const std::string pregunta = "Está seguro que quiere cambiar el nombre del modelo?";
    mensajes.Esperar(titulo, pregunta, Respuesta::No).Esperar(titulo, pregunta, Respuesta::Si);
    EXPECT_FALSE(ed.Renombrar("Presa ÉBANO"));
    EXPECT_EQ(N("P")->Text(), "x");
    EXPECT_TRUE(ed.Renombrar("Presa ÉBANO"));
    EXPECT_EQ(N("P")->Text(), "presa ébano");
}

// The description and the function button make the record a pasted node lacks first; the new
// record erases its siblings' weights. The function button is off away from indicators.
TEST_F(Eventos, DescriptionAndFunctionMakeTheMissingRecordFirst) {
    Abrir();
    Pasos("arboles/pasos/descripcion.txt");
}

} // namespace
} // namespace vadro
