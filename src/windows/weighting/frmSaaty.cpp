#include "windows/weighting/frmSaaty.h"

#include "core/core/limite_fallos.h"
#include "core/core/sesion.h"
#include "windows/core/ajustar_fuente.h"
#include "windows/core/conectar.h"
#include "windows/core/controles.h"
#include "windows/core/texto.h"

#include <QButtonGroup>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace vadro {

namespace {

QLabel* Etiqueta(QWidget* padre, const QString& nombre, const QString& texto = {}) {
    auto* etiqueta = new QLabel(texto, padre);
    etiqueta->setObjectName(nombre);
    return etiqueta;
}

QString Indexado(const char* nombre, int k) {
    return Q(nombre) + QStringLiteral("(%1)").arg(k);
}

} // namespace

frmSaaty::frmSaaty(Celda celda, RejillaPonderacion& rejilla, std::function<void()> alCerrar,
                   QWidget* padre)
    : QDialog(padre), celda_(celda), rejilla_(rejilla), alCerrar_(std::move(alCerrar)) {
    setObjectName(Q("frmSaaty"));
    setWindowTitle(Q("Selección del parámetro SAATY"));
    // The names of the pair, in capitals: the row's element against the column's.
    lblFila = Etiqueta(this, Q("lblFila"), Q(rejilla.Texto(celda.Fila, 0)).toUpper());
    const QString columna = Q(rejilla.Texto(0, celda.Columna)).toUpper();
    lblMasColumna = Etiqueta(this, Q("lblMasColumna"), columna);
    lblMenosColumna = Etiqueta(this, Q("lblMenosColumna"), columna);
    for (QLabel* nombre : {lblFila, lblMasColumna, lblMenosColumna}) {
        QFont letra = nombre->font();
        letra.setBold(true);
        nombre->setFont(letra);
        nombre->setAlignment(Qt::AlignCenter);
    }

    auto* escala = new QGridLayout;
    escala->addWidget(Etiqueta(this, Q("lblMas"), Q("...más importante que...")), 0, 0, 1, 2,
                      Qt::AlignCenter);
    escala->addWidget(Etiqueta(this, Q("lblMenos"), Q("...menos importante que...")), 0, 2, 1, 2,
                      Qt::AlignCenter);
    escala->addWidget(lblMasColumna, 10, 0, 1, 2);
    escala->addWidget(lblMenosColumna, 10, 2, 1, 2);
    escala->setColumnMinimumWidth(1, 220);
    escala->setColumnMinimumWidth(3, 220);
    auto* grupo = new QButtonGroup(this);
    for (int k = 0; k < kOpcionesSaaty; ++k) {
        const OpcionSaaty& opcion = EscalaSaaty()[static_cast<std::size_t>(k)];
        auto* boton = new QRadioButton(Q(opcion.Rotulo), this);
        boton->setObjectName(Indexado("optPeso", k));
        boton->setProperty("Tag", Q(EtiquetaOpcionSaaty(k)));
        boton->installEventFilter(this);
        grupo->addButton(boton, k);
        auto* palabras = Etiqueta(this, Indexado("lblPeso", k), Q(opcion.Palabras));
        palabras->installEventFilter(this);
        optPeso.at(static_cast<std::size_t>(k)) = boton;
        lblPeso.at(static_cast<std::size_t>(k)) = palabras;
        const int fila = 1 + k % 9;
        const int columnaEscala = k < 9 ? 0 : 2;
        escala->addWidget(boton, fila, columnaEscala);
        escala->addWidget(palabras, fila, columnaEscala + 1);
    }
    cmdAceptar = BotonAceptar(this);
    cmdCancelar = Boton(this, "cmdCancelar", "Cancelar");
    auto* columnaPrincipal = new QVBoxLayout(this);
    columnaPrincipal->addWidget(lblFila);
    columnaPrincipal->addLayout(escala);
    columnaPrincipal->addLayout(FilaBotones({cmdAceptar, cmdCancelar}));

    // The option of the cell's shown text; a figure with two decimals finds none.
    if (const auto k = OpcionDeCelda(rejilla.Texto(celda.Fila, celda.Columna))) {
        optPeso.at(static_cast<std::size_t>(*k))->setChecked(true);
    }
    Conectar(cmdAceptar, &QPushButton::clicked, this, [this] { cmdAceptar_Click(); });
    Conectar(cmdCancelar, &QPushButton::clicked, this, [this] { reject(); });
    Cargado = true;
    AjustarControles();
}

void frmSaaty::AjustarControles() {
    AjustarFuente(*this);
    // An option's figure reads at the size of its words.
    for (std::size_t k = 0; k < optPeso.size(); ++k) {
        optPeso.at(k)->setFont(lblPeso.at(k)->font());
    }
}

void frmSaaty::cmdAceptar_Click() {
    // With no option on there is no judgement to store: the dialog closes as if cancelled.
    for (int k = 0; k < kOpcionesSaaty; ++k) {
        if (optPeso.at(static_cast<std::size_t>(k))->isChecked()) {
            AceptarOpcionSaaty(SesionActual(), celda_, k, rejilla_);
            accept();
            return;
        }
    }
    reject();
}

bool frmSaaty::eventFilter(QObject* objeto, QEvent* evento) {
    const bool pulsacion = evento->type() == QEvent::MouseButtonPress;
    const bool doble = evento->type() == QEvent::MouseButtonDblClick;
    if (!pulsacion && !doble) {
        return QDialog::eventFilter(objeto, evento);
    }
    EjecutarProtegido([&] {
        for (std::size_t k = 0; k < optPeso.size(); ++k) {
            if (objeto == lblPeso.at(k) && pulsacion) {
                optPeso.at(k)->setChecked(true);
            } else if ((objeto == lblPeso.at(k) || objeto == optPeso.at(k)) && doble) {
                optPeso.at(k)->setChecked(true);
                cmdAceptar_Click();
            }
        }
    });
    return doble;
}

void frmSaaty::done(int resultado) {
    Cargado = false;
    EjecutarProtegido([this] {
        if (alCerrar_) {
            alCerrar_();
        }
    });
    QDialog::done(resultado);
}

} // namespace vadro
