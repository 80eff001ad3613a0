#include "windows/trees/frmEtapas.h"

#include "core/core/sesion.h"
#include "core/shell/flujo_trabajo.h"
#include "windows/shell/frmPrincipal.h"

namespace vadro {

frmEtapas::frmEtapas(frmPrincipal& principal)
    : VentanaDiseno(principal, "frmEtapas", "Etapas del ciclo de vida") {
    AjustarControles();
}

void frmEtapas::cmdAceptar_Click() {
    Principal().MarcarPaso(3, HayElementos(SesionActual().modelo.NumEtapas));
    LlamaLlenarEtapas();
    Descargar();
}

void frmEtapas::LlamaLlenarEtapas() {
    // The window holds no working copy yet: it shows what the model holds, so there is
    // nothing to write back and the model stays as it is.
}

} // namespace vadro
