#include "windows/core/frmAvisoFuncionValor.h"

#include "windows/core/texto.h"

#include <QLabel>

namespace vadro {

frmAvisoFuncionValor::frmAvisoFuncionValor(bool& mostrarAviso, QWidget* padre)
    : DialogoAviso(
          {Q("Introducir valores de límites y de satisfacción para obtener la "
             "representación gráfica.")},
          [&mostrarAviso](bool mostrar) { mostrarAviso = mostrar; }, false, padre) {
    setObjectName(Q("frmAvisoFuncionValor"));
    etiquetas.front()->setObjectName(Q("lblAviso"));
}

} // namespace vadro
