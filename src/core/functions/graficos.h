#pragma once

#include "core/core/registros.h"
#include "core/functions/curva_continua.h"
#include "core/functions/grafica.h"

#include <array>
#include <string>
#include <vector>

namespace vadro {

// The drawings of a value function, each as a display list in user coordinates: the main
// drawing of the editor, the small drawing of an optional indicator and the two pictures of
// the model report. None of them knows a window; a painter shows the list.

// A row of the interval grid as it is shown: "Id", "Desde...", "... hasta ...", "Valor R(x)".
using FilaIntervalo = std::array<std::string, 4>;

// What the editor's main drawing reads from the window's inputs, as texts.
struct EntradaGrafica {
    std::string MinRef;
    std::string MaxRef;
    std::string Unidades;
    bool AjustarMinRef = false;
    bool AjustarMaxRef = false;
    bool Escalon = false; // the kind list shows "Escalón"
    std::string C;
    std::string K;
    std::string P;
    std::vector<FilaIntervalo> Filas; // the grid's rows, the first at index 0
    int Intervalos = 0;               // the count in `lblIntervalos`
};

// The frame of the main drawing: the ends of the abscissa (single precision, as the surface
// keeps them), its margin and the reference limits in use.
struct MarcoGrafica {
    float Inferior = 0;
    float Superior = 100;
    double M = 10;
    double RefMinActual = 0;
    double RefMaxActual = 100;
};

// The outcome of the frame routine beside its drawing.
struct ResultadoGrafica {
    bool Dibujada = false; // false: nothing can be drawn, the surface is cleared
    std::string Minimo;    // captions of `lblMinimo` and `lblMaximo`, set only when drawn
    std::string Maximo;
    MarcoGrafica Marco;
};

// A text read leniently: the number at its start, 0 when there is none.
double LecturaLaxa(const std::string& texto);

// Whether the main drawing is wanted: the two reference texts differ, or both adjust boxes
// are ticked.
bool GraficaDeseada(const EntradaGrafica& entrada);

// The captions of the two ends of the abscissa, the lower one first, each with the unit.
std::array<std::string, 2> LeyendasAbscisa(const EntradaGrafica& entrada);

// The frame of the main drawing: starts the list afresh, sets the scale, draws the axes and
// hands over to the continuous or the step drawing. When nothing can be drawn the list only
// clears the surface; showing the notice is the caller's part. The curve keeps its factor
// from one drawing to the next.
ResultadoGrafica Graficar(const EntradaGrafica& entrada, CurvaEditor& curva, Grafica& grafica);

// The curve of the main drawing over its frame, and its reference lines.
void GraficarContinua(const EntradaGrafica& entrada, const MarcoGrafica& marco, CurvaEditor& curva,
                      Grafica& grafica);
// The steps of the main drawing: one bar per complete row and a riser to a complete next row.
void GraficarDiscreta(const EntradaGrafica& entrada, const MarcoGrafica& marco, Grafica& grafica);

// The small drawing of an optional indicator's function: continuous for `Tipo` 1, steps for
// any other. It reads the stored record alone.
Grafica GraficarOptativo(const FuncionOptativo& funcion);

// The pictures of the model report. The continuous one takes `C` as stored and draws the
// crossed box instead when the function has no curve (false). The step one draws nothing
// when its reference limits leave no range (false). The crossed box stands for a function
// without enough data.
bool GraficarInforme(const FuncionValor& funcion, Grafica& grafica);
bool GraficarInformeEscalon(const FuncionValor& funcion, Grafica& grafica);
void GraficarCajaCruzada(Grafica& grafica);

// Writes a caption turned by 90 degrees over a vertical gradient, on a surface of a given
// size in pixels. Setting the caption or a colour draws again at once when a surface is set.
class cTextoVertical {
public:
    // A surface to draw on: its list and its size in pixels.
    struct Superficie {
        Grafica grafica;
        int Ancho = 0;
        int Alto = 0;
    };

    const std::string& Caption() const { return caption_; }
    void Caption(const std::string& texto);
    Color StartColor() const { return inicio_; }
    void StartColor(Color color);
    Color EndColor() const { return fin_; }
    void EndColor(Color color);
    void DrawingObject(Superficie* superficie);

    // Fills the surface from the bottom up in bands of 1/255 of its height, each in the
    // colour of its height between the two ends, then writes the caption at x -2, y at the
    // bottom, reading upwards.
    void Draw();

private:
    std::string caption_;
    Color inicio_ = kCaraBoton;
    Color fin_ = kCaraBoton;
    Superficie* superficie_ = nullptr;
};

} // namespace vadro
