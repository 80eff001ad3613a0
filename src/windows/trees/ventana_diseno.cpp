#include "windows/trees/ventana_diseno.h"

#include "windows/core/texto.h"

#include <QHBoxLayout>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QVBoxLayout>

namespace vadro {

VentanaDiseno::VentanaDiseno(frmPrincipal& principal, const char* nombre, const char* titulo)
    : VentanaHija(principal, nombre, titulo) {
    cmdAceptar = new QPushButton(Q("Aceptar"), this);
    cmdAceptar->setObjectName(Q("cmdAceptar"));
    auto* botones = new QHBoxLayout;
    botones->addStretch();
    botones->addWidget(cmdAceptar);
    auto* columna = new QVBoxLayout(this);
    columna->addStretch();
    columna->addLayout(botones);
    connect(cmdAceptar, &QPushButton::clicked, this, [this] { cmdAceptar_Click(); });
}

void VentanaDiseno::Colocar(QMdiSubWindow& marco, const QRect& cliente) {
    // At the top left of the client area, over the window of the position.
    marco.setGeometry(
        QRect(cliente.topLeft(), QSize(cliente.width() * 2 / 3, cliente.height() * 5 / 6)));
}

} // namespace vadro
