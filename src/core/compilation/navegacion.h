#pragma once

#include "core/shell/flujo_trabajo.h"

#include <optional>
#include <string>
#include <vector>

namespace vadro {

class Arbol;
class NodoArbol;

// The key words of the report's error keys, in the order in which a key is matched against
// them; `Desconocida` for a key that matches none.
enum class PalabraError {
    FunVal,
    ReqRep,
    SinHij,
    PesNul,
    SinReq,
    SinCmp,
    SinEta,
    CmpRep,
    NoCons,
    Desconocida
};

// One step of a position, deepest first: its letters and its number ("I3", "Co2"). A set's
// key names no node, so its letters may stand without a number ("C" in "CR1").
struct TramoPosicion {
    std::string letras;
    std::optional<int> numero;
    bool operator==(const TramoPosicion&) const = default;
};

// An error key read: its first six characters are the word; what follows the seventh is the
// position, the key of the node or set of the finding, empty when the key has none.
struct ClaveError {
    std::string palabra;
    std::string posicion;
    std::vector<TramoPosicion> ruta; // the position split into its steps
};

ClaveError LeerClaveError(const std::string& clave);
std::vector<TramoPosicion> RutaDePosicion(const std::string& posicion);

// What is done in the window once it stands open.
enum class Llegada {
    Nada,           // the user stays in the report
    Abrir,          // the window opened, nothing more
    Seleccionar,    // the node selected and shown as the current one, the tree focused
    EditarEtiqueta, // the node selected and its label in edit, for a rename at once
    EditarFuncion,  // the node selected and its value function opened in the editor
};

// Where a finding leads: the step the main window is left on, the window opened over it,
// whether the node of the position is searched in that window's tree, and what follows.
struct DestinoError {
    PalabraError palabra = PalabraError::Desconocida;
    ClaveError clave;
    std::optional<Posicion> paso;
    std::optional<Hija> ventana;
    bool buscarNodo = false;
    Llegada llegada = Llegada::Nada;
};

DestinoError DestinoDeError(const std::string& clave);

// The windows closed before anything else, each through its own closing and in this order:
// the design windows store nothing unasked, and a close that is refused ends the way there.
const std::vector<Hija>& VentanasCerradasAlNavegar();

// The step of the main window that brings it to the destination: the controls of the step,
// the windows of other positions unloaded, the window of the step and the destination's
// window loaded, the position. None when the destination leaves the main window as it is.
std::optional<Transicion> TransicionHaciaError(const DestinoError& destino);

// The node a position names: the nodes walked by index from the first, the first whose key
// equals the position. The report was made from the model a moment ago, so it is there; if
// it is not, the node of the last index stands for it. None in an empty tree.
NodoArbol* NodoDeError(const Arbol& arbol, const std::string& posicion);

} // namespace vadro
