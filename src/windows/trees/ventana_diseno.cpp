#include "windows/trees/ventana_diseno.h"

#include "windows/core/conectar.h"
#include "windows/core/controles.h"
#include "windows/core/texto.h"

#include <QHBoxLayout>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QVBoxLayout>

namespace vadro {

VentanaDiseno::VentanaDiseno(Hija hija, const char* titulo, QWidget* padre)
    : VentanaHija(hija, titulo, padre) {
    cmdAceptar = Boton(this, "cmdAceptar", "Aceptar");
    auto* columna = new QVBoxLayout(this);
    columna->addStretch();
    columna->addLayout(FilaBotones({cmdAceptar}));
    Conectar(cmdAceptar, &QPushButton::clicked, this, [this] { cmdAceptar_Click(); });
}

void VentanaDiseno::Colocar(QMdiSubWindow& marco, const QRect& cliente) {
    // At the top left of the client area, over the window of the position.
    marco.setGeometry(
        QRect(cliente.topLeft(), QSize(cliente.width() * 2 / 3, cliente.height() * 5 / 6)));
}

} // namespace vadro
