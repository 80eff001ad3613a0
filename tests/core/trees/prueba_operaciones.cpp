#include "edicion_prueba.h"

#include <gtest/gtest.h>

namespace vadro {
namespace {

using namespace pruebas;
using Operaciones = PruebaEdicion;

// A requirement always goes under the root; a criterion under the requirement of the selection,
// an indicator under a requirement after a criterion made first without a record. Each new
// record erases its siblings' weights, and only the weights. From the root a criterion fails
// (91) with the key's number already drawn.
TEST_F(Operaciones, AdditionsGoByTheLevelOfTheSelectionAndEraseTheirSiblingsWeights) {
    Abrir();
    Pasos("arboles/pasos/anadir.txt");
}

// The first subcriterion's record erases the criterion's rows, itself counted, before the
// indicators move under it. From inside a criterion a misplaced criterion fills selector 2, its
// parent's entry last; a second subcriterion takes the first one's indicators.
TEST_F(Operaciones, TheFirstSubcriterionTakesTheIndicatorsAndACriterionFromThemLandsTooDeep) {
    Abrir();
    Pasos("arboles/pasos/subcriterio.txt");
}

// The counter rises even with nothing selected.
TEST_F(Operaciones, InsertionsAddADefaultSiblingAndLeaveSelectionAndSelectorsAlone) {
    Abrir();
    Pasos("arboles/pasos/insertar.txt");
}

// After a deletion the next sibling is selected, for want of a previous one, and an only
// child leaves nothing selected; the root stays.
TEST_F(Operaciones, DeletionAsksForASubtreeErasesWeightsFirstAndRenumbers) {
    Abrir();
    Pasos("arboles/pasos/eliminar.txt", {Respuesta::No, Respuesta::Si});
}

// With no target the copy stands at the top.
TEST_F(Operaciones, ACopyCanBePastedTwiceAndArrivesWithoutRecords) {
    Abrir();
    Pasos("arboles/pasos/pegar.txt");
}

TEST_F(Operaciones, ACopyDrawsAgainOnATakenKeyAndShowsAnyOtherFailureOnce) {
    Abrir();
    Pasos("arboles/pasos/copia_nodo.txt");
}

// A failed addition leaves the counter; a failed record leaves the node in without it.
TEST_F(Operaciones, CountersOverflowPastTheirSixteenBits) {
    Abrir();
    Pasos("arboles/pasos/desbordamiento.txt");
}

} // namespace
} // namespace vadro
