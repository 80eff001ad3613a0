// The main window's child windows: loading, unloading, and what each tells the main window.
#include "windows/shell/frmPrincipal.h"

#include "core/core/limite_fallos.h"
#include "core/core/sesion.h"
#include "core/shell/comandos_modelo.h"
#include "core/shell/flujo_trabajo.h"
#include "core/shell/plantillas_menu.h"
#include "windows/compilation/frmCompilacion.h"
#include "windows/core/ajustar_fuente.h"
#include "windows/core/conectar.h"
#include "windows/core/frmAcercaDe.h"
#include "windows/core/frmPreferencias.h"
#include "windows/core/modal.h"
#include "windows/core/texto.h"
#include "windows/reports/frmInforme.h"
#include "windows/reports/frmResumen.h"
#include "windows/shell/etiqueta_paso.h"
#include "windows/shell/frmEjes.h"
#include "windows/shell/paso_en_curso.h"
#include "windows/trees/frmComponentes.h"
#include "windows/trees/frmEtapas.h"
#include "windows/trees/frmRequerimientos.h"
#include "windows/weighting/frmPonderacion.h"
#include "windows/weighting/frmPreguntarPonderacion.h"

#include <algorithm>

#include <QApplication>
#include <QCloseEvent>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QLayout>
#include <QLinearGradient>
#include <QMenuBar>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QStatusBar>
#include <QStyle>
#include <QTimer>
#include <QToolBar>
#include <QVBoxLayout>

namespace vadro {

namespace {

VentanaHija* CrearHija(Hija hija) {
    switch (hija) {
    case Hija::Ejes:
        return new frmEjes;
    case Hija::Requerimientos:
        return new frmRequerimientos;
    case Hija::Componentes:
        return new frmComponentes;
    case Hija::Etapas:
        return new frmEtapas;
    case Hija::Resumen:
        return new frmResumen;
    case Hija::Ponderacion:
        return new frmPonderacion;
    case Hija::Informe:
        return new frmInforme;
    case Hija::Compilacion:
        break;
    }
    return new frmCompilacion;
}

} // namespace

VentanaHija* frmPrincipal::Abierta(Hija hija) const {
    for (QMdiSubWindow* marco : mdiCliente->subWindowList()) {
        if (auto* ventana = dynamic_cast<VentanaHija*>(marco->widget());
            ventana != nullptr && ventana->Cargado && ventana->Identidad() == hija) {
            return ventana;
        }
    }
    return nullptr;
}

VentanaHija& frmPrincipal::Cargar(Hija hija) {
    if (VentanaHija* abierta = Abierta(hija)) {
        mdiCliente->setActiveSubWindow(qobject_cast<QMdiSubWindow*>(abierta->parentWidget()));
        return *abierta;
    }
    VentanaHija* ventana = nullptr;
    {
        const PasoEnCurso paso(pasosEnCurso_);
        ventana = CrearHija(hija);
        Alojar(*ventana);
    }
    AplicarPendiente();
    return *ventana;
}

void frmPrincipal::Descargar(Hija hija) {
    if (VentanaHija* abierta = Abierta(hija)) {
        abierta->Descargar();
    }
}

void frmPrincipal::Alojar(VentanaHija& ventana) {
    Conectar(&ventana, &VentanaHija::Descargada, this,
             [this](Hija hija) { AplicarEfecto(EfectoAlDescargar(hija), false); });
    Conectar(&ventana, &VentanaHija::PideVentana, this, [this](Hija hija) { Cargar(hija); });
    Conectar(&ventana, &VentanaHija::ModeloAceptado, this,
             [this, &ventana](ParteModelo parte) { AvisarAceptacion(parte, ventana); });
    Conectar(&ventana, &VentanaHija::MarcaPaso, this,
             [this](int etiqueta, bool satisfecho) { MarcarPaso(etiqueta, satisfecho); });
    Conectar(&ventana, &VentanaHija::PideTransicion, this,
             [this](const Transicion& transicion) { PedirTransicion(transicion); });
    Conectar(&ventana, &VentanaHija::Estado, this, [this](const QString& texto) {
        if (texto.isEmpty()) {
            EscribirPosicion();
        } else {
            EscribirEstado(texto);
        }
    });
    AplicarEfecto(EfectoAlCargar(ventana.Identidad()), true);
    QMdiSubWindow* marco = mdiCliente->addSubWindow(&ventana);
    marco->setAttribute(Qt::WA_DeleteOnClose);
    marco->setObjectName(ventana.objectName() + Q("_marco"));
    ventana.Colocar(*marco, mdiCliente->viewport()->rect());
    marco->show();
    ventana.AjustarControles();
}

void frmPrincipal::AplicarEfecto(const EfectoHija& efecto, bool alCargar) {
    if (efecto.fondo) {
        pctFondo->setVisible(*efecto.fondo);
    }
    if (efecto.botonImprimir) {
        tlbPrincipal->findChild<QAction*>(Q("Imprimir"))->setEnabled(*efecto.botonImprimir);
    }
    if (efecto.etiquetaEnCurso >= 0) {
        if (alCargar) {
            PintarEtiqueta(efecto.etiquetaEnCurso, ColorNormal(), true);
        } else {
            EtiquetaNegrita(efecto.etiquetaEnCurso, false);
        }
    }
}

bool frmPrincipal::eventFilter(QObject* objeto, QEvent* evento) {
    if (objeto == mdiCliente->viewport() && evento->type() == QEvent::Resize) {
        const QRect area = mdiCliente->viewport()->rect();
        pctFondo->setGeometry(area);
        for (QMdiSubWindow* marco : mdiCliente->subWindowList()) {
            if (auto* hija = dynamic_cast<VentanaHija*>(marco->widget());
                hija != nullptr && hija->OcupaCliente()) {
                marco->setGeometry(area);
            }
        }
    }
    return QMainWindow::eventFilter(objeto, evento);
}

} // namespace vadro
