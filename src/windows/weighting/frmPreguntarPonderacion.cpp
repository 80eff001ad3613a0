#include "windows/weighting/frmPreguntarPonderacion.h"

#include "core/core/sesion.h"
#include "windows/core/ajustar_fuente.h"
#include "windows/core/conectar.h"
#include "windows/core/controles.h"
#include "windows/core/texto.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

namespace vadro {

frmPreguntarPonderacion::frmPreguntarPonderacion(QWidget* padre) : QDialog(padre) {
    setObjectName(Q("frmPreguntarPonderacion"));
    setWindowTitle(Q("Permisos del usuario"));
    chkVerPesos = new QCheckBox(Q("Permitir al usuario ver características significativas del "
                                  "árbol de requerimientos (funciones de valor, pesos...)"),
                                this);
    chkVerPesos->setObjectName(Q("chkVerPesos"));
    cmdAceptar = BotonAceptar(this);
    auto* columna = new QVBoxLayout(this);
    columna->addWidget(chkVerPesos);
    columna->addLayout(FilaBotones({cmdAceptar}));

    chkVerPesos->setChecked(SesionActual().modelo.PermisoUsuarioVer);
    Conectar(cmdAceptar, &QPushButton::clicked, this, [this] { cmdAceptar_Click(); });
    Cargado = true;
    AjustarControles();
}

void frmPreguntarPonderacion::AjustarControles() {
    AjustarFuente(*this);
}

void frmPreguntarPonderacion::cmdAceptar_Click() {
    SesionActual().modelo.PermisoUsuarioVer = chkVerPesos->isChecked();
    accept();
}

void frmPreguntarPonderacion::showEvent(QShowEvent* evento) {
    QDialog::showEvent(evento);
    // Centred over the window that asks.
    adjustSize();
    if (parentWidget() != nullptr) {
        QRect lugar = geometry();
        lugar.moveCenter(parentWidget()->window()->geometry().center());
        setGeometry(lugar);
    }
}

void frmPreguntarPonderacion::done(int resultado) {
    Cargado = false;
    QDialog::done(resultado);
}

} // namespace vadro
