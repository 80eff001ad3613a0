#include "windows/weighting/frmPonderacion.h"

namespace vadro {

frmPonderacion::frmPonderacion(frmPrincipal& principal)
    : VentanaHija(principal, "frmPonderacion", "Ponderación de elementos del árbol") {
    AjustarControles();
}

} // namespace vadro
