#include "windows/shell/frmPrincipal.h"

#include "windows/core/ajustar_fuente.h"
#include "windows/core/frmAcercaDe.h"
#include "windows/core/frmInicio.h"
#include "windows/core/frmPreferencias.h"
#include "windows/core/modal.h"
#include "windows/core/texto.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QMdiArea>
#include <QMenuBar>
#include <QScreen>

namespace vadro {

namespace {

QAction* Entrada(QMenu* menu, const char* nombre, const char* texto) {
    QAction* accion = menu->addAction(Q(texto));
    accion->setObjectName(Q(nombre));
    return accion;
}

QMenu* Menu(QMenuBar* barra, const char* nombre, const char* texto) {
    QMenu* menu = barra->addMenu(Q(texto));
    menu->setObjectName(Q(nombre));
    return menu;
}

} // namespace

frmPrincipal::frmPrincipal(QWidget* padre) : QMainWindow(padre) {
    setObjectName(Q("frmPrincipal"));
    setWindowTitle(Q("VADRO PROGRAMADOR"));
    pctFondo = new QMdiArea(this);
    pctFondo->setObjectName(Q("pctFondo"));
    setCentralWidget(pctFondo);

    mnuArchivo = Menu(menuBar(), "mnuArchivo", "&Archivo");
    mnuPreferencias = Entrada(mnuArchivo, "mnuPreferencias", "Pre&ferencias");
    mnuArchivo->addSeparator();
    mnuSalir = Entrada(mnuArchivo, "mnuSalir", "&Salir");
    mnuAyuda = Menu(menuBar(), "mnuAyuda", "Ay&uda");
    mnuAcercaDe = Entrada(mnuAyuda, "mnuAcercaDe", "&Acerca de...");

    connect(mnuPreferencias, &QAction::triggered, this, [this] {
        frmPreferencias preferencias(this);
        MostrarModal(preferencias);
    });
    connect(mnuAcercaDe, &QAction::triggered, this, [this] {
        frmAcercaDe acercaDe(this);
        MostrarModal(acercaDe);
    });
    connect(mnuSalir, &QAction::triggered, this, &QWidget::close);

    // The window never starts larger than the screen.
    resize(1024, 720);
    if (const QScreen* pantalla = QGuiApplication::primaryScreen()) {
        resize(size().boundedTo(pantalla->geometry().size()));
    }
    Cargado = true;
    AjustarControles();
}

void frmPrincipal::AjustarControles() {
    AjustarFuente(*this);
}

void frmPrincipal::Nuevo() {
    CerrarPantallaInicio();
}

void frmPrincipal::Abrir() {
    CerrarPantallaInicio();
}

void frmPrincipal::CerrarPantallaInicio() {
    if (frmInicio* inicio = frmInicio::Abierto()) {
        inicio->close();
    }
}

void frmPrincipal::closeEvent(QCloseEvent* evento) {
    Cargado = false;
    QMainWindow::closeEvent(evento);
}

} // namespace vadro
