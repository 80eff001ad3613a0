#pragma once

#include "core/core/mensajes.h"
#include "core/core/registros.h"
#include "core/core/sesion.h"
#include "core/shell/flujo_trabajo.h"
#include "core/weighting/conjunto_pesos.h"
#include "core/weighting/rejilla_ponderacion.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace vadro {

// The whole requirements tree as one grid: a column per level, one row per leaf path, each
// ancestor repeated down the rows of its descendants so that the grid merges them.

inline constexpr ColorRGB ColorMarino{0, 0, 128};

// A node's cell: "(key) name", and when it has a weight a second line "Peso: 12.50 %".
std::string TextoNodoPonderacion(const CabeceraNodo& nodo);
// White with a weight, light red without.
ColorRGB ColorNodoPonderacion(const CabeceraNodo& nodo);

// Where a row of the grid leads: the grid row (from 1, row 0 being the heads), then the
// numbers of requirement, criterion, subcriterion and indicator, -1 where the row has no such
// level. This is the row of `FilasPonderacion`.
using RutaFila = std::array<int16_t, 5>;
inline constexpr int kEntradaFila = 0;
inline constexpr int16_t kSinNivel = -1;

struct CeldaVista {
    std::string Texto; // empty where the row has no node at that column
    ColorRGB Fondo = ColorBlanco;
};

// The grid as it is drawn: heads, and rows of cells from the first data row.
struct VistaPonderacion {
    bool ConSubcriterios = false;
    std::vector<std::string> Cabeceras;
    std::vector<RutaFila> Rutas;                // per data row
    std::vector<std::vector<CeldaVista>> Filas; // per data row, one cell per column

    int NumFilas() const { return static_cast<int>(Filas.size()); }
    int NumColumnas() const { return static_cast<int>(Cabeceras.size()); }
    const CeldaVista& Celda(int fila, int columna) const;
    // The tree level shown in a column: 0 requirements, 1 criteria, 2 subcriteria, 3
    // indicators; without subcriteria column 2 shows the indicators.
    int Nivel(int columna) const;
    // The rows over which the node of a cell stands: its first row and how many rows it spans
    // (1 for a lone or empty cell).
    int Extension(int fila, int columna) const;
};

// Fills the grid from the model in model order. A criterion or requirement without children
// still takes a row, its deeper cells empty. A criterion with subcriteria shows them, and
// its own indicators are not part of any set that the grid opens. Counts beyond the stored
// nodes are not followed.
VistaPonderacion ConstruirVistaPonderacion(const Modelo& modelo);

// The node of a cell, or none for an empty one.
const CabeceraNodo* NodoDeCelda(const Modelo& modelo, const VistaPonderacion& vista, int fila,
                                int columna);

// The selected sibling set: its column and its first and last rows (data rows, from 0).
struct SeleccionConjunto {
    int Columna = 0;
    int Primera = 0;
    int Ultima = 0;
    bool operator==(const SeleccionConjunto&) const = default;
};

// The set of a cell, found silently: none for an empty cell.
std::optional<SeleccionConjunto> ConjuntoDeCelda(const VistaPonderacion& vista, int fila,
                                                 int columna);

// The set a click selects. An empty cell of the subcriteria column counts for the next
// filled cell of its row; a cell still empty shows the incomplete-branch message and selects
// nothing. In column 0 the set is all rows; elsewhere the rows whose nearest filled column to
// the left holds the same node.
std::optional<SeleccionConjunto> SeleccionarConjunto(const VistaPonderacion& vista, int fila,
                                                     int columna);

// Repaints: the cells of a set by the white and light red rule, from the model.
void RepintarConjunto(const Modelo& modelo, VistaPonderacion& vista,
                      const SeleccionConjunto& seleccion);
// Rebuilds the texts and colours of the cells of a set from the model, as at load.
void ReconstruirConjunto(const Modelo& modelo, VistaPonderacion& vista,
                         const SeleccionConjunto& seleccion);

// The address of the set behind a cell, for the weights window, or none for an empty cell.
std::optional<DireccionConjunto> DireccionDeCelda(const VistaPonderacion& vista, int fila,
                                                  int columna);

// What a node finally counts for in the whole model: the product of the weights along its
// path, in per cent, as "Peso global: 12.34 %"; empty when a weight on the path is missing.
std::string TextoPesoGlobal(const Modelo& modelo, const VistaPonderacion& vista, int fila,
                            int columna);

// An empty model cannot be weighed: the question whether to go back to the tree's design.
// The answer is the step the main window takes, which unloads the overview either way.
bool ModeloPonderable(const Modelo& modelo);
Transicion PreguntarModeloVacio();

} // namespace vadro
