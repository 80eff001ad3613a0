#pragma once

#include <string>

namespace vadro {

// The program's version: major, minor and revision joined with ".".
inline std::string VersionPrograma() {
    return std::to_string(VADRO_VERSION_MAYOR) + "." + std::to_string(VADRO_VERSION_MENOR) + "." +
           std::to_string(VADRO_VERSION_REVISION);
}

} // namespace vadro
