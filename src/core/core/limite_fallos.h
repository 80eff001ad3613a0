#pragma once

#include <functional>
#include <string>

namespace vadro {

// Runs one handler of the interface behind the one failure boundary of the program. A
// failure that leaves the handler never ends the program: a cancel (32755) ends the command
// silently; any other runtime error is shown in a plain box with its number, ": " and its
// description. A handler that owes the user the message of its own command catches its
// failure itself. True when the handler ran to its end.
bool EjecutarProtegido(const std::function<void()>& manejador) noexcept;

// The text of the boundary's box: "6: Desbordamiento".
std::string TextoFallo(int numero, const std::string& descripcion);

} // namespace vadro
