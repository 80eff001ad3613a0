#include "edicion_prueba.h"

#include <gtest/gtest.h>

namespace vadro {
namespace {

using namespace pruebas;
using Escenarios = PruebaEdicion;

// A new model: a requirement from the root's counter, a criterion, an indicator and one
// inserted before it (which stays selected), a described indicator; the criterion copied and
// pasted twice, an indicator dragged onto the first criterion with a Yes, and a deletion kept
// by a No. The write-back gives the pasted indicators their records.
TEST_F(Escenarios, ANewModelBuiltCopiedPastedDraggedAndKeptThroughANo) {
    Modelo nuevo;
    nuevo.Nombre = "Presa";
    Abrir(nuevo);
    Pasos("arboles/pasos/modelo_nuevo.txt", {Respuesta::Si, Respuesta::No});
}

// A subcriterion takes both indicators, a third is added beside them and renamed, and a drag
// onto the criterion with subcriteria shows no target; removing the subcriteria brings the
// indicators up last first.
TEST_F(Escenarios, SubcriteriaMadeRenamedAndRemovedLeaveTheIndicatorsReversed) {
    Modelo m = ModeloCon({Requerimiento("A", {Criterio("C", {Indicador("i1"), Indicador("i2")})})});
    m.ConSubcriterios = true;
    Abrir(m);
    Pasos("arboles/pasos/subcriterios_quitados.txt");
}

} // namespace
} // namespace vadro
