#include "windows/core/frmAvisoVersionBeta.h"

#include "core/core/configuracion.h"
#include "windows/core/texto.h"

#include <QLabel>

namespace vadro {

frmAvisoVersionBeta::frmAvisoVersionBeta(QWidget* padre)
    : DialogoAviso(
          {Q("Esta aplicación se encuentra en desarrollo, por lo que pueden aparecer errores."),
           Q("Se recomienda guardar los cambios con regularidad e informar de los errores a los "
             "desarrolladores a través de la web:"),
           Q(kDireccionWeb),
           Q("Es conveniente tener instalada la última versión disponible y efectuar un control "
             "regular de la web para posibles actualizaciones.")},
          [](bool mostrar) { GuardarMostrarAvisoBeta(SesionActual(), mostrar); }, false, padre) {
    setObjectName(Q("frmAvisoVersionBeta"));
    for (int i = 0; i < etiquetas.size(); ++i) {
        etiquetas[i]->setObjectName(Q("lblAviso") + QString::number(i + 1));
    }
}

} // namespace vadro
