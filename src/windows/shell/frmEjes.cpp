#include "windows/shell/frmEjes.h"

#include "windows/shell/frmPrincipal.h"
#include "windows/trees/frmComponentes.h"
#include "windows/trees/frmEtapas.h"
#include "windows/trees/frmRequerimientos.h"

#include <QMdiSubWindow>

namespace vadro {

frmEjes::frmEjes(frmPrincipal& principal)
    : VentanaHija(principal, "frmEjes", "Límites del sistema") {
    // The window stands in front of the background picture.
    Principal().pctFondo->show();
    AjustarControles();
}

// A design window that is open already comes to the front; none is loaded twice.
void frmEjes::AbrirRequerimientos() {
    Principal().Cargar<frmRequerimientos>();
}

void frmEjes::AbrirComponentes() {
    Principal().Cargar<frmComponentes>();
}

void frmEjes::AbrirEtapas() {
    Principal().Cargar<frmEtapas>();
}

void frmEjes::Colocar(QMdiSubWindow& marco, const QRect& cliente) {
    QRect lugar(QPoint(0, 0), QSize(640, 480).boundedTo(cliente.size()));
    lugar.moveCenter(cliente.center());
    marco.setGeometry(lugar);
}

void frmEjes::AlDescargar() {
    Principal().pctFondo->hide();
}

} // namespace vadro
