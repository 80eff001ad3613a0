#include "windows/compilation/frmCompilacion.h"

#include <QMdiSubWindow>

namespace vadro {

frmCompilacion::frmCompilacion(QWidget* padre)
    : VentanaHija(Hija::Compilacion, "Compilación", padre) {
    AjustarControles();
}

void frmCompilacion::Colocar(QMdiSubWindow& marco, const QRect& cliente) {
    // Over the right side of the window of the position, which stays in view.
    const int ancho = cliente.width() * 3 / 5;
    marco.setGeometry(QRect(cliente.right() - ancho, cliente.top(), ancho, cliente.height()));
}

} // namespace vadro
