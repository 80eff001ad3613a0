#include "windows/shell/etiqueta_paso.h"

#include <QMouseEvent>

namespace vadro {

EtiquetaPaso::EtiquetaPaso(const QString& texto, QWidget* padre) : QLabel(texto, padre) {}

void EtiquetaPaso::mouseReleaseEvent(QMouseEvent* evento) {
    QLabel::mouseReleaseEvent(evento);
    // A click is a release over the label of a press that began there.
    if (evento->button() == Qt::LeftButton && rect().contains(evento->position().toPoint())) {
        emit Pulsada();
    }
}

} // namespace vadro
