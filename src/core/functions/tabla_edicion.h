#pragma once

#include "core/functions/grafica.h"

#include <string>
#include <vector>

namespace vadro {

// The table grids of the function editor beside the interval grid: the optional indicators,
// and the boolean and numeric scoring elements.
enum class Tabla { Optativos, Booleanos, Numericos };

// The background of the current cell of the optional indicators' grid, and of every other.
inline constexpr Color kFondoCeldaActual = 0xC0C0FF;
inline constexpr Color kFondoCelda = kBlanco;

// One table grid as the editor keeps it: the rows under the header, the count of its label,
// the current cell and whether the floating input is open over it. With a count of 0 the
// grid shows one row whose cells read " -".
struct TablaEdicion {
    TablaEdicion(std::vector<std::string> cabeceras, bool conId, bool colorea);

    std::vector<std::string> Cabeceras;
    bool ConId;                                  // column 0 numbers the rows and takes no input
    bool Colorea;                                // the current cell is coloured
    std::vector<std::vector<std::string>> Filas; // row 1 at index 0
    int Cuenta = 0;
    int FilaActual = 0; // from 1; 0 while no cell has been entered
    int ColumnaActual = 0;
    bool EntradaAbierta = false;

    int Columnas() const { return static_cast<int>(Cabeceras.size()); }
    int PrimeraColumna() const { return ConId ? 1 : 0; }
    std::string& Celda(int fila, int columna);
    const std::string& Celda(int fila, int columna) const;
    Color Fondo(int fila, int columna) const;

    // Gives the grid `n` rows: fewer rows go from the end; 0 brings back the row of " -"
    // cells; more rows start empty; the column "Id" is numbered from 1 again.
    void Dimensionar(int n);
    // Takes these rows in place of all; the count follows them.
    void Poner(std::vector<std::vector<std::string>> filas);
};

} // namespace vadro
