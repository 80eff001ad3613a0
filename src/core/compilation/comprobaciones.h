#pragma once

#include "core/compilation/informe_errores.h"
#include "core/core/registros.h"

#include <string>

namespace vadro {

// The nine checks of a compilation, in the order in which they run and appear in the report.
// Each appends its heading, then its levels, each with its findings and a closing blank line
// (a check without levels closes its one body so); none changes the model. Nodes are labelled by
// their positions, deepest first
// ("I3S1C2R1"), and each finding carries an error key: a key word, a blank and the place.

void ComprobarExistenciaEtapas(const Modelo& modelo, InformeErrores& informe);
void ComprobarExistenciaComponentes(const Modelo& modelo, InformeErrores& informe);
void ComprobarNombresRepetidosComponentes(const Modelo& modelo, InformeErrores& informe);
void ComprobarExistenciaRequerimientos(const Modelo& modelo, InformeErrores& informe);
void ComprobarNombresRepetidosRequerimientos(const Modelo& modelo, InformeErrores& informe);
void ComprobarPesosNulos(const Modelo& modelo, InformeErrores& informe);
void ComprobarConsistencia(const Modelo& modelo, InformeErrores& informe);
void ComprobarFuncionValor(const Modelo& modelo, InformeErrores& informe);
void ComprobarArbolIncompleto(const Modelo& modelo, InformeErrores& informe);

// Whether the checks show a level for the subcriteria: only when the model uses that level
// and some criterion really has subcriteria.
bool ConNivelSubcriterios(const Modelo& modelo);

} // namespace vadro
