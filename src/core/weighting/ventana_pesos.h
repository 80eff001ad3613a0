#pragma once

#include "core/core/sesion.h"
#include "core/weighting/conjunto_pesos.h"
#include "core/weighting/rejilla_ponderacion.h"

#include <array>
#include <optional>
#include <string>

namespace vadro {

// The rules of the weights window that need no widget: which cells take the floating input,
// what its keys do, what a commit stores, the Saaty scale, the blinking, and the questions of
// acceptance, cancellation and unloading.

// The floating input opens in the direct grid on a score or percentage cell of a data row
// (not the total), and in the matrix on any cell off the diagonal and before the weights.
// Counts include the fixed row and column.
bool CeldaEditableDirecto(int filas, int columnas, int fila, int columna);
bool CeldaEditableSaaty(int filas, int columnas, int fila, int columna);

// The Saaty scale opens on a cell above the diagonal and before the weights.
bool CeldaConEscala(int columnas, int fila, int columna);

// The keys of the floating input, as the window reads them, and what each does.
enum class TeclaEntrada {
    Escape,
    Retorno,
    Izquierda,
    Arriba,
    Derecha,
    Abajo,
    Digito,
    Separador,
    Otra
};
enum class AccionTecla {
    Ocultar,   // hide the input, back to the grid, nothing kept
    Confirmar, // back to the grid, which commits
    Mover,     // back to the grid, which commits, then one cell over if there is room
    Escribir,  // the key goes on into the input
    Descartar, // the key is dropped
};
AccionTecla AccionDeTecla(TeclaEntrada tecla);

struct Celda {
    int Fila = 0;
    int Columna = 0;
    bool operator==(const Celda&) const = default;
};

// Where an arrow key leaves the current cell: one cell over, never onto the fixed row or
// column nor out of the grid.
Celda CeldaTrasFlecha(TeclaEntrada flecha, Celda actual, int filas, int columnas);

// What a commit of the matrix's input did.
enum class Confirmacion {
    Introducida, // stored with its mirror, weights and ratio recomputed
    Blanqueada,  // the two cells emptied on the grid only
    Rechazada,   // zero or less: the message, and the input stays for a new value
    Descartada,  // no number: the input just goes
};

// Commits the text of the matrix's input at a data cell. A non-empty text marks the matrix
// as typed in, even when it is refused.
Confirmacion ConfirmarSaaty(Sesion& sesion, EdicionPesos& edicion, Celda celda,
                            const std::string& texto, RejillaPonderacion& rejilla);

// Commits the text of the direct grid's input at a data row: the row's score, whichever
// column was typed in; the percentages are made again unless the text is no number. True when
// they were.
bool ConfirmarDirecto(EdicionPesos& edicion, Celda celda, const std::string& texto,
                      RejillaPonderacion& rejilla);

// The tooltip of a grid: the text of a cell that is neither fixed nor outside the grid.
std::string AyudaCelda(const RejillaPonderacion& rejilla, int fila, int columna);

// The Saaty scale: eighteen options, nine for "more important" and nine for "less".
inline constexpr int kOpcionesSaaty = 18;
struct OpcionSaaty {
    const char* Rotulo;   // the option's caption
    const char* Palabras; // the words beside it
};
const std::array<OpcionSaaty, kOpcionesSaaty>& EscalaSaaty();
// The tag of an option: the text of its value, "3" or "0.333333333333333".
std::string EtiquetaOpcionSaaty(int k);
// The option that a cell's shown text switches on: the first for an empty cell, the one whose
// tag equals the text otherwise. A figure shown with two decimals matches no tag.
std::optional<int> OpcionDeCelda(const std::string& textoCelda);
// The value of an option: the integer k + 1 for the first nine, the real 1 / (k - 8) after.
ValorLibre ValorOpcionSaaty(int k);
// The scale's judgement of a pair stored with its mirror and shown on the grid.
void AceptarOpcionSaaty(Sesion& sesion, Celda celda, int opcion, RejillaPonderacion& rejilla);

// The blinking of the cell under judgement: once a second it goes from light red to white
// and from any other colour to light red.
ColorRGB ColorParpadeo(ColorRGB actual);
struct Intermitencia {
    int Segundo = -1;
    // True when the second of the clock has changed since the last tick.
    bool Tic(int segundo);
};

// The perfect matrix needs the whole first row; otherwise the message, and false.
bool ConsistenciaPerfectaPosible(const Matriz<ValorLibre>& matriz);
// The question before the perfect matrix replaces the user's.
bool ConfirmarTraspaso();

// Acceptance of the window with the method on show: the questions of a bad ratio or of an
// incomplete list of scores, then the write of the set and the model marked as changed. True
// when the window should unload.
bool AceptarPesos(Sesion& sesion, const EdicionPesos& edicion, MetodoCalculo visible,
                  const RejillaPonderacion& directo);
// The question of the cancel button: true to unload.
bool ConfirmarCancelacion();
// The warnings on unloading, by the grid on show and the other grid's flag: false keeps the
// window.
bool PuedeDescargarPesos(const EdicionPesos& edicion, MetodoCalculo visible);

} // namespace vadro
