#pragma once

#include <optional>
#include <string>

namespace vadro::pruebas {

// The expected text of a test, kept byte for byte in the data file tests/datos/<nombre>. A
// maintainer who has changed an output on purpose runs the tests with VADRO_ACTUALIZAR_DATOS=1:
// each file is then rewritten from the actual text, which comes back, and the new data must be
// read before it is committed. A missing data file reads as a note that says so.
std::string Datos(const std::string& nombre, const std::string& real);

// The data file tests/datos/<nombre> as it stands, or nothing when it cannot be read.
std::optional<std::string> LeerDatos(const std::string& nombre);

} // namespace vadro::pruebas
