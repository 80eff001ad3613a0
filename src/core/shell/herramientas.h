#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace vadro {

// The command-line companion of the designer, for models kept under version control or
// checked in batch. Returns the exit status: 0 done, 1 a model with errors, 2 a failure
// (a file it cannot read, wrong arguments), each told in Spanish on the error stream.
int EjecutarHerramientas(const std::vector<std::string>& argumentos, std::istream& entrada,
                         std::ostream& salida, std::ostream& error);

// A text file as 8-bit text: a file that is valid UTF-8 with characters beyond ASCII is taken
// as UTF-8 (as a hand-written file on most systems is); any other as 8-bit text already.
std::string ComoOchoBits(const std::string& bytes);

} // namespace vadro
