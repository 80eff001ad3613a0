#pragma once

#include "core/core/sesion.h"
#include "core/files/plantillas.h"
#include "core/shell/flujo_trabajo.h"

#include <string>
#include <vector>

namespace vadro {

// One of the six template entries of the model menu.
struct EntradaPlantilla {
    const char* nombre; // the menu entry's object name
    ParteModelo parte;
    bool importar;
};
const std::vector<EntradaPlantilla>& EntradasPlantilla();

const TipoPlantilla& TipoDeParte(ParteModelo parte);
// The design window of a part, and its step label.
Hija HijaDeParte(ParteModelo parte);
int EtiquetaDeParte(ParteModelo parte);

// Whether a file's plain lines hold the section of that part: its marker or one of its lines.
bool EsPlantillaDe(const std::vector<std::string>& lineas, ParteModelo parte);

// The command of a template entry: the dialog on the kind's last folder (remembered in
// "Config.ini" before anything is read or written), then the section read into the model or
// written from it. A file without the section of that kind is refused with a message and the
// model stays as it was. True when a template was read or written; false when cancelled or
// refused.
bool EjecutarPlantilla(Sesion& sesion, const EntradaPlantilla& entrada);

// What the main window does after an import of that part: the step label goes normal; the
// subcriteria entry follows the model after requirements; an open summary refills its pane
// and nothing more happens; otherwise an open design window refills its tree from the model,
// and a closed one is loaded.
struct EfectoImportacion {
    int etiqueta = -1;
    bool seguirPermiso = false;
    bool rellenarResumen = false;
    bool rellenarDiseno = false;
    bool cargarDiseno = false;
};
EfectoImportacion EfectoTrasImportar(ParteModelo parte, bool resumenAbierto, bool disenoAbierto);

} // namespace vadro
