#include "windows/shell/frmEjes.h"

#include <QMdiSubWindow>

namespace vadro {

frmEjes::frmEjes(QWidget* padre) : VentanaHija(Hija::Ejes, "Límites del sistema", padre) {
    AjustarControles();
}

void frmEjes::Colocar(QMdiSubWindow& marco, const QRect& cliente) {
    QRect lugar(QPoint(0, 0), QSize(640, 480).boundedTo(cliente.size()));
    lugar.moveCenter(cliente.center());
    marco.setGeometry(lugar);
}

} // namespace vadro
