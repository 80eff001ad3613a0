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

constexpr int kAnchoPanel = 230;

// The picture behind a child window.
class Fondo : public QWidget {
public:
    explicit Fondo(QWidget* padre) : QWidget(padre) {}

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter pintor(this);
        QLinearGradient degradado(0, 0, 0, height());
        degradado.setColorAt(0, QColor(0, 48, 96));
        degradado.setColorAt(1, QColor(0, 112, 160));
        pintor.fillRect(rect(), degradado);
        QFont letra = font();
        letra.setBold(true);
        letra.setPointSize(28);
        pintor.setFont(letra);
        pintor.setPen(QColor(255, 255, 255, 60));
        pintor.drawText(rect().adjusted(0, 0, -24, -16), Qt::AlignRight | Qt::AlignBottom,
                        Q("VADRO PROGRAMADOR"));
    }
};

QMenu* Menu(QMenuBar* barra, const char* nombre, const char* texto) {
    QMenu* menu = barra->addMenu(Q(texto));
    menu->setObjectName(Q(nombre));
    return menu;
}

QMenu* Submenu(QMenu* padre, const char* nombre, const char* texto) {
    QMenu* menu = padre->addMenu(Q(texto));
    menu->setObjectName(Q(nombre));
    return menu;
}

QAction* Entrada(QMenu* menu, const char* nombre, const char* texto) {
    QAction* accion = menu->addAction(Q(texto));
    accion->setObjectName(Q(nombre));
    return accion;
}

QAction* Separador(QMenu* menu, const char* nombre) {
    QAction* separador = menu->addSeparator();
    separador->setObjectName(Q(nombre));
    return separador;
}

// A menu that the tree windows show at the pointer; it never stands in the menu bar.
QMenu* MenuEmergente(QMenuBar* barra, const char* nombre, const char* texto) {
    QMenu* menu = Menu(barra, nombre, texto);
    menu->menuAction()->setVisible(false);
    return menu;
}

} // namespace

frmPrincipal::frmPrincipal(QWidget* padre) : QMainWindow(padre) {
    setObjectName(Q("frmPrincipal"));
    setWindowTitle(Q(kTituloPrincipal));

    auto* cliente = new QWidget(this);
    cliente->setObjectName(Q("cliente"));
    auto* fila = new QHBoxLayout(cliente);
    fila->setContentsMargins(0, 0, 0, 0);
    fila->setSpacing(0);
    CrearPanelPasos();
    fila->addWidget(pctPrincipal);
    mdiCliente = new QMdiArea(cliente);
    mdiCliente->setObjectName(Q("mdiCliente"));
    fila->addWidget(mdiCliente, 1);
    setCentralWidget(cliente);
    // The background lies under the child windows and always fills the client area.
    pctFondo = new Fondo(mdiCliente->viewport());
    pctFondo->setObjectName(Q("pctFondo"));
    pctFondo->lower();
    pctFondo->hide();
    mdiCliente->viewport()->installEventFilter(this);

    stbEstado = statusBar();
    stbEstado->setObjectName(Q("stbEstado"));
    panelEstado_ = new QLabel(stbEstado);
    panelEstado_->setObjectName(Q("stbEstado(1)"));
    stbEstado->addWidget(panelEstado_, 1);

    CrearBarraHerramientas();
    CrearMenus();
    CrearMenusArbol();
    ConectarMenus();

    // It stands, and nothing hangs on it: nothing is ever saved by itself.
    tmrAutoguardado = new QTimer(this);
    tmrAutoguardado->setObjectName(Q("tmrAutoguardado"));
    tmrAutoguardado->setInterval(1000);

    // Before a model is open: no panel, no way along the line, no design group, no model menu.
    Ajuste escritorioVacio;
    escritorioVacio.panel = false;
    escritorioVacio.botonRetroceder = escritorioVacio.botonContinuar = false;
    escritorioVacio.grupoDiseno = false;
    escritorioVacio.menuModelo = false;
    AplicarAjuste(escritorioVacio);

    // The window never starts larger than the screen.
    resize(1024, 720);
    if (const QScreen* pantalla = QGuiApplication::primaryScreen()) {
        resize(size().boundedTo(pantalla->geometry().size()));
    }
    EscribirPosicion();
    Cargado = true;
    AjustarControles();
}

