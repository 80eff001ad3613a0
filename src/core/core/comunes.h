#pragma once

#include "core/core/registros.h"
#include "core/core/valor_libre.h"

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace vadro {

// Joins the pieces of a text in one allocation. It also keeps GCC 12 from its false
// -Wrestrict warning on a literal added to a temporary string.
std::string Unir(std::initializer_list<std::string_view> partes);

// File names, split by the last separator ("\" or "/"). A path from a file dialog always has
// one; a path without it (or, for the extension, without ".") is a failure, runtime error 5.
std::string DirectorioDe(const std::string& ruta);
std::string NombreSinExtension(const std::string& ruta);
std::string ExtensionDe(const std::string& ruta);

// The text with its letters A to Z in lower case; other characters as they stand, whatever the
// locale.
std::string MinusculasAscii(std::string texto);

// The decimal separator of the user's locale at the moment of the call: "." when 77.7 prints
// with one, else ",". The second form prints 0.5 and takes its second character.
std::string SeparadorDecimal();
std::string SeparadorDecimalDeMedio();

// The key filter of the numeric fields: the key that goes through (0 for a refused one) and
// whether the refusal beeps. A second separator and carriage return are refused silently;
// digits, backspace, "+", ",", "-", "." and the exponent letters D and E pass.
struct TeclaFiltrada {
    int tecla;
    bool pitido;
};
TeclaFiltrada FiltrarTeclaNumero(const std::string& texto, int tecla);

// The interval of a function's limits: "<0" and "=100" give "(0,100]"; an undefined limit
// gives "?".
std::string TextoIntervalo(const ValorLibre& minimo, const ValorLibre& maximo);

// A row of a tree to be shown: its key, its text and the key of its parent (empty at the top).
struct FilaArbol {
    std::string clave;
    std::string texto;
    std::string clavePadre;
    bool operator==(const FilaArbol&) const = default;
};

// The components of a model as tree rows, "Co<c>" with their subcomponents "Sc<s>Co<c>" under
// them; with `conClave` each text starts with "(" and the key and ") ".
std::vector<FilaArbol> LlenarArbolComponentes(const Modelo& modelo, bool conClave);

// The names of the stages, in order.
std::vector<std::string> LlenarEtapas(const Modelo& modelo);

} // namespace vadro
