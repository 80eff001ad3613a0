#pragma once

#include "core/core/sesion.h"

namespace vadro {

// Writes the session's model as the compiled file for the user module: the same text as a
// model file, with the program's version in its header, at a path the user confirms in the
// save dialog. Says so in an information box and marks the session as compiled. False when the
// dialog is cancelled or the file could not be written (which its writer has shown); other
// failures go up to the caller.
bool EscribirCompilado(Sesion& sesion);

} // namespace vadro
