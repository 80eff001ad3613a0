#pragma once

#include "core/core/dialogos.h"
#include "core/core/registros.h"

#include <string>

namespace vadro {

// Puts a model in its blank state: one empty element in each list, no counts, no identity,
// no file, the default axis titles and the running program's version.
void InicializarModelo(Modelo& modelo);

// The question of the new-model command when the model was modified. False when the user
// cancels. On Yes the model is saved at once to `Archivo`, whatever it holds: no name is
// asked for.
bool GuardarAntesDeNuevo(Modelo& modelo);

// The save dialog of a model. With `Archivo` empty it opens on the folder "Archivos de
// proyecto" of the program; otherwise `nombreCompleto` decides whether it proposes the whole
// path (save as) or the folder and the name apart (save).
PeticionDialogo PeticionGuardarModelo(const std::string& archivo,
                                      const std::string& directorioPrograma, bool nombreCompleto);

// A model that has never been saved, or that was opened from a compiled file, needs a name:
// a compiled file is never saved over as a model.
bool NecesitaNombre(const std::string& archivo);

// Asks for the name the model is saved under and takes it into `Archivo`. False, with
// `Archivo` as it was, when the user cancels.
bool ElegirArchivoModelo(Modelo& modelo, const std::string& directorioPrograma,
                         bool nombreCompleto);

// The save-as command: asks for a name whatever `Archivo` holds, takes it and writes the model
// there. False, with `Archivo` as it was, when the user cancels.
bool GuardarComo(Modelo& modelo, const std::string& directorioPrograma);

// The save question of the closing main window, only when the model was modified. Yes saves
// to `Archivo`, or through the save-as dialog when there is none; a cancelled dialog does not
// stop the closing. False when the user cancels the question, and the window must stay.
bool GuardarAlCerrar(Modelo& modelo, const std::string& directorioPrograma);

} // namespace vadro
