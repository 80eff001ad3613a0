#include "windows/shell/ventana_hija.h"

#include "windows/core/ajustar_fuente.h"
#include "windows/core/texto.h"

#include <QCloseEvent>
#include <QMdiSubWindow>
#include <QStyle>

namespace vadro {

VentanaHija::VentanaHija(frmPrincipal& principal, const char* nombre, const char* titulo)
    : principal_(principal) {
    setObjectName(Q(nombre));
    setWindowTitle(Q(titulo));
    setWindowIcon(style()->standardIcon(QStyle::SP_FileDialogInfoView));
    Cargado = true;
}

void VentanaHija::AjustarControles() {
    AjustarFuente(*this);
}

void VentanaHija::Colocar(QMdiSubWindow& marco, const QRect& cliente) {
    marco.setGeometry(cliente);
}

void VentanaHija::Descargar() {
    // Inside the client area the frame is the window: closing it unloads this one with it.
    if (auto* marco = qobject_cast<QMdiSubWindow*>(parentWidget())) {
        marco->close();
    } else {
        close();
    }
}

void VentanaHija::closeEvent(QCloseEvent* evento) {
    if (!Cargado) {
        evento->accept();
        return;
    }
    Cargado = false;
    AlDescargar();
    evento->accept();
}

} // namespace vadro
