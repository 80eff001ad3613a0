#pragma once

#include "core/core/registros.h"
#include "core/files/texto_modelo.h"

#include <string>

namespace vadro {

// The header section of a model: its marker and the "MOD" lines, every key prefixed with
// `indice`.
void EscribirCabecera(const Modelo& modelo, ArchivoSalida& salida, const std::string& indice);
void LeerCabecera(Modelo& modelo, ArchivoEntrada& archivo, const std::string& indice);

// Writes the complete model: the header, then the sections. With `anadir` the text is
// appended as plain text; otherwise it replaces the file, scrambled. A failure to write the file
// is shown to the user and the model keeps its `Modificado`: the result says whether the file
// was written; so does a save the user abandoned in a retry box, which writes nothing.
bool GuardarModelo(Modelo& modelo, const std::string& ruta, bool anadir,
                   const std::string& indice = {});

// Reads a complete file on its own. A failure the section readers do not catch goes up to
// the caller as a runtime error whose description names the file (memory exhaustion is
// "Memoria insuficiente", 7); an empty or unknown file gives an empty model.
void CargarModelo(Modelo& modelo, const std::string& ruta, const std::string& indice = {});

// Reads a model from a file the caller holds open, from its current position.
void CargarModelo(Modelo& modelo, ArchivoEntrada& archivo, const std::string& indice = {});

} // namespace vadro
