#include "windows/weighting/frmPreguntarPonderacion.h"

#include "core/core/sesion.h"
#include "core/shell/flujo_trabajo.h"
#include "windows/core/ajustar_fuente.h"
#include "windows/core/controles.h"
#include "windows/core/texto.h"
#include "windows/reports/frmResumen.h"
#include "windows/shell/frmPrincipal.h"
#include "windows/weighting/frmPonderacion.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

namespace vadro {

frmPreguntarPonderacion::frmPreguntarPonderacion(frmPrincipal& principal)
    : QDialog(&principal), principal_(principal) {
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
    connect(cmdAceptar, &QPushButton::clicked, this, &frmPreguntarPonderacion::cmdAceptar_Click);
    Cargado = true;
    AjustarControles();
}

void frmPreguntarPonderacion::AjustarControles() {
    AjustarFuente(*this);
}

void frmPreguntarPonderacion::cmdAceptar_Click() {
    principal_.Descargar<frmResumen>();
    SesionActual().modelo.PermisoUsuarioVer = chkVerPesos->isChecked();
    principal_.Cargar<frmPonderacion>();
    principal_.FijarPosicion(kPosicionPonderacion);
    principal_.EscribirPosicion();
    accept();
}

void frmPreguntarPonderacion::showEvent(QShowEvent* evento) {
    QDialog::showEvent(evento);
    // Centred over the main window.
    adjustSize();
    QRect lugar = geometry();
    lugar.moveCenter(principal_.geometry().center());
    setGeometry(lugar);
}

void frmPreguntarPonderacion::done(int resultado) {
    Cargado = false;
    QDialog::done(resultado);
}

} // namespace vadro
