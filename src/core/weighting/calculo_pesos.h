#pragma once

#include "core/core/arreglo.h"
#include "core/core/valor_libre.h"
#include "core/weighting/rejilla_ponderacion.h"

#include <string>
#include <vector>

namespace vadro {

// The random index by which the consistency index of a matrix of size n is divided; sizes of
// 15 and above share the last one. The index for 12 is lower than its neighbours, and stays.
double IndiceAleatorio(int n);

// The weights of a pairwise matrix by column normalisation and row averaging, in per cent,
// and its consistency ratio. `pesos` is sized anew to the matrix and filled row by row, so a
// failure may leave earlier rows written. On any failure (a column or a row product that adds
// to zero, a cell that is no number, an overflow) the answer is false and `consistencia` is
// left as it was. Empty cells are not looked for here.
bool CalcularPesos(const Matriz<ValorLibre>& matriz, Arreglo<ValorLibre>& pesos,
                   double& consistencia);

// True if no cell of the square matrix is empty, the diagonal included.
bool MatrizCompleta(const Matriz<ValorLibre>& matriz);

// The weights and ratio of a matrix as the windows get them, without a grid: `pesos` is
// emptied to the matrix's size; an incomplete matrix sets `resultado` to "" and stops; a
// failed computation stops with `resultado` as it was; otherwise `resultado` is the ratio.
// True when the weights were computed.
bool RecalcularPesos(const Matriz<ValorLibre>& matriz, Arreglo<ValorLibre>& pesos,
                     ValorLibre& resultado);

// The same, and then the grid's last column shows the weights in "0.00". When nothing was
// computed the grid keeps the figures it showed.
void ActualizarPesos(const Matriz<ValorLibre>& matriz, Arreglo<ValorLibre>& pesos,
                     ValorLibre& resultado, RejillaPonderacion& rejilla);

// The matrix of perfect consistency: the first row taken as the user's judgement and all
// else derived from it by transitivity.
void ConstruirMatrizConsistente(const Matriz<ValorLibre>& matriz, Matriz<ValorLibre>& consistente);

// Columns of the direct grid: scores, then percentages; the row after the last score is the
// total.
inline constexpr int ColumnaPuntuacion = 1;
inline constexpr int ColumnaPorcentaje = 2;

// The percentages of direct scores, shown in the grid's percentage column, with the sum of
// the scores and the total of the shown percentages on the total row.
void LlenarPorcentajesDirecto(const Arreglo<ValorLibre>& puntuaciones,
                              Arreglo<ValorLibre>& porcentajes, RejillaPonderacion& rejilla);

// How the label of the ratio looks.
struct AspectoConsistencia {
    std::string Leyenda;
    ColorRGB Fondo;
    bool operator==(const AspectoConsistencia&) const = default;
};

// The rule for showing a ratio: its figure in "0.00" on red over 0.1, on green at 0 and on
// light yellow otherwise. A missing ratio counts as over the threshold: empty on red.
AspectoConsistencia ColorConsistencia(const ValorLibre& consistencia);

// A matrix given as rows of cells, as a file or a command line reads it: sized by the number
// of rows, a short row taken as empty cells to the right, a long one cut, and the diagonal
// forced to 1 as the weights window does on load.
Matriz<ValorLibre> MatrizDeFilas(const std::vector<std::vector<ValorLibre>>& filas);

struct PesosMatriz {
    Arreglo<ValorLibre> Pesos;
    ValorLibre Consistencia; // the ratio, or "" for an incomplete matrix or a failure
    bool Calculado = false;
};

// Weights and ratio of a matrix given as rows, with the arithmetic of the weights window.
PesosMatriz PesosDeFilas(const std::vector<std::vector<ValorLibre>>& filas);

} // namespace vadro
