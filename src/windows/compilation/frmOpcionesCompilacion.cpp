#include "windows/compilation/frmOpcionesCompilacion.h"

#include "core/core/sesion.h"
#include "windows/core/ajustar_fuente.h"
#include "windows/core/conectar.h"
#include "windows/core/controles.h"
#include "windows/core/texto.h"

#include <QCheckBox>
#include <QPushButton>
#include <QVBoxLayout>

namespace vadro {

frmOpcionesCompilacion::frmOpcionesCompilacion(QWidget* padre) : QDialog(padre) {
    setObjectName(Q("frmOpcionesCompilacion"));
    setWindowTitle(Q("Opciones de compilación"));
    chkMostrarArbol = new QCheckBox(Q("Mostrar el árbol de requerimientos"), this);
    chkMostrarArbol->setObjectName(Q("chkMostrarArbol"));
    cmdAceptar = BotonAceptar(this);

    auto* columna = new QVBoxLayout(this);
    columna->addWidget(chkMostrarArbol);
    columna->addLayout(FilaBotones({cmdAceptar}));

    chkMostrarArbol->setChecked(SesionActual().modelo.MostrarArbol);
    Conectar(cmdAceptar, &QPushButton::clicked, this, [this] { cmdAceptar_Click(); });
    Cargado = true;
    AjustarControles();
}

void frmOpcionesCompilacion::AjustarControles() {
    AjustarFuente(*this);
}

void frmOpcionesCompilacion::cmdAceptar_Click() {
    SesionActual().modelo.MostrarArbol = chkMostrarArbol->isChecked();
    accept();
}

void frmOpcionesCompilacion::done(int resultado) {
    Cargado = false;
    QDialog::done(resultado);
}

} // namespace vadro