void frmPrincipal::CrearPanelPasos() {
    pctPrincipal = new QFrame(this);
    pctPrincipal->setObjectName(Q("pctPrincipal"));
    pctPrincipal->setFrameShape(QFrame::StyledPanel);
    pctPrincipal->setFixedWidth(kAnchoPanel);
    auto* columna = new QVBoxLayout(pctPrincipal);
    columna->setSpacing(4);
    for (int i = 0; i < kNumEtiquetas; ++i) {
        auto* etiqueta = new EtiquetaPaso(Q(TextoEtiqueta(i)), pctPrincipal);
        etiqueta->setObjectName(Q("lblMenu(" + std::to_string(i) + ")"));
        etiqueta->setWordWrap(true);
        if (EsEncabezado(i)) {
            // A heading is a band across the panel; it does nothing when clicked.
            etiqueta->setAutoFillBackground(true);
            QPalette banda = etiqueta->palette();
            banda.setColor(QPalette::Window, QColor(0, 48, 96));
            banda.setColor(QPalette::WindowText, QColor(255, 255, 255));
            etiqueta->setPalette(banda);
            etiqueta->setMargin(4);
            QFont negrita = etiqueta->font();
            negrita.setBold(true);
            etiqueta->setFont(negrita);
            if (i > 0) {
                columna->addSpacing(10);
            }
        } else {
            etiqueta->setIndent(16);
            etiqueta->setCursor(Qt::PointingHandCursor);
        }
        Conectar(etiqueta, &EtiquetaPaso::Pulsada, this, [this, i] { lblMenu_Click(i); });
        columna->addWidget(etiqueta);
        lblMenu[static_cast<std::size_t>(i)] = etiqueta;
    }
    columna->addStretch();
    cmdRetroceder =
        new QPushButton(style()->standardIcon(QStyle::SP_ArrowBack), Q("Retroceder"), pctPrincipal);
    cmdRetroceder->setObjectName(Q("cmdRetroceder"));
    cmdContinuar = new QPushButton(style()->standardIcon(QStyle::SP_ArrowForward), Q("Continuar"),
                                   pctPrincipal);
    cmdContinuar->setObjectName(Q("cmdContinuar"));
    auto* botones = new QHBoxLayout;
    botones->addWidget(cmdRetroceder);
    botones->addWidget(cmdContinuar);
    columna->addLayout(botones);
    Conectar(cmdRetroceder, &QPushButton::clicked, this, [this] { Retroceder(); });
    Conectar(cmdContinuar, &QPushButton::clicked, this, [this] { Continuar(); });

    // The steps a new model has not yet satisfied: its weights and its compilation.
    for (int i : {EtqRequerimientos, EtqComponentes, EtqCicloVida, EtqPesos, EtqCompilacion}) {
        MarcarPaso(i, false);
    }
    MarcarPaso(EtqResumen, true);
}

void frmPrincipal::CrearBarraHerramientas() {
    tlbPrincipal = addToolBar(Q("Herramientas"));
    tlbPrincipal->setObjectName(Q("tlbPrincipal"));
    tlbPrincipal->setMovable(false);
    tlbPrincipal->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    struct Definicion {
        const char* clave; // empty for a separator
        const char* texto;
        QStyle::StandardPixmap imagen;
    };
    // The places count from 1 with the separators: Retroceder is 8, Continuar 9, and 10 to 13
    // are the group of the three design windows.
    const Definicion botones[] = {
        {"Nuevo", "Nuevo", QStyle::SP_FileIcon},
        {"Abrir", "Abrir", QStyle::SP_DialogOpenButton},
        {"Guardar", "Guardar", QStyle::SP_DialogSaveButton},
        {"Imprimir", "Imprimir", QStyle::SP_FileDialogContentsView},
        {"", "", QStyle::SP_CustomBase},
        {"Compilar", "Compilar", QStyle::SP_DialogApplyButton},
        {"", "", QStyle::SP_CustomBase},
        {"Retroceder", "Retroceder", QStyle::SP_ArrowBack},
        {"Continuar", "Continuar", QStyle::SP_ArrowForward},
        {"", "", QStyle::SP_CustomBase},
        {"Requerimientos", "Requerimientos", QStyle::SP_FileDialogDetailedView},
        {"Alternativas", "Componentes", QStyle::SP_FileDialogListView},
        {"Tiempo", "Ciclo de vida", QStyle::SP_BrowserReload},
    };
    botones_.push_back(nullptr);
    for (const Definicion& d : botones) {
        QAction* boton = nullptr;
        if (*d.clave == '\0') {
            boton = tlbPrincipal->addSeparator();
            boton->setObjectName(Q("sepBarra" + std::to_string(botones_.size())));
        } else {
            boton = tlbPrincipal->addAction(style()->standardIcon(d.imagen), Q(d.texto));
            boton->setObjectName(Q(d.clave));
            boton->setData(Q(d.clave));
            boton->setToolTip(Q(d.texto));
        }
        botones_.push_back(boton);
    }
    Conectar(tlbPrincipal, &QToolBar::actionTriggered, this,
             [this](QAction* boton) { tlbPrincipal_ButtonClick(boton->data().toString()); });
}

