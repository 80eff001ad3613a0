#include "windows/core/frmConfirmacion.h"

#include "windows/core/texto.h"

#include <QLabel>

namespace vadro {

frmConfirmacion::frmConfirmacion(bool& mostrarConfirmacion, QWidget* padre)
    : DialogoAviso(
          {Q("¿Está seguro que quiere reducir el número de intervalos?  Los datos "
             "correspondientes a los últimos se perderán.")},
          [&mostrarConfirmacion](bool mostrar) { mostrarConfirmacion = mostrar; }, true, padre) {
    setObjectName(Q("frmConfirmacion"));
    etiquetas.front()->setObjectName(Q("lblAviso"));
}

} // namespace vadro
