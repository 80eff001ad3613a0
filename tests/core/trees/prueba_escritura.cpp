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

// Indicators and subcriteria inserted beside each other under a criterion are written as of
// the kind of the first child; a tree of the root alone leaves no requirement.
TEST_F(Escritura, ChildrenAreTakenAsOfTheKindOfTheFirstAndTheRootAloneLeavesNone) {
    Abrir(true, true);
    Pasos("arboles/pasos/escritura_hijos.txt", {Respuesta::Si});
}

// The pasted criterion gets its record, and its slot of the model keeps what it held (the old
// C2's description and weight).
TEST_F(Escritura, APastedNodeGetsItsRecordAndItsSlotKeepsWhatItHeld) {
    Abrir();
    Pasos("arboles/pasos/escritura_pegado.txt");
}

// A criterion whose row has the wrong width after a deletion keeps what the slot held, and the
// write erases its record's row to the right width.
TEST_F(Escritura, ARowOfTheWrongWidthStopsACriterionsWeights) {
    Abrir();
    Pasos("arboles/pasos/escritura_criterio.txt", {Respuesta::Si});
}

// Below the criterion the test looks at the criterion's row, not at the node's own: a row one
// too wide travels.
TEST_F(Escritura, ARowOfTheWrongWidthDoesNotStopAnIndicatorsWeights) {
    Abrir();
    Pasos("arboles/pasos/escritura_indicador.txt");
}

} // namespace
} // namespace vadro
