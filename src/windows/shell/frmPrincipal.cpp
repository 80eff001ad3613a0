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

// ---- The line of positions

void frmPrincipal::Continuar() {
    Aplicar(TransicionContinuar(posicion_));
}

void frmPrincipal::Retroceder() {
    Aplicar(TransicionRetroceder(posicion_, SesionActual().modelo));
}

void frmPrincipal::lblMenu_Click(int indice) {
    Ejecutar(ComandoDeEtiqueta(indice));
}

void frmPrincipal::tlbPrincipal_ButtonClick(const QString& clave) {
    Ejecutar(ComandoDeBoton(ACadena(clave)));
}

void frmPrincipal::Ejecutar(Comando comando) {
    switch (comando) {
    case Comando::Nuevo:
        return Nuevo();
    case Comando::Abrir:
        return Abrir();
    case Comando::Guardar:
        return Guardar();
    case Comando::Imprimir:
        return Imprimir();
    case Comando::Retroceder:
        return Retroceder();
    case Comando::Continuar:
        return Continuar();
    case Comando::Requerimientos:
        return AbrirRequerimientos();
    case Comando::Componentes:
        return AbrirComponentes();
    case Comando::Etapas:
        return AbrirEtapas();
    case Comando::Compilar:
        return Compilar();
    case Comando::SaltarAResumen:
        return Aplicar(TransicionSaltoResumen());
    case Comando::SaltarAPonderacion:
        return Aplicar(TransicionSaltoPonderacion());
    case Comando::Ninguno:
        break;
    }
}

void frmPrincipal::PedirTransicion(const Transicion& transicion) {
    pendiente_ = transicion;
    AplicarPendiente();
}

void frmPrincipal::AplicarPendiente() {
    if (pasosEnCurso_ == 0 && pendiente_) {
        const Transicion transicion = *pendiente_;
        pendiente_.reset();
        Aplicar(transicion);
    }
}

void frmPrincipal::Aplicar(const Transicion& transicion) {
    {
        const PasoEnCurso paso(pasosEnCurso_);
        AplicarPaso(transicion);
    }
    AplicarPendiente();
}

void frmPrincipal::AplicarPaso(const Transicion& transicion) {
    AplicarAjuste(transicion.ajuste);
    for (Hija hija : transicion.aceptar) {
        AceptarDiseno(hija);
    }
    for (Hija hija : transicion.descargar) {
        Descargar(hija);
    }
    if (transicion.ajuste.fondo) {
        pctFondo->setVisible(*transicion.ajuste.fondo);
    }
    for (Hija hija : transicion.cargar) {
        Cargar(hija);
    }
    if (transicion.destino) {
        posicion_ = *transicion.destino;
    }
    if (transicion.preguntarPermisos) {
        PreguntarPermisos();
    }
    if (transicion.finalDeLinea) {
        FinalDeLinea();
    }
    EscribirPosicion();
}

void frmPrincipal::AplicarAjuste(const Ajuste& ajuste) {
    const auto poner = [](const std::optional<bool>& valor, auto&& accion) {
        if (valor) {
            accion(*valor);
        }
    };
    poner(ajuste.entradasDiseno, [this](bool si) {
        for (QAction* entrada :
             {mnuConfiguracionEjes, mnuRequerimientos, mnuComponentes, mnuEtapas}) {
            entrada->setEnabled(si);
        }
    });
    poner(ajuste.cmdRetroceder, [this](bool si) { cmdRetroceder->setEnabled(si); });
    poner(ajuste.botonRetroceder, [this](bool si) { Boton(BtnRetroceder)->setEnabled(si); });
    poner(ajuste.cmdContinuar, [this](bool si) { cmdContinuar->setEnabled(si); });
    poner(ajuste.botonContinuar, [this](bool si) { Boton(BtnContinuar)->setEnabled(si); });
    poner(ajuste.grupoDiseno, [this](bool si) {
        for (int i = BtnPrimeroDiseno; i <= BtnUltimoDiseno; ++i) {
            Boton(i)->setVisible(si);
        }
    });
    poner(ajuste.importar, [this](bool si) { mnuImportar->menuAction()->setEnabled(si); });
    poner(ajuste.panel, [this](bool si) { pctPrincipal->setVisible(si); });
    poner(ajuste.menuModelo, [this](bool si) { mnuModelo->menuAction()->setVisible(si); });
}

void frmPrincipal::PreguntarPermisos() {
    frmPreguntarPonderacion pregunta(this);
    if (MostrarModal(pregunta) == QDialog::Accepted) {
        Aplicar(TransicionTrasPermisos());
    }
}

void frmPrincipal::FinalDeLinea() {
    if (!PreguntarCompilarAlFinal(SesionActual().modelo)) {
        return;
    }
    Aplicar(TransicionCompilarAlFinal());
    Compilar();
}

