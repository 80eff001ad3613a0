// The main window's controls: the step panel, the toolbar, the menus and their connections.
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
#include <array>
#include <string>

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

// The three parts of the model a file can bring in or take out, named after their submenu.
void PartesModelo(QMenu* menu, const std::array<QAction**, 3>& entradas) {
    static const char* const kPartes[][2] = {{"R", "Arbol de &requerimientos"},
                                             {"Comp", "Arbol de c&omponentes"},
                                             {"Etapas", "&Etapas del ciclo de vida"}};
    for (std::size_t i = 0; i < entradas.size(); ++i) {
        const std::string nombre = ACadena(menu->objectName()) + kPartes[i][0];
        *entradas[i] = Entrada(menu, nombre.c_str(), kPartes[i][1]);
    }
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
    mnuExportarPDF = Entrada(mnuArchivo, "mnuExportarPDF", "&Exportar a PDF...");
    mnuArchivo->addSeparator();
    mnuPreferencias = Entrada(mnuArchivo, "mnuPreferencias", "Pre&ferencias");
    mnuArchivo->addSeparator();
    mnuSalir = Entrada(mnuArchivo, "mnuSalir", "&Salir");

    mnuModelo = Menu(barra, "mnuModelo", "&Modelo");
    mnuImportar = Submenu(mnuModelo, "mnuImportar", "I&mportar");
    PartesModelo(mnuImportar, {&mnuImportarR, &mnuImportarComp, &mnuImportarEtapas});
    mnuExportar = Submenu(mnuModelo, "mnuExportar", "E&xportar");
    PartesModelo(mnuExportar, {&mnuExportarR, &mnuExportarComp, &mnuExportarEtapas});
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
    Conectar(mnuVista, &QAction::triggered, this, [this] { VistaPreliminar(); });
    Conectar(mnuExportarPDF, &QAction::triggered, this, [this] { ExportarPdf(); });
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

} // namespace vadro
