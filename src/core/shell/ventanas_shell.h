#pragma once

#include "core/core/registros.h"

#include <array>
#include <string>

namespace vadro {

// ---- The properties of the model

// One field of the properties dialog: its label and the model's text it edits.
struct CampoPropiedad {
    const char* etiqueta;
    std::string Modelo::*campo;
};
inline constexpr int kNumPropiedades = 7;
// The fields by index, as the dialog's `txtInfo` and `lblInfo` arrays stand.
const std::array<CampoPropiedad, kNumPropiedades>& CamposPropiedades();

// What the dialog shows at its load: the model's texts, an empty one leaving its field empty.
std::array<std::string, kNumPropiedades> LeerPropiedades(const Modelo& modelo);
// Acceptance: the seven texts go to the model as they stand; nothing is required, a date is
// any text.
void AceptarPropiedades(Modelo& modelo, const std::array<std::string, kNumPropiedades>& textos);

// ---- The axes of the system's limits

// The three axes: X is time (the stages), Y the requirements, Z the components.
enum class Eje { X, Y, Z };
inline constexpr std::array<Eje, 3> kEjes = {Eje::X, Eje::Y, Eje::Z};

// The title an axis takes when the model names none.
const char* TituloPorDefecto(Eje eje);
// The model's title of an axis.
const std::string& TituloEje(const Modelo& modelo, Eje eje);
// What the axes dialog shows at its load: the model's titles, the default where it has none.
std::array<std::string, 3> LeerTitulosEjes(const Modelo& modelo);
// Acceptance of the axes dialog: the three texts as they stand, an empty one too; the model is
// then modified.
void AceptarTitulosEjes(Modelo& modelo, const std::array<std::string, 3>& titulos);

// The hint of the status bar while the pointer stands on an axis's button.
const char* AyudaEje(Eje eje);

// A rectangle or a segment in the picture's own unit square, (0,0) top left and (1,1) bottom
// right, which the window scales to its size, so that the picture and the buttons keep their
// proportions.
struct Rectangulo {
    double x, y, ancho, alto;
};
struct Segmento {
    double x1, y1, x2, y2;
};
// The line of an axis, from the common origin to its arrow's tip.
Segmento LineaEje(Eje eje);
// The button on an axis, near its tip.
Rectangulo BotonEje(Eje eje);
// The button of the axes dialog, apart from the three axes.
Rectangulo BotonConfigurar();
// A unit rectangle in a window of that size, in pixels, rounded to whole pixels.
std::array<int, 4> Escalar(const Rectangulo& r, int ancho, int alto);

} // namespace vadro
