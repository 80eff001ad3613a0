#include "windows/trees/frmComponentes.h"

#include "core/core/sesion.h"
#include "core/shell/flujo_trabajo.h"
#include "windows/shell/frmPrincipal.h"

namespace vadro {

frmComponentes::frmComponentes(frmPrincipal& principal)
    : VentanaDiseno(principal, "frmComponentes", "Arbol de componentes") {
    AjustarControles();
}

void frmComponentes::cmdAceptar_Click() {
    Principal().MarcarPaso(2, HayElementos(SesionActual().modelo.NumComponentes));
    LlamaLlenarComponentes();
    Descargar();
}

void frmComponentes::LlamaLlenarComponentes() {
    // The window holds no working copy yet: it shows what the model holds, so there is
    // nothing to write back and the model stays as it is.
}

} // namespace vadro
