#pragma once

#include <string>

namespace vadro {

// The folder where "Config.ini", the default folders and the temporary files live: the one
// named by VADRO_DIR when set; else the executable's folder when it can be written; else the
// user's application-data folder, created when missing.
std::string ResolverDirectorioPrograma(const std::string& carpetaEjecutable);

// Whether a file can be created in the folder.
bool EsEscribible(const std::string& carpeta);

} // namespace vadro