// The design windows open from the axes window; from another position the step panel opens
// them without bringing that window back.
void frmPrincipal::AbrirRequerimientos() {
    Cargar(Hija::Requerimientos);
}

void frmPrincipal::AbrirComponentes() {
    Cargar(Hija::Componentes);
}

void frmPrincipal::AbrirEtapas() {
    Cargar(Hija::Etapas);
}

void frmPrincipal::AceptarDiseno(Hija hija) {
    if (auto* diseno = dynamic_cast<VentanaDiseno*>(Abierta(hija))) {
        diseno->cmdAceptar_Click();
    }
}

void frmPrincipal::DescargarTodas() {
    // A window that refuses to go stays; the new model goes on all the same.
    for (QMdiSubWindow* marco : mdiCliente->subWindowList()) {
        marco->close();
    }
    for (QWidget* ventana : QApplication::topLevelWidgets()) {
        auto* otra = dynamic_cast<Ventana*>(ventana);
        if (ventana != this && otra != nullptr && otra->Cargado) {
            ventana->close();
        }
    }
}

void frmPrincipal::Organizar() {
    // Cascaded windows keep a size that can be worked in: a third of the client area at the
    // least, and never less than their own minimum.
    mdiCliente->cascadeSubWindows();
    const QSize cliente = mdiCliente->viewport()->size();
    for (QMdiSubWindow* marco : mdiCliente->subWindowList()) {
        const QSize minimo =
            marco->minimumSizeHint().expandedTo(QSize(cliente.width() / 3, cliente.height() / 3));
        marco->resize(marco->size().expandedTo(minimo).boundedTo(cliente));
    }
}

// ---- Labels, buttons and the status bar

QAction* frmPrincipal::Boton(int indice) const {
    return botones_.at(static_cast<std::size_t>(indice));
}

QColor frmPrincipal::ColorNormal() const {
    return palette().color(QPalette::ButtonText);
}

void frmPrincipal::MarcarPaso(int indice, bool satisfecho) {
    PintarEtiqueta(indice, satisfecho ? ColorNormal() : QColor(255, 0, 0), !satisfecho);
}

void frmPrincipal::PintarEtiqueta(int indice, const QColor& color, bool negrita) {
    EtiquetaPaso* etiqueta = lblMenu.at(static_cast<std::size_t>(indice));
    QPalette colores = etiqueta->palette();
    colores.setColor(QPalette::WindowText, color);
    etiqueta->setPalette(colores);
    EtiquetaNegrita(indice, negrita);
}

void frmPrincipal::EtiquetaNegrita(int indice, bool negrita) {
    EtiquetaPaso* etiqueta = lblMenu.at(static_cast<std::size_t>(indice));
    QFont letra = etiqueta->font();
    letra.setBold(negrita);
    etiqueta->setFont(letra);
}

void frmPrincipal::EscribirPosicion() {
    EscribirEstado(Q(TextoPosicion(posicion_)));
}

void frmPrincipal::EscribirEstado(const QString& texto) {
    panelEstado_->setText(texto);
}

QString frmPrincipal::TextoEstado() const {
    return panelEstado_->text();
}

// ---- Closing

std::vector<Hija> frmPrincipal::HijasAbiertas() const {
    std::vector<Hija> abiertas;
    for (QMdiSubWindow* marco : mdiCliente->subWindowList()) {
        if (auto* hija = dynamic_cast<VentanaHija*>(marco->widget()); hija && hija->Cargado) {
            abiertas.push_back(hija->Identidad());
        }
    }
    return abiertas;
}

bool frmPrincipal::CerrarHijas() {
    for (QMdiSubWindow* marco : mdiCliente->subWindowList()) {
        if (!marco->close()) {
            return false;
        }
    }
    return true;
}

void frmPrincipal::closeEvent(QCloseEvent* evento) {
    EjecutarProtegido([this, evento] {
        // The child windows close first; if the close is refused, those of the position
        // that were open come back.
        const std::vector<Hija> abiertas = HijasAbiertas();
        const bool conPanel = pctPrincipal->isVisibleTo(this);
        evento->ignore();
        if (!CerrarHijas()) {
            return;
        }
        pctFondo->hide();
        pctPrincipal->hide();
        Sesion& sesion = SesionActual();
        if (!GuardarAlCerrar(sesion.modelo, sesion.DirectorioPrograma)) {
            pctPrincipal->setVisible(conPanel);
            for (Hija hija : VentanasARecargar(posicion_, abiertas)) {
                Cargar(hija);
            }
            return;
        }
        Cargado = false;
        evento->accept();
    });
}

} // namespace vadro