void frmPrincipal::CrearMenus() {
    QMenuBar* barra = menuBar();
    mnuArchivo = Menu(barra, "mnuArchivo", "&Archivo");
    mnuNuevo = Entrada(mnuArchivo, "mnuNuevo", "&Nuevo");
    mnuAbrir = Entrada(mnuArchivo, "mnuAbrir", "&Abrir");
    mnuGuardar = Entrada(mnuArchivo, "mnuGuardar", "Gua&rdar");
    mnuGuardarComo = Entrada(mnuArchivo, "mnuGuardarComo", "Guar&dar como...");
    mnuArchivo->addSeparator();
    mnuVista = Entrada(mnuArchivo, "mnuVista", "&Vista preliminar");
    mnuImprimir = Entrada(mnuArchivo, "mnuImprimir", "&Imprimir");
    mnuArchivo->addSeparator();
    mnuPreferencias = Entrada(mnuArchivo, "mnuPreferencias", "Pre&ferencias");
    mnuArchivo->addSeparator();
    mnuSalir = Entrada(mnuArchivo, "mnuSalir", "&Salir");

    mnuModelo = Menu(barra, "mnuModelo", "&Modelo");
    mnuImportar = Submenu(mnuModelo, "mnuImportar", "I&mportar");
    mnuImportarR = Entrada(mnuImportar, "mnuImportarR", "Arbol de &requerimientos");
    mnuImportarComp = Entrada(mnuImportar, "mnuImportarComp", "Arbol de c&omponentes");
    mnuImportarEtapas = Entrada(mnuImportar, "mnuImportarEtapas", "&Etapas del ciclo de vida");
    mnuExportar = Submenu(mnuModelo, "mnuExportar", "E&xportar");
    mnuExportarR = Entrada(mnuExportar, "mnuExportarR", "Arbol de &requerimientos");
    mnuExportarComp = Entrada(mnuExportar, "mnuExportarComp", "Arbol de c&omponentes");
    mnuExportarEtapas = Entrada(mnuExportar, "mnuExportarEtapas", "&Etapas del ciclo de vida");
    mnuModelo->addSeparator();
    mnuPermitirSubcriterios =
        Entrada(mnuModelo, "mnuPermitirSubcriterios", "Permitir &subcriterios");
    mnuPermitirSubcriterios->setCheckable(true);
    mnuConfiguracionEjes = Entrada(mnuModelo, "mnuConfiguracionEjes", "Confi&guración de ejes");
    mnuModelo->addSeparator();
    mnuRequerimientos = Entrada(mnuModelo, "mnuRequerimientos", "Re&querimientos");
    mnuComponentes = Entrada(mnuModelo, "mnuComponentes", "Co&mponentes");
    mnuEtapas = Entrada(mnuModelo, "mnuEtapas", "E&tapas");
    mnuModelo->addSeparator();
    mnuCompilar = Entrada(mnuModelo, "mnuCompilar", "Compilar");
    mnuModelo->addSeparator();
    mnuPropiedades = Entrada(mnuModelo, "mnuPropiedades", "&Propiedades");

    mnuArbolR = MenuEmergente(barra, "mnuArbolR", "&Arbol");
    mnuArbolC = MenuEmergente(barra, "mnuArbolC", "&ArbolComp");

    mnuVentana = Menu(barra, "mnuVentana", "Ve&ntana");
    mnuOrganizar = Entrada(mnuVentana, "mnuOrganizar", "&Organizar");
    mnuAyuda = Menu(barra, "mnuAyuda", "Ay&uda");
    mnuManual = Entrada(mnuAyuda, "mnuManual", "&Manual de uso");
    mnuAcercaDe = Entrada(mnuAyuda, "mnuAcercaDe", "&Acerca de...");
}

