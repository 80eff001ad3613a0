#pragma once

#include "core/core/registros.h"
#include "core/files/texto_modelo.h"

#include <string>

namespace vadro {

// The requirements tree with the weights of every sibling set and, behind each indicator's
// lines, its value function. Keys are "REQ_" and the node's position, deepest first, built
// from the loop counters whatever the nodes' `Clave` says; every key and the marker carry the
// prefix `indice`.

// Adds the section to lines being built. The counts govern, not the sizes of the arrays. The
// writing changes the model: a `Calculo` other than 1 becomes 0, and each function's `Clave`
// becomes its indicator's key. A failure shows "Error al guardar el árbol de requerimientos."
// and ends the section where it got to; the result says whether it was complete.
bool GuardarRequerimientos(Modelo& modelo, ArchivoSalida& salida, const std::string& indice = {});
// Writes the section to a file: appended as part of a larger file, or as a complete file.
void GuardarRequerimientos(Modelo& modelo, const std::string& ruta, bool anadir,
                           const std::string& indice = {});

// Reads the section from the current position of an open file, in the order of the writer.
// There is no trap: a count, a "_CAL" or a scaled number that is no number goes up as a
// runtime error, and so does a count beyond the 16-bit counters (overflow).
void CargarRequerimientos(Modelo& modelo, ArchivoEntrada& archivo, const std::string& indice = {});
// Reads a file that holds the section alone, plain or scrambled.
void CargarRequerimientos(Modelo& modelo, const std::string& ruta, const std::string& indice = {});

} // namespace vadro
