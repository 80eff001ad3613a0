#include "windows/trees/frmRequerimientos.h"

#include "core/core/sesion.h"
#include "core/shell/flujo_trabajo.h"

namespace vadro {

frmRequerimientos::frmRequerimientos(QWidget* padre)
    : VentanaDiseno(Hija::Requerimientos, "Arbol de requerimientos", padre) {
    AjustarControles();
}

void frmRequerimientos::cmdAceptar_Click() {
    emit MarcaPaso(EtqRequerimientos, HayElementos(SesionActual().modelo.NumRequerimientos));
    LlamaLlenarRequerimientos();
    Descargar();
}

void frmRequerimientos::LlamaLlenarRequerimientos() {
    // The window holds no working copy yet: it shows what the model holds, so there is
    // nothing to write back and the model stays as it is.
}

void frmRequerimientos::AlDescargar() {
    emit MarcaPaso(EtqRequerimientos, HayElementos(SesionActual().modelo.NumRequerimientos));
}

} // namespace vadro