void frmPrincipal::CrearMenusArbol() {
    // The entries of the two tree menus; the tree windows set them up and answer them.
    Entrada(mnuArbolR, "mnuAñadirR", "Añadir &requerimiento");
    Entrada(mnuArbolR, "mnuAñadirC", "Añadir &criterio");
    Entrada(mnuArbolR, "mnuAñadirS", "Añadir &subcriterio");
    Entrada(mnuArbolR, "mnuAñadirI", "Añadir &indicador");
    Separador(mnuArbolR, "sepArbolR1");
    Entrada(mnuArbolR, "mnuInsertarAntes", "Insertar &antes");
    Entrada(mnuArbolR, "mnuInsertarDespues", "Insertar &después");
    Entrada(mnuArbolR, "mnuEliminar", "&Eliminar requerimiento");
    Separador(mnuArbolR, "sepArbolR2");
    Entrada(mnuArbolR, "mnuCopiar", "C&opiar");
    Entrada(mnuArbolR, "mnuPegar", "&Pegar");
    Separador(mnuArbolR, "sepArbolR3");
    Entrada(mnuArbolR, "mnuRenombrar", "Re&nombrar");

    Entrada(mnuArbolC, "mnuAñadirComp", "Añadir &componente");
    Entrada(mnuArbolC, "mnuAñadirSc", "Añadir &subcomponente");
    mnuArbolC->addSeparator();
    Entrada(mnuArbolC, "mnuInsertarAntesC", "Insertar &antes");
    Entrada(mnuArbolC, "mnuInsertarDespuesC", "Insertar &después");
    Entrada(mnuArbolC, "mnuEliminarC", "&Eliminar componente");
    mnuArbolC->addSeparator();
    Entrada(mnuArbolC, "mnuCopiarC", "C&opiar");
    Entrada(mnuArbolC, "mnuPegarC", "&Pegar");
    mnuArbolC->addSeparator();
    Entrada(mnuArbolC, "mnuRenombrarC", "Re&nombrar");
}

void frmPrincipal::ConectarMenus() {
    const auto orden = [this](QAction* entrada, Comando comando) {
        Conectar(entrada, &QAction::triggered, this, [this, comando] { Ejecutar(comando); });
    };
    orden(mnuNuevo, Comando::Nuevo);
    orden(mnuAbrir, Comando::Abrir);
    orden(mnuGuardar, Comando::Guardar);
    Conectar(mnuGuardarComo, &QAction::triggered, this, [this] { GuardarComo(); });
    orden(mnuImprimir, Comando::Imprimir);
    Conectar(mnuPreferencias, &QAction::triggered, this, [this] {
        frmPreferencias preferencias(this);
        MostrarModal(preferencias);
    });
    Conectar(mnuSalir, &QAction::triggered, this, [this] { close(); });
    Conectar(mnuPermitirSubcriterios, &QAction::triggered, this,
             [this] { mnuPermitirSubcriterios_Click(); });
    for (const EntradaPlantilla& entrada : EntradasPlantilla()) {
        Conectar(findChild<QAction*>(Q(entrada.nombre)), &QAction::triggered, this,
                 [this, entrada] { Plantilla(entrada); });
    }
    Conectar(mnuConfiguracionEjes, &QAction::triggered, this, [this] { ConfigurarEjes(); });
    orden(mnuRequerimientos, Comando::Requerimientos);
    orden(mnuComponentes, Comando::Componentes);
    orden(mnuEtapas, Comando::Etapas);
    orden(mnuCompilar, Comando::Compilar);
    Conectar(mnuPropiedades, &QAction::triggered, this, [this] { Propiedades(); });
    Conectar(mnuOrganizar, &QAction::triggered, this, [this] { Organizar(); });
    Conectar(mnuAcercaDe, &QAction::triggered, this, [this] {
        frmAcercaDe acercaDe(this);
        MostrarModal(acercaDe);
    });
}

void frmPrincipal::AjustarControles() {
    AjustarFuente(*this);
    // The panel widens with the font so that its two buttons are never cut.
    const QMargins margenes = pctPrincipal->layout()->contentsMargins();
    const int botones = cmdRetroceder->sizeHint().width() + cmdContinuar->sizeHint().width() +
                        pctPrincipal->layout()->spacing() + margenes.left() + margenes.right() +
                        2 * pctPrincipal->frameWidth();
    pctPrincipal->setFixedWidth(std::max(kAnchoPanel, botones));
}

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

namespace {

// Counts the steps in hand while it lives.
class PasoEnCurso {
public:
    explicit PasoEnCurso(int& pasos) : pasos_(pasos) { ++pasos_; }
    ~PasoEnCurso() { --pasos_; }
    PasoEnCurso(const PasoEnCurso&) = delete;
    PasoEnCurso& operator=(const PasoEnCurso&) = delete;

private:
    int& pasos_;
};

} // namespace

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

// ---- Child windows

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
