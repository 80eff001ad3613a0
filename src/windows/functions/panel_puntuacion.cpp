#include "windows/functions/panel_puntuacion.h"

#include "windows/core/texto.h"
#include "windows/functions/arriba_abajo.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QTableView>
#include <QVBoxLayout>

namespace vadro {

PanelPuntuacion::PanelPuntuacion(EditorFuncion& editor, Manejador manejar, QWidget* padre)
    : QWidget(padre), editor_(editor), manejar_(std::move(manejar)) {
    setObjectName(QStringLiteral("pctTablas"));
    auto* columna = new QVBoxLayout(this);
    columna->setContentsMargins(0, 0, 0, 0);
    const char* const booleanos[6] = {"fmeBooleanos", "lblNumBooleanos", "lblBooleanos",
                                      "updBooleanos", "grdBooleanos",    "txtValorB"};
    const Marco b =
        Construir(Tabla::Booleanos, booleanos, "Elementos booleanos (Sí/No o Cierto/Falso)",
                  "Número de elementos de puntuación booleanos");
    const char* const numericos[6] = {"fmeNumericos", "lblNumNumericos", "lblNumericos",
                                      "updNumericos", "grdNumericos",    "txtValorN"};
    const Marco n = Construir(Tabla::Numericos, numericos, "Elementos númericos",
                              "Número de elementos de puntuación numéricos");
    fmeBooleanos = b.marco;
    lblBooleanos = b.cuenta;
    updBooleanos = b.arribaAbajo;
    grdBooleanos = b.rejilla;
    txtValorB = b.entrada;
    rejillaBooleanos_ = b.trabajo;
    fmeNumericos = n.marco;
    lblNumericos = n.cuenta;
    updNumericos = n.arribaAbajo;
    grdNumericos = n.rejilla;
    txtValorN = n.entrada;
    rejillaNumericos_ = n.trabajo;
    columna->addWidget(fmeBooleanos, 1);
    columna->addWidget(fmeNumericos, 1);
}

PanelPuntuacion::Marco PanelPuntuacion::Construir(Tabla tabla, const char* const (&nombres)[6],
                                                  const char* titulo, const char* leyenda) {
    Marco m{};
    m.marco = new QGroupBox(Q(titulo), this);
    m.marco->setObjectName(Q(nombres[0]));
    auto* columna = new QVBoxLayout(m.marco);
    auto* cuenta = new QHBoxLayout;
    auto* etiqueta = new QLabel(Q(leyenda), m.marco);
    etiqueta->setObjectName(Q(nombres[1]));
    cuenta->addWidget(etiqueta);
    m.cuenta = EtiquetaCuenta(m.marco, nombres[2]);
    cuenta->addWidget(m.cuenta);
    m.arribaAbajo = new ArribaAbajo(m.marco);
    m.arribaAbajo->setObjectName(Q(nombres[3]));
    cuenta->addWidget(m.arribaAbajo);
    cuenta->addStretch();
    columna->addLayout(cuenta);

    m.rejilla = new QTableView(m.marco);
    m.rejilla->setObjectName(Q(nombres[4]));
    m.rejilla->verticalHeader()->hide();
    m.rejilla->setSelectionMode(QAbstractItemView::SingleSelection);
    m.rejilla->setSelectionBehavior(QAbstractItemView::SelectItems);
    m.rejilla->setMinimumHeight(110);
    m.entrada = new QLineEdit(m.rejilla->viewport());
    m.entrada->setObjectName(Q(nombres[5]));
    columna->addWidget(m.rejilla, 1);
    m.trabajo = new RejillaTabla(editor_, tabla, *m.rejilla, *m.entrada, manejar_);
    auto* cabecera = m.rejilla->horizontalHeader();
    cabecera->setSectionResizeMode(QHeaderView::ResizeToContents);
    cabecera->setSectionResizeMode(1, QHeaderView::Stretch);
    ConectarCuenta(*m.arribaAbajo, editor_, tabla, manejar_);
    return m;
}

void PanelPuntuacion::Mostrar() {
    lblBooleanos->setText(QString::number(editor_.Booleanos.Cuenta));
    lblNumericos->setText(QString::number(editor_.Numericos.Cuenta));
    rejillaBooleanos_->Mostrar();
    rejillaNumericos_->Mostrar();
}

} // namespace vadro
