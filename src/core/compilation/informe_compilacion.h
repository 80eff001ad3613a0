#pragma once

#include "core/core/dialogos.h"
#include "core/core/mensajes.h"
#include "core/core/sesion.h"

#include <functional>

#include <string>
#include <vector>

namespace vadro {

// The present date and time in the short format of the user's settings.
std::string FechaHoraCorta();

// The lines of a saved compilation report: a heading, the model's name, the date and time, two
// empty lines, then the report as shown.
std::vector<std::string> LineasInformeCompilacion(const Modelo& modelo,
                                                  const std::vector<std::string>& informe,
                                                  const std::string& fechaHora);

// Asks where to save the report (beside the model, with its base name, when it has a file)
// and writes it as plain text. Nothing is said on success; a cancelled dialog writes nothing
// and gives false. A failure to write goes up to the caller.
bool GuardarInformeCompilacion(const Sesion& sesion, const std::vector<std::string>& informe);

// The printer dialog of the report leaves out printing to a file, page numbers and the
// selection.
PeticionImpresora PeticionImprimirInforme();

// The information box of a printing that went wrong.
Mensaje MensajeFalloImpresion();

// Prints the report: asks for the printer, then hands it to `imprimir`, the window layer's
// printing of the report's lines. A cancelled dialog says nothing; any other failure, of the
// dialog or of the printing, ends in the failure message. True when the report was printed.
bool ImprimirInformeCompilacion(const std::function<void(const ImpresoraElegida&)>& imprimir);

} // namespace vadro
