#include "edicion_prueba.h"

#include <gtest/gtest.h>

namespace vadro {
namespace {

using namespace pruebas;
using Selectores = PruebaEdicion;

// On an empty model only the first counter is on; a counter that is off does nothing, and the
// root's up arrow adds a requirement. The root fills no selector.
TEST_F(Selectores, TheRootShowsNothingAndItsUpArrowAddsARequirement) {
    Abrir(Modelo{});
    Pasos("arboles/pasos/selectores_raiz.txt");
}

// A requirement without criteria has no indicator counter. An indicator unlocks its list and
// the function button; the captions name the parent of each level, and without the permission
// the subcriteria selector is off.
TEST_F(Selectores, EnabledStatesListsAndCaptionsFollowTheLevelAndThePermission) {
    Abrir(true, true);
    Pasos("arboles/pasos/selectores_niveles.txt");
}

// The down arrow removes the node the selector shows, and nothing at zero. A paste renumbers
// the loaded keys, but the selectors still hold them.
TEST_F(Selectores, TheDownArrowRemovesTheNodeShownAndNothingAtZero) {
    Abrir();
    Pasos("arboles/pasos/selectores_bajar.txt");
}

// A click selects, it does not refill; a list opened and closed without a choice acts on the
// program's next choice; typing in an unlocked list renames the node of its key, and a locked
// list takes no typing.
TEST_F(Selectores, OnlyAListTheUserOpenedActsOnAClickAndTypingRenames) {
    Abrir();
    Pasos("arboles/pasos/selectores_listas.txt");
}

} // namespace
} // namespace vadro
