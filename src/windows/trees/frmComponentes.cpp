#include "windows/trees/frmComponentes.h"

#include "core/core/sesion.h"
#include "core/shell/flujo_trabajo.h"

namespace vadro {

frmComponentes::frmComponentes(QWidget* padre)
    : VentanaDiseno(Hija::Componentes, "Arbol de componentes", padre) {
    AjustarControles();
}

void frmComponentes::cmdAceptar_Click() {
    emit MarcaPaso(EtqComponentes, HayElementos(SesionActual().modelo.NumComponentes));
    LlamaLlenarComponentes();
    Descargar();
}

void frmComponentes::LlamaLlenarComponentes() {
    // The window holds no working copy yet: it shows what the model holds, so there is
    // nothing to write back and the model stays as it is.
}

} // namespace vadro
