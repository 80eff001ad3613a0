#include "windows/trees/frmEtapas.h"

#include "core/core/sesion.h"
#include "core/shell/flujo_trabajo.h"

namespace vadro {

frmEtapas::frmEtapas(QWidget* padre)
    : VentanaDiseno(Hija::Etapas, "Etapas del ciclo de vida", padre) {
    AjustarControles();
}

void frmEtapas::cmdAceptar_Click() {
    emit MarcaPaso(EtqCicloVida, HayElementos(SesionActual().modelo.NumEtapas));
    LlamaLlenarEtapas();
    Descargar();
}

void frmEtapas::LlamaLlenarEtapas() {
    // The window holds no working copy yet: it shows what the model holds, so there is
    // nothing to write back and the model stays as it is.
}

} // namespace vadro
