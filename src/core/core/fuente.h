#pragma once

#include <optional>
#include <string>

namespace vadro {

// The classes of control that take the font size of the preferences.
enum class ClaseControl { Etiqueta, CuadroTexto, Combo, Marco, Boton, Casilla, Cuadricula, Arbol };

inline const std::string kNombreFuente = "MS Sans Serif";

// What a font size class gives a control: its size in points and, for labels and text
// boxes, its height in twips. A class outside 0 to 2 gives neither: only the font name is set.
struct MedidaFuente {
    std::optional<int> puntos;
    std::optional<int> altoTwips;
};

MedidaFuente MedidasFuente(ClaseControl clase, int tamanoFuente);

// Twips are a fifteenth of a pixel at the usual 96 dots per inch.
constexpr int TwipsAPixeles(int twips) {
    return twips / 15;
}

} // namespace vadro
