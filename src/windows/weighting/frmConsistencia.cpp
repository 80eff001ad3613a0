#include "windows/weighting/frmConsistencia.h"

#include "core/core/formato_numero.h"
#include "core/core/sesion.h"
#include "core/weighting/conjunto_pesos.h"
#include "core/weighting/ventana_pesos.h"
#include "windows/core/ajustar_fuente.h"
#include "windows/core/conectar.h"
#include "windows/core/controles.h"
#include "windows/core/texto.h"
#include "windows/weighting/formato_rejilla.h"
#include "windows/weighting/rejillas_pesos.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

namespace vadro {

frmConsistencia::frmConsistencia(RejillaPonderacion& principal, QLabel& lblCRPrincipal,
                                 QWidget* padre)
    : QDialog(padre), principal_(principal), lblCRPrincipal_(lblCRPrincipal),
      rejilla_(new AdaptadorRejilla(this)) {
    setObjectName(Q("frmConsistencia"));
    setWindowTitle(Q("Consistencia perfecta"));
    grdSaaty = RejillaPesos(this, "grdSaaty", *rejilla_);
    auto* lblConsistencia = new QLabel(Q("Indice de consistencia..................."), this);
    lblConsistencia->setObjectName(Q("lblConsistencia"));
    lblCR = new QLabel(this);
    lblCR->setObjectName(Q("lblCR"));
    lblCR->setMinimumWidth(80);
    lblCR->setAlignment(Qt::AlignCenter);
    lblCR->setFrameShape(QFrame::Panel);
    lblCR->setFrameShadow(QFrame::Sunken);
    cmdAceptar = BotonAceptar(this);
    cmdCancelar = Boton(this, "cmdCancelar", "Cancelar");
    auto* razon = new QHBoxLayout;
    razon->addWidget(lblConsistencia);
    razon->addWidget(lblCR);
    razon->addStretch();
    auto* columna = new QVBoxLayout(this);
    columna->addWidget(grdSaaty, 1);
    columna->addLayout(razon);
    columna->addLayout(FilaBotones({cmdAceptar, cmdCancelar}));
    resize(560, 360);

    // The ratio is shown as it comes, 0 by construction; its label takes no colour here.
    ValorLibre resultado;
    PrepararConsistenciaPerfecta(SesionActual(), principal_, *rejilla_, resultado);
    lblCR->setText(Q(Formato00(resultado)));

    Conectar(cmdAceptar, &QPushButton::clicked, this, [this] { cmdAceptar_Click(); });
    Conectar(cmdCancelar, &QPushButton::clicked, this, [this] { reject(); });
    Cargado = true;
    AjustarControles();
}

void frmConsistencia::AjustarControles() {
    AjustarFuente(*this);
    FormatearRejilla(*grdSaaty);
}

void frmConsistencia::cmdAceptar_Click() {
    if (ConfirmarTraspaso()) {
        AdoptarConsistenciaPerfecta(SesionActual(), *rejilla_, principal_);
        lblCRPrincipal_.setText(Q("0.00"));
    }
    accept();
}

void frmConsistencia::done(int resultado) {
    Cargado = false;
    QDialog::done(resultado);
}

void frmConsistencia::resizeEvent(QResizeEvent* evento) {
    QDialog::resizeEvent(evento);
    FormatearRejilla(*grdSaaty);
}

} // namespace vadro
