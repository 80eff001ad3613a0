#include "windows/trees/frmNuevaEtapa.h"

#include "core/trees/edicion_etapas.h"
#include "windows/core/ajustar_fuente.h"
#include "windows/core/conectar.h"
#include "windows/core/controles.h"
#include "windows/core/texto.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

namespace vadro {

frmNuevaEtapa::frmNuevaEtapa(EdicionEtapas& etapas, QWidget* padre)
    : QDialog(padre), etapas_(etapas) {
    setObjectName(Q("frmNuevaEtapa"));
    setWindowTitle(Q("Nueva etapa"));
    lblDenominacion = new QLabel(Q("Denominación"), this);
    lblDenominacion->setObjectName(Q("lblDenominacion"));
    txtDenominacion = new QLineEdit(this);
    txtDenominacion->setObjectName(Q("txtDenominacion"));
    txtDenominacion->setMinimumWidth(txtDenominacion->fontMetrics().averageCharWidth() * 36);
    txtDenominacion->installEventFilter(this);
    // The default button: Return in the field accepts.
    cmdAceptar = BotonAceptar(this);
    cmdCancelar = Boton(this, "cmdCancelar", "Cancelar");
    auto* columna = new QVBoxLayout(this);
    columna->addWidget(lblDenominacion);
    columna->addWidget(txtDenominacion);
    columna->addLayout(FilaBotones({cmdAceptar, cmdCancelar}));
    Conectar(cmdAceptar, &QPushButton::clicked, this, [this] { cmdAceptar_Click(); });
    Conectar(cmdCancelar, &QPushButton::clicked, this, [this] { reject(); });
    AjustarFuente(*this);
}

void frmNuevaEtapa::cmdAceptar_Click() {
    if (etapas_.AceptarNuevaEtapa(ACadena(txtDenominacion->text()))) {
        accept();
    }
}

bool frmNuevaEtapa::eventFilter(QObject* objeto, QEvent* evento) {
    // The text is selected whenever the field gets the focus.
    if (objeto == txtDenominacion && evento->type() == QEvent::FocusIn) {
        QTimer::singleShot(0, txtDenominacion, [this] { txtDenominacion->selectAll(); });
    }
    return QDialog::eventFilter(objeto, evento);
}

} // namespace vadro
