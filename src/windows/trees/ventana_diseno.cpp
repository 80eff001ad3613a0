#include "windows/trees/ventana_diseno.h"

#include "windows/core/conectar.h"
#include "windows/core/controles.h"
#include "windows/core/texto.h"

#include <QHBoxLayout>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QPushButton>
#include <QVBoxLayout>

namespace vadro {

VentanaDiseno::VentanaDiseno(Hija hija, const char* titulo, QWidget* padre)
    : VentanaHija(hija, titulo, padre) {
    cmdAceptar = Boton(this, "cmdAceptar", "Aceptar");
    columna_ = new QVBoxLayout(this);
    columna_->addStretch();
    columna_->addLayout(FilaBotones({cmdAceptar}));
    Conectar(cmdAceptar, &QPushButton::clicked, this, [this] { cmdAceptar_Click(); });
}

void VentanaDiseno::PonerContenido(QWidget* contenido) {
    delete columna_->takeAt(0); // the stretch that stood for the content
    columna_->insertWidget(0, contenido, 1);
}

QMenu* VentanaDiseno::MenuEmergente(const char* nombre) const {
    // Inside the client area the top-level window is the main window, which owns the menus.
    const QWidget* principal = window();
    return principal != this ? principal->findChild<QMenu*>(Q(nombre)) : nullptr;
}

void VentanaDiseno::Colocar(QMdiSubWindow& marco, const QRect& cliente) {
    // At the top left of the client area, over the window of the position.
    marco.setGeometry(
        QRect(cliente.topLeft(), QSize(cliente.width() * 2 / 3, cliente.height() * 5 / 6)));
}

} // namespace vadro
