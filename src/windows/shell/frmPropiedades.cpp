#include "windows/shell/frmPropiedades.h"

#include "windows/core/ajustar_fuente.h"
#include "windows/core/conectar.h"
#include "windows/core/controles.h"
#include "windows/core/texto.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

namespace vadro {

frmPropiedades::frmPropiedades(QWidget* padre) : QDialog(padre) {
    setObjectName(Q("frmPropiedades"));
    setWindowTitle(Q("Propiedades del modelo"));
    cmdAceptar = BotonAceptar(this);
    cmdCancelar = Boton(this, "cmdCancelar", "Cancelar");
    auto* columna = new QVBoxLayout(this);
    columna->addStretch();
    columna->addLayout(FilaBotones({cmdAceptar, cmdCancelar}));
    resize(360, 120);

    Conectar(cmdAceptar, &QPushButton::clicked, this, [this] { cmdAceptar_Click(); });
    Conectar(cmdCancelar, &QPushButton::clicked, this, [this] { reject(); });
    Cargado = true;
    AjustarControles();
}

void frmPropiedades::AjustarControles() {
    AjustarFuente(*this);
}

void frmPropiedades::cmdAceptar_Click() {
    // The dialog holds no field yet, so there is nothing to copy into the model.
    accept();
}

void frmPropiedades::done(int resultado) {
    Cargado = false;
    QDialog::done(resultado);
}

} // namespace vadro
