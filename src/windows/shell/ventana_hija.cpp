#include "windows/shell/ventana_hija.h"

#include "core/core/limite_fallos.h"
#include "windows/core/ajustar_fuente.h"
#include "windows/core/texto.h"

#include <QCloseEvent>
#include <QMdiSubWindow>
#include <QStyle>

namespace vadro {

VentanaHija::VentanaHija(Hija hija, const char* titulo, QWidget* padre)
    : QWidget(padre), hija_(hija) {
    setObjectName(Q(NombreHija(hija)));
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
    bool puede = true;
    EjecutarProtegido([&] { puede = PuedeDescargarse(); });
    if (!puede) {
        evento->ignore();
        return;
    }
    Cargado = false;
    EjecutarProtegido([this] { AlDescargar(); });
    evento->accept();
    emit Descargada(hija_);
}

} // namespace vadro
