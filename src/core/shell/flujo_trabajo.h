#pragma once

#include "core/core/registros.h"
#include "core/core/valor_libre.h"

#include <string>

namespace vadro {

// The positions of the workflow line, as the main window holds them.
inline constexpr const char* kPosicionEjes = "Ejes";
inline constexpr const char* kPosicionResumen = "Resumen";
inline constexpr const char* kPosicionPonderacion = "Ponderacion";
inline constexpr const char* kPosicionInforme = "Informe";

// What the status bar shows for a position: "Posición: " and the position in lower case.
std::string TextoPosicion(const std::string& posicion);


// The end of the line at "Informe": the messages, and whether the user asked to compile.
// A compiled model only hears what to do next; otherwise the user is asked.
bool PreguntarCompilarAlFinal(const Modelo& modelo);

// The refusal of the compile command on a model without requirements: false after the
// message, true when compiling may go on.
bool ModeloCompilable(const Modelo& modelo);

} // namespace vadro
