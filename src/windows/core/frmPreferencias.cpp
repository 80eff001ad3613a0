#include "windows/core/frmPreferencias.h"

#include "core/core/configuracion.h"
#include "windows/core/ajustar_fuente.h"
#include "windows/core/conectar.h"
#include "windows/core/controles.h"
#include "windows/core/texto.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace vadro {

namespace {

template <typename W> W* Nombrado(W* control, const char* nombre) {
    control->setObjectName(Q(nombre));
    return control;
}

} // namespace

frmPreferencias::frmPreferencias(QWidget* padre) : QDialog(padre) {
    setObjectName(Q("frmPreferencias"));
    setWindowTitle(Q("Preferencias"));
    const Configuracion& c = SesionActual().configuracion;

    chkMostrarInicio = Nombrado(new QCheckBox(Q("Mostrar pantalla de selección inicial"), this),
                                "chkMostrarInicio");
    chkVersionBeta =
        Nombrado(new QCheckBox(Q("Mostrar aviso de versión beta"), this), "chkVersionBeta");
    cbbTamañoFuente = Nombrado(new QComboBox(this), "cbbTamañoFuente");
    cbbTamañoFuente->addItems({Q("Pequeña"), Q("Mediana"), Q("Grande")});
    cbbIdioma = Nombrado(new QComboBox(this), "cbbIdioma");
    cbbIdioma->addItem(Q("Español"));
    cmdAceptar = BotonAceptar(this);
    cmdCancelar = Boton(this, "cmdCancelar", "Cancelar");

    auto* formulario = new QFormLayout;
    formulario->addRow(Nombrado(new QLabel(Q("Tamaño de letra"), this), "lblTamañoFuente"),
                       cbbTamañoFuente);
    formulario->addRow(Nombrado(new QLabel(Q("Idioma"), this), "lblIdioma"), cbbIdioma);
    auto* columna = new QVBoxLayout(this);
    columna->addWidget(chkMostrarInicio);
    columna->addWidget(chkVersionBeta);
    columna->addLayout(formulario);
    columna->addLayout(FilaBotones({cmdAceptar, cmdCancelar}));

    // The language is a fixed display: never stored, never read.
    chkMostrarInicio->setChecked(c.MostrarInicio);
    chkVersionBeta->setChecked(c.MostrarAvisoBeta);
    cbbTamañoFuente->setCurrentIndex(c.TamanoFuente >= 0 && c.TamanoFuente <= 2 ? c.TamanoFuente
                                                                                : -1);
    cbbIdioma->setCurrentIndex(0);

    Conectar(cmdAceptar, &QPushButton::clicked, this, [this] { cmdAceptar_Click(); });
    Conectar(cmdCancelar, &QPushButton::clicked, this, [this] { reject(); });
    Cargado = true;
    AjustarControles();
}

void frmPreferencias::AjustarControles() {
    AjustarFuente(*this);
}

void frmPreferencias::cmdAceptar_Click() {
    Sesion& sesion = SesionActual();
    GuardarMostrarInicio(sesion, chkMostrarInicio->isChecked());
    GuardarMostrarAvisoBeta(sesion, chkVersionBeta->isChecked());
    // A size the list cannot show (a hand-edited file) stays as it is unless one is chosen.
    const int tamano = cbbTamañoFuente->currentIndex();
    if (tamano >= 0 && tamano != sesion.configuracion.TamanoFuente) {
        GuardarTamanoFuente(sesion, tamano);
        AjustarVentanasAbiertas();
    }
    accept();
}

void frmPreferencias::done(int resultado) {
    Cargado = false;
    QDialog::done(resultado);
}

} // namespace vadro
