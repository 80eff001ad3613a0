#include "windows/functions/panel_optativos.h"

#include "core/core/sesion.h"
#include "windows/core/conectar.h"
#include "windows/core/controles.h"
#include "windows/core/texto.h"
#include "windows/functions/arriba_abajo.h"
#include "windows/functions/pintar_grafica.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QTableView>
#include <QVBoxLayout>

namespace vadro {

PanelOptativos::PanelOptativos(EditorFuncion& editor, Manejador manejar, QWidget* padre)
    : QWidget(padre), editor_(editor), manejar_(std::move(manejar)) {
    setObjectName(QStringLiteral("pctOptativos"));
    auto* fila = new QHBoxLayout(this);
    fila->setContentsMargins(0, 0, 0, 0);

    auto* izquierda = new QVBoxLayout;
    auto* cuentas = new QGridLayout;
    lblOptativos = EtiquetaCuenta(this, "lblOptativos");
    updOptativos = new ArribaAbajo(this);
    updOptativos->setObjectName(QStringLiteral("updOptativos"));
    lblSeleccionables = EtiquetaCuenta(this, "lblSeleccionables");
    updSeleccionables = new ArribaAbajo(this);
    updSeleccionables->setObjectName(QStringLiteral("updSeleccionables"));
    cuentas->addWidget(Etiqueta(this, "lblNumOptativos", "Nº de indicadores optativos totales"), 0,
                       0);
    cuentas->addWidget(lblOptativos, 0, 1);
    cuentas->addWidget(updOptativos, 0, 2);
    cuentas->addWidget(Etiqueta(this, "lblNumSeleccionables", "Nº de indicadores seleccionables"),
                       1, 0);
    cuentas->addWidget(lblSeleccionables, 1, 1);
    cuentas->addWidget(updSeleccionables, 1, 2);
    cuentas->setColumnStretch(3, 1);
    izquierda->addLayout(cuentas);

    grdOptativos = new QTableView(this);
    grdOptativos->setObjectName(QStringLiteral("grdOptativos"));
    grdOptativos->verticalHeader()->hide();
    grdOptativos->horizontalHeader()->setStretchLastSection(true);
    grdOptativos->setSelectionMode(QAbstractItemView::NoSelection);
    grdOptativos->setMinimumSize(260, 160);
    txtValorOpt = new QLineEdit(grdOptativos->viewport());
    txtValorOpt->setObjectName(QStringLiteral("txtValorOpt"));
    izquierda->addWidget(grdOptativos, 1);
    fila->addLayout(izquierda, 1);
    fila->addWidget(ConstruirGrafica(), 1);

    rejilla_ = new RejillaTabla(editor_, Tabla::Optativos, *grdOptativos, *txtValorOpt, manejar_);
    Conectar();
}

QWidget* PanelOptativos::ConstruirGrafica() {
    auto* caja = new QWidget(this);
    auto* columna = new QVBoxLayout(caja);
    columna->setContentsMargins(0, 0, 0, 0);
    auto* ayuda = Etiqueta(caja, "lblGraficaOptativos",
                           "Para crear o modificar la función de valor de un indicador, haga "
                           "doble click sobre la gráfica");
    ayuda->setWordWrap(true);
    columna->addWidget(ayuda);
    auto* rejilla = new QGridLayout;
    pctGraficaOptativos = new LienzoGrafica(caja);
    pctGraficaOptativos->setObjectName(QStringLiteral("pctGraficaOptativos"));
    pctGraficaOptativos->setMinimumSize(240, 180);
    pctGraficaOptativos->PonerGrafica(&editor_.GraficaOptativo);
    rejilla->addWidget(Etiqueta(caja, "lblMaxPorcentajeOpt", "100% Smax"), 0, 0,
                       Qt::AlignRight | Qt::AlignTop);
    rejilla->addWidget(Etiqueta(caja, "lblEjeYOpt", "R(X)"), 1, 0,
                       Qt::AlignRight | Qt::AlignVCenter);
    rejilla->addWidget(Etiqueta(caja, "lblMinPorcentajeOpt", "Smin 0%"), 2, 0,
                       Qt::AlignRight | Qt::AlignBottom);
    rejilla->addWidget(pctGraficaOptativos, 0, 1, 3, 2);
    rejilla->addWidget(Etiqueta(caja, "lblMinimoOpt", "0 u"), 3, 1, Qt::AlignLeft);
    rejilla->addWidget(Etiqueta(caja, "lblMaximoOpt", "100 u"), 3, 2, Qt::AlignRight);
    rejilla->setRowStretch(1, 1);
    columna->addLayout(rejilla, 1);
    return caja;
}

void PanelOptativos::Conectar() {
    ConectarCuenta(*updOptativos, editor_, Tabla::Optativos, manejar_);
    vadro::Conectar(updSeleccionables, &ArribaAbajo::Subir, this, [this] {
        if (editor_.Seleccionables < editor_.MaximoSeleccionables) {
            manejar_([&] { editor_.CambiarSeleccionables(editor_.Seleccionables + 1); });
        }
    });
    vadro::Conectar(updSeleccionables, &ArribaAbajo::Bajar, this, [this] {
        if (editor_.Seleccionables > 0) {
            manejar_([&] { editor_.CambiarSeleccionables(editor_.Seleccionables - 1); });
        }
    });
    vadro::Conectar(pctGraficaOptativos, &LienzoGrafica::DobleClick, this, [this] {
        int fila = 0;
        manejar_([&] { fila = editor_.FilaOptativoAEditar(); });
        if (fila > 0) {
            emit EditarFila(fila);
        }
    });
}

void PanelOptativos::Mostrar() {
    lblOptativos->setText(QString::number(editor_.Optativos.Cuenta));
    lblSeleccionables->setText(QString::number(editor_.Seleccionables));
    rejilla_->Mostrar();
    pctGraficaOptativos->update();
}

} // namespace vadro
