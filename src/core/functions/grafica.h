#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace vadro {

// Colours of the drawings: 24-bit values with red in the low byte.
using Color = uint32_t;
inline constexpr Color kNegro = 0x000000;
inline constexpr Color kAzul = 0xFF0000;
inline constexpr Color kRojo = 0x0000FF;
inline constexpr Color kBlanco = 0xFFFFFF;
// The colour of button faces, as the system gives it.
inline constexpr Color kCaraBoton = 0xF0F0F0;

// One drawing operation in user coordinates. Coordinates travel in single precision.
struct Primitiva {
    enum class Tipo {
        Escala,     // user coordinates: (x1, y1) is the top left corner, (x2, y2) the bottom right
        Borrar,     // clears the surface; the scale stays
        Linea,      // from (x1, y1) to (x2, y2), `ancho` pixels wide, in `color`
        Rectangulo, // filled with `color`, corners (x1, y1) and (x2, y2)
        Texto,      // `texto` with its top left corner at (x1, y1)
        TextoVertical, // `texto` turned by 90 degrees to read upwards, its top left corner (before
                       // the turn) at (x1, y1)
    };
    Tipo tipo = Tipo::Borrar;
    float x1 = 0;
    float y1 = 0;
    float x2 = 0;
    float y2 = 0;
    int ancho = 1;
    Color color = kNegro;
    std::string texto;
    bool operator==(const Primitiva&) const = default;
};

// A drawing as a list of operations, computed once without any toolkit and painted by
// whoever shows it: a window, an image, a printed page. The interface is that of a classic
// drawing surface: a scale, a current line width, lines in a colour, clearing and text. A
// painter replays the list from the start; an operation after a clearing draws over it.
class Grafica {
public:
    void Escala(float izquierda, float arriba, float derecha, float abajo);
    void Borrar();
    // The width of the lines drawn from now on, in pixels of a normal screen.
    void AnchoLinea(int ancho);
    void Linea(float x1, float y1, float x2, float y2, Color color);
    void Rectangulo(float x1, float y1, float x2, float y2, Color color);
    void Texto(float x, float y, const std::string& texto, Color color = kNegro);
    void TextoVertical(float x, float y, const std::string& texto, Color color = kNegro);

    const std::vector<Primitiva>& Primitivas() const { return primitivas_; }
    bool Vacia() const { return primitivas_.empty(); }
    // Forgets every operation; the line width goes back to 1.
    void Reiniciar();

    // The operations from the last clearing on, with the scale in force at it: what a
    // surface shows.
    std::vector<Primitiva> Visibles() const;

    bool operator==(const Grafica&) const = default;

private:
    std::vector<Primitiva> primitivas_;
    int ancho_ = 1;
};

// The list as text, one operation a line, numbers with up to six significant digits and
// colours in hexadecimal: "Escala (-10,1.2) (115,-0.3)", "Linea 2 000000 (0,0) (105,0)". Tests
// compare drawings in this form.
std::string ListadoGrafica(const Grafica& grafica);

} // namespace vadro
