#pragma once

#include "core/core/valor_libre.h"

#include <string>

namespace vadro {

// One key of a profile file: the text, trimmed, of a read of at most 255 characters, or
// "-1" when the key is missing. Sections and keys are found without regard to case.
ValorLibre LeerIni(const std::string& seccion, const std::string& clave,
                   const std::string& archivo);

// Writes one key, creating the file and the section when needed and leaving every other
// line as it was. A file that cannot be written is ignored, as the callers expect.
void EscribirIni(const std::string& seccion, const std::string& clave, const std::string& valor,
                 const std::string& archivo);

} // namespace vadro
