#include "windows/weighting/frmPonderacion.h"

namespace vadro {

frmPonderacion::frmPonderacion(QWidget* padre)
    : VentanaHija(Hija::Ponderacion, "Ponderación de elementos del árbol", padre) {
    AjustarControles();
}

} // namespace vadro
