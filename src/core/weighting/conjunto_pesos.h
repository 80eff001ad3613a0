#pragma once

#include "core/core/registros.h"
#include "core/core/sesion.h"
#include "core/weighting/calculo_pesos.h"
#include "core/weighting/rejilla_ponderacion.h"

#include <string>
#include <vector>

namespace vadro {

// A sibling set has no record of its own: it is addressed by requirement, criterion and
// subcriterion, each "" or a number. All empty: the requirements. A requirement: its
// criteria. With a criterion: its subcriteria if it has any, otherwise its indicators. All
// three: the indicators of the subcriterion.
struct DireccionConjunto {
    ValorLibre Requerimiento;
    ValorLibre Criterio;
    ValorLibre Subcriterio;
};

// The nodes of a set in their order, as heads; the set's own count says how many.
std::vector<CabeceraNodo*> NodosConjunto(Modelo& modelo, const DireccionConjunto& direccion);

// What the weights window keeps of one set besides the session's matrix and weights.
struct EdicionPesos {
    DireccionConjunto Direccion;
    ValorLibre Consistencia; // the ratio of `MatrizSaaty`, or "" for an incomplete matrix
    Arreglo<ValorLibre> PuntuacionesDirecto;
    Arreglo<ValorLibre> PorcentajesDirecto;
    // Set by typed edits in each grid; acceptance does not clear them.
    bool ModificadoAHP = false;
    bool ModificadoDirecto = false;
};

// Heads of the two grids.
inline const std::string CabeceraSaaty = "AHP";
inline const std::string CabeceraPeso = "Peso (%)";
inline const std::string CabeceraPesoConsistente = "Peso";
inline const std::string CabeceraDirecto = "DIRECTO";
inline const std::string CabeceraPuntuacion = "Puntuación";
inline const std::string RotuloTotal = "TOTAL";

// Loads the set into `MatrizSaaty` and the pairwise grid (n + 1 rows, n + 2 columns): the
// names, every given cell, the stored weights, then the diagonal forced to 1 and the weights
// recomputed from the matrix, never read. A node's row shorter than the set is extended in
// the model itself, so that a change of the tree's size is repaired. The answer is how the
// ratio's label looks.
AspectoConsistencia InicializarRejillaSaaty(Sesion& sesion, EdicionPesos& edicion,
                                            RejillaPonderacion& rejilla);

// Loads the set's direct scores and stored weights into the direct grid (n + 2 rows, three
// columns, the total row last). The percentages are then made by `LlenarPorcentajesDirecto`.
void InicializarRejillaDirecto(Modelo& modelo, EdicionPesos& edicion, RejillaPonderacion& rejilla);

// What the text of the matrix's input box turns out to be when it is committed: empty (the
// cell is blanked), no number (a type mismatch), a number out of range (any other failure),
// zero or less (refused with a message), or a value to enter.
enum class EntradaMatriz { Vacia, NoNumero, Desbordada, NoPositiva, Valida };
EntradaMatriz ClasificarEntradaMatriz(const std::string& texto);

// Stores a value in a cell off the diagonal and 1 / value in its mirror, and shows both in
// "0.00". The value is what was typed, kept as text, or what the scale gives.
void GuardarValorSaaty(Matriz<ValorLibre>& matriz, int fila, int columna, const ValorLibre& valor,
                       RejillaPonderacion& rejilla);

// Weights and ratio of `MatrizSaaty` into the grid and the window's ratio, and the label's look.
AspectoConsistencia RecalcularSaaty(Sesion& sesion, EdicionPesos& edicion,
                                    RejillaPonderacion& rejilla);

// An entry in the matrix: store, mirror, show, recompute.
AspectoConsistencia IntroducirValorSaaty(Sesion& sesion, EdicionPesos& edicion, int fila,
                                         int columna, const ValorLibre& valor,
                                         RejillaPonderacion& rejilla);

// Blanking a cell empties it and its mirror on the grid only: the matrix keeps both values,
// so the weights and the ratio stay, and the old value is back at the next opening.
void BlanquearCeldaSaaty(Sesion& sesion, EdicionPesos& edicion, int fila, int columna,
                         RejillaPonderacion& rejilla);

// The matrix of perfect consistency needs every cell of the first row.
bool PrimeraFilaCompleta(const Matriz<ValorLibre>& matriz);

// Fills `MatrizConsistente`, `PesosConsistentes` and the dialog's grid from `MatrizSaaty`,
// with the heads and names of the main grid. `resultado` receives the ratio, 0 by
// construction.
void PrepararConsistenciaPerfecta(Sesion& sesion, const RejillaPonderacion& principal,
                                  RejillaPonderacion& dialogo, ValorLibre& resultado);

// Taking the perfect matrix over: matrix and weights copied whole, every cell of the dialog's
// grid copied to the main grid, and the model marked as changed.
void AdoptarConsistenciaPerfecta(Sesion& sesion, const RejillaPonderacion& dialogo,
                                 RejillaPonderacion& principal);

// Writes the set back to the model: the pairwise rows and ratio, then the direct scores, then
// the result of the method on show, always all three so that both methods' data survive.
void EscribirConjunto(Sesion& sesion, const EdicionPesos& edicion, MetodoCalculo visible);

} // namespace vadro
