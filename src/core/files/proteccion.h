#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vadro {

// Every complete file the program writes is scrambled line by line with a fixed key phrase,
// which the user module holds too. Lines are 8-bit text.

inline const std::string kFraseClave = "lasgaviotasdelpuertovuelanbajoantesdelatormentafin";

// Adds the key's codes, subtracting 255 on overflow; each line starts at the start of the key.
std::string CodificarLinea(const std::string& linea);
// Subtracts them, adding 255 below zero. Code 255 does not come back: it decodes as 0.
std::string DecodificarLinea(const std::string& linea);

// The bytes of the scrambled file for these plain lines: each coded line followed by an empty
// line. A coded character 10 or 13 breaks its line, exactly as in a second pass over the
// coded file.
std::string TextoProtegido(const std::vector<std::string>& lineasPlanas);
// The same for a plain text, its lines ended as DividirLineas reads them.
std::string ProtegerTexto(std::string_view textoPlano);

// Turns the plain text at the path into its scrambled form, at the same path; the previous
// file is replaced only when the new one is whole. Returns the path.
std::string ProtegerArchivo(const std::string& ruta);

// The temporary file for a path: the program directory, the base name, the extension ".$$$";
// never the path itself (a "~" is added to the base name until it differs).
std::string RutaTemporal(const std::string& ruta);

// Writes the plain text of the file into its temporary file and returns the temporary path.
// Plain text is told by its first five characters, "*****", and copied as it stands; in a
// scrambled file empty lines are skipped and every other line decoded.
std::string RecuperarArchivo(const std::string& ruta);

// The plain text of a file's bytes, scrambled or not, as RecuperarArchivo writes it: every line
// ended by carriage return and line feed. A decoded line break splits its line when the text
// is read back.
std::string TextoPlano(std::string_view bytes);

// The plain lines of a file, scrambled or not, without a temporary file.
std::vector<std::string> LineasPlanas(std::string_view bytes);

} // namespace vadro
