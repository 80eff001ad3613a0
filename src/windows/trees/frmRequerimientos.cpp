#include "windows/trees/frmRequerimientos.h"

#include "core/core/sesion.h"
#include "core/shell/flujo_trabajo.h"
#include "windows/shell/frmPrincipal.h"

namespace vadro {

frmRequerimientos::frmRequerimientos(frmPrincipal& principal)
    : VentanaDiseno(principal, "frmRequerimientos", "Arbol de requerimientos") {
    AjustarControles();
}

void frmRequerimientos::cmdAceptar_Click() {
    Principal().MarcarPaso(1, HayElementos(SesionActual().modelo.NumRequerimientos));
    LlamaLlenarRequerimientos();
    Descargar();
}

void frmRequerimientos::LlamaLlenarRequerimientos() {
    // The window holds no working copy yet: it shows what the model holds, so there is
    // nothing to write back and the model stays as it is.
}

} // namespace vadro
