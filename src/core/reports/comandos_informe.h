#pragma once

#include "core/core/dialogos.h"
#include "core/core/mensajes.h"
#include "core/core/sesion.h"

#include <functional>
#include <string>

namespace vadro {

// The look of the report's pictures on a page, in twips: a function's drawing and the icon
// before an entry of a tree, about as high as a line of its text.
inline constexpr int kAnchoGraficaInforme = 2880;
inline constexpr int kAltoGraficaInforme = 1800;
inline constexpr int kLadoIconoInforme = 220;

// A report that takes the user's time: what the progress box says, and how long the building
// may last before the box shows.
inline constexpr const char* kTextoProgresoInforme = "Preparando el informe del modelo...";
inline constexpr int kEsperaProgresoMs = 1000;

// Twips in the units of a device with so many dots to the inch.
double TwipsAPuntos(int twips, double puntosPorPulgada);

// The printer dialog of the model report: no printing to a file (the report has an export of
// its own for that), no page numbers, no selection: the whole report goes out.
PeticionImpresora PeticionImprimirModelo();

// The printing of the model that went wrong: "Error N al realizar la impresión.".
Mensaje MensajeFalloImprimirModelo(int numero);

// The caption of the print preview of the report.
inline constexpr const char* kTituloVistaPreliminar =
    "VADRO PROGRAMADOR: vista preliminar del informe";

// Where the report goes as PDF: beside the model's file with its base name; a model never
// saved starts in the folder of the models (that of the configuration, else the program's).
PeticionDialogo PeticionExportarPdf(const Sesion& sesion);

// The export that went wrong: the error's number and what it says.
Mensaje MensajeFalloExportarPdf(int numero, const std::string& descripcion);

// Exports the report: asks for the file, then hands its path to `escribir`, the window
// layer's writing of the PDF. A cancelled dialog says nothing; a failure of the dialog or of
// the writing ends in the failure message. True when the file was written.
bool ExportarInformePdf(const Sesion& sesion,
                        const std::function<void(const std::string& ruta)>& escribir);

} // namespace vadro
