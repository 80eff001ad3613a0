#pragma once

#include "core/core/dialogos.h"
#include "core/core/registros.h"
#include "core/core/sesion.h"

#include <string>
#include <utility>
#include <vector>

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

// The folder of that name in the program directory, made when it is missing, so that a
// dialog opens inside it. A folder that cannot be made is left to the dialog.
std::string CarpetaDelPrograma(const Sesion& sesion, const std::string& nombre);

// The open dialog of a model, on the last folder of models.
PeticionDialogo PeticionAbrirModelo(const std::string& directorioModelos);

// Whether a file's plain lines read as a model: an empty file does (it loads as the empty
// model), and so does any file with a marker or a line of one of the model's sections.
bool PareceModelo(const std::vector<std::string>& lineas);

// The steps of the open command that need no window: the question once a model has been
// opened before, the blank model before the dialog, the dialog on the last folder of models
// (remembered in "Config.ini"), the reading and the running version. True when a model was
// read: it is then the session's, with its file and no unsaved change. A cancel ends quietly;
// any other failure is told as "Error <n> al abrir el modelo: <description>" and leaves the
// blank model with no file, so that nothing is saved over the file that failed.
bool AbrirModelo(Sesion& sesion);

// The step labels after an opening, with whether each is satisfied: 1, 2 and 3 by the counts
// of requirements, components and stages, 6 when no node of the tree lacks its weight.
std::vector<std::pair<int, bool>> EtiquetasTrasAbrir(const Modelo& modelo);

// What the subcriteria permission did.
enum class CambioSubcriterios { Ninguno, Permitidos, Eliminados };

// The click on the subcriteria permission, `marcado` being the entry's state before it.
// Unchecked: a question, and on Yes subcriteria are allowed. Checked: a question only when the
// model holds subcriteria (an unaccepted tree does not count), and on Yes or without a
// question they are removed, their indicators moving up to their criteria.
CambioSubcriterios CambiarPermisoSubcriterios(Modelo& modelo, bool marcado);

} // namespace vadro
