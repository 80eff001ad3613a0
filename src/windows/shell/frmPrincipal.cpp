#include "windows/shell/frmPrincipal.h"

#include "core/core/dialogos.h"
#include "core/core/error_ejecucion.h"
#include "core/core/sesion.h"
#include "core/files/modelo_archivo.h"
#include "core/shell/comandos_modelo.h"
#include "core/shell/flujo_trabajo.h"
#include "windows/compilation/frmCompilacion.h"
#include "windows/core/ajustar_fuente.h"
#include "windows/core/frmAcercaDe.h"
#include "windows/core/frmInicio.h"
#include "windows/core/frmPreferencias.h"
#include "windows/core/modal.h"
#include "windows/core/texto.h"
#include "windows/reports/frmInforme.h"
#include "windows/reports/frmResumen.h"
#include "windows/shell/etiqueta_paso.h"
#include "windows/shell/frmEjes.h"
#include "windows/shell/frmPropiedades.h"
#include "windows/trees/frmComponentes.h"
#include "windows/trees/frmEtapas.h"
#include "windows/trees/frmRequerimientos.h"
#include "windows/weighting/frmPonderacion.h"
#include "windows/weighting/frmPreguntarPonderacion.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
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

constexpr const char* kTitulo = "VADRO PROGRAMADOR";

// The captions of the step panel, by index: headings at 0, 5 and 7.
constexpr std::array<const char*, 9> kPasos = {"Definición del sistema",
                                               "Requerimientos",
                                               "Componentes",
                                               "Ciclo de vida",
                                               "Resumen",
                                               "Ponderación de elementos del árbol",
                                               "Pesos",
                                               "Control",
                                               "Compilación"};

constexpr bool EsEncabezado(int indice) {
    return indice == 0 || indice == 5 || indice == 7;
}

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
    setWindowTitle(Q(kTitulo));

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
    pctPrincipal->hide();
    Boton(8)->setEnabled(false);
    Boton(9)->setEnabled(false);
    GrupoDiseno(false);
    mnuModelo->menuAction()->setVisible(false);

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
    pctPrincipal->setFixedWidth(230);
    auto* columna = new QVBoxLayout(pctPrincipal);
    columna->setSpacing(4);
    for (int i = 0; i < static_cast<int>(kPasos.size()); ++i) {
        auto* etiqueta = new EtiquetaPaso(Q(kPasos[static_cast<std::size_t>(i)]), pctPrincipal);
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
        connect(etiqueta, &EtiquetaPaso::Pulsada, this, [this, i] { lblMenu_Click(i); });
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
    connect(cmdRetroceder, &QPushButton::clicked, this, &frmPrincipal::Retroceder);
    connect(cmdContinuar, &QPushButton::clicked, this, &frmPrincipal::Continuar);

    // The steps a new model has not yet satisfied: its weights and its compilation.
    for (int i : {1, 2, 3, 6, 8}) {
        MarcarPaso(i, false);
    }
    MarcarPaso(4, true);
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
    connect(tlbPrincipal, &QToolBar::actionTriggered, this,
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
    connect(mnuNuevo, &QAction::triggered, this, &frmPrincipal::Nuevo);
    connect(mnuAbrir, &QAction::triggered, this, &frmPrincipal::Abrir);
    connect(mnuGuardar, &QAction::triggered, this, &frmPrincipal::Guardar);
    connect(mnuGuardarComo, &QAction::triggered, this, &frmPrincipal::GuardarComo);
    connect(mnuImprimir, &QAction::triggered, this, &frmPrincipal::Imprimir);
    connect(mnuPreferencias, &QAction::triggered, this, [this] {
        frmPreferencias preferencias(this);
        MostrarModal(preferencias);
    });
    connect(mnuSalir, &QAction::triggered, this, &QWidget::close);
    // The permission of subcriteria follows the model until its command asks about it.
    connect(mnuPermitirSubcriterios, &QAction::triggered, this,
            [this] { mnuPermitirSubcriterios->setChecked(SesionActual().modelo.ConSubcriterios); });
    connect(mnuRequerimientos, &QAction::triggered, this, &frmPrincipal::AbrirRequerimientos);
    connect(mnuComponentes, &QAction::triggered, this, &frmPrincipal::AbrirComponentes);
    connect(mnuEtapas, &QAction::triggered, this, &frmPrincipal::AbrirEtapas);
    connect(mnuCompilar, &QAction::triggered, this, &frmPrincipal::Compilar);
    connect(mnuPropiedades, &QAction::triggered, this, [this] {
        frmPropiedades propiedades(this);
        MostrarModal(propiedades);
    });
    connect(mnuOrganizar, &QAction::triggered, mdiCliente, &QMdiArea::cascadeSubWindows);
    connect(mnuAcercaDe, &QAction::triggered, this, [this] {
        frmAcercaDe acercaDe(this);
        MostrarModal(acercaDe);
    });
}

void frmPrincipal::AjustarControles() {
    AjustarFuente(*this);
}

// ---- Model commands

void frmPrincipal::Nuevo() {
    Modelo& modelo = SesionActual().modelo;
    if (!GuardarAntesDeNuevo(modelo)) {
        return;
    }
    InicializarModelo(modelo);
    for (int i : {1, 2, 3}) {
        MarcarPaso(i, false);
    }
    setWindowTitle(Q(kTitulo) + Q(" - [...]"));
    DescargarTodas();
    pctPrincipal->show();
    {
        frmPropiedades propiedades(this);
        MostrarModal(propiedades);
    }
    Cargar<frmEjes>();
    mnuModelo->menuAction()->setVisible(true);
    Boton(8)->setEnabled(false);
    Boton(9)->setEnabled(true);
    GrupoDiseno(true);
    posicion_ = kPosicionEjes;
    EscribirPosicion();
}

void frmPrincipal::Abrir() {
    if (frmInicio* inicio = frmInicio::Abierto()) {
        inicio->close();
    }
    // Reading a model file into the session comes with the file commands.
}

void frmPrincipal::Guardar() {
    Sesion& sesion = SesionActual();
    Modelo& modelo = sesion.modelo;
    if (NecesitaNombre(modelo.Archivo) &&
        !ElegirArchivoModelo(modelo, sesion.DirectorioPrograma, false)) {
        return;
    }
    // A save takes what stands in the open design windows, without accepting them.
    if (frmRequerimientos* requerimientos = Abierta<frmRequerimientos>()) {
        requerimientos->LlamaLlenarRequerimientos();
    }
    if (frmComponentes* componentes = Abierta<frmComponentes>()) {
        componentes->LlamaLlenarComponentes();
    }
    if (frmEtapas* etapas = Abierta<frmEtapas>()) {
        etapas->LlamaLlenarEtapas();
    }
    GuardarModelo(modelo, modelo.Archivo, false);
    TituloConArchivo(modelo.Archivo);
}

void frmPrincipal::GuardarComo() {
    Sesion& sesion = SesionActual();
    if (vadro::GuardarComo(sesion.modelo, sesion.DirectorioPrograma)) {
        TituloConArchivo(sesion.modelo.Archivo);
    }
}

void frmPrincipal::Compilar() {
    if (!ModeloCompilable(SesionActual().modelo)) {
        return;
    }
    PintarEtiqueta(8, QColor(0, 0, 0), false);
    Descargar<frmCompilacion>();
    Cargar<frmCompilacion>();
}

void frmPrincipal::Imprimir() {
    // The report goes to the printer with the printing routines; until they stand, nothing
    // is printed.
}

void frmPrincipal::TituloConArchivo(const std::string& archivo) {
    setWindowTitle(Q(kTitulo) + Q(" - [") + Q(archivo) + Q("]"));
}

// ---- The line of positions

void frmPrincipal::Continuar() {
    if (posicion_ == kPosicionEjes) {
        AjusteRevision();
        AceptarVentanasDiseno();
        Descargar<frmEjes>();
        Cargar<frmResumen>();
        posicion_ = kPosicionResumen;
    } else if (posicion_ == kPosicionResumen) {
        AjusteRevision();
        mnuImportar->menuAction()->setEnabled(false);
        // The dialog finishes the step when it is accepted.
        frmPreguntarPonderacion pregunta(*this);
        MostrarModal(pregunta);
    } else if (posicion_ == kPosicionPonderacion) {
        AjusteRevision();
        Descargar<frmPonderacion>();
        Cargar<frmInforme>();
        posicion_ = kPosicionInforme;
    } else if (posicion_ == kPosicionInforme) {
        FinalDeModelo();
    }
    EscribirPosicion();
}

void frmPrincipal::FinalDeModelo() {
    if (!PreguntarCompilarAlFinal(SesionActual().modelo)) {
        return;
    }
    AjusteRevision();
    cmdContinuar->setEnabled(false);
    Boton(9)->setEnabled(false);
    Compilar();
}

void frmPrincipal::Retroceder() {
    if (posicion_ == kPosicionInforme) {
        AjusteRevision();
        Descargar<frmInforme>();
        // A model without requirements has nothing to weigh: the line skips the weights.
        if (HayElementos(SesionActual().modelo.NumRequerimientos)) {
            Cargar<frmPonderacion>();
            posicion_ = kPosicionPonderacion;
        } else {
            Cargar<frmResumen>();
            posicion_ = kPosicionResumen;
        }
    } else if (posicion_ == kPosicionPonderacion) {
        AjusteRevision();
        mnuImportar->menuAction()->setEnabled(true);
        Descargar<frmPonderacion>();
        Cargar<frmResumen>();
        posicion_ = kPosicionResumen;
    } else if (posicion_ == kPosicionResumen) {
        AjusteDiseno();
        Descargar<frmResumen>();
        Cargar<frmEjes>();
        posicion_ = kPosicionEjes;
    } else if (posicion_ == kPosicionEjes) {
        // Back to the empty desk: the design windows go unaccepted and the position stays.
        EntradasDiseno(false);
        cmdRetroceder->setEnabled(false);
        cmdContinuar->setEnabled(false);
        Boton(8)->setEnabled(false);
        Boton(9)->setEnabled(false);
        DescargarVentanasDiseno();
        Descargar<frmEjes>();
        pctPrincipal->hide();
    }
    EscribirPosicion();
}

void frmPrincipal::lblMenu_Click(int indice) {
    switch (indice) {
    case 1:
        AbrirRequerimientos();
        break;
    case 2:
        AbrirComponentes();
        break;
    case 3:
        AbrirEtapas();
        break;
    case 4:
        SaltarAResumen();
        break;
    case 6:
        SaltarAPonderacion();
        break;
    case 8:
        Compilar();
        break;
    default: // the headings do nothing
        break;
    }
}

// The jumps of the step panel do not look at the position.
void frmPrincipal::SaltarAResumen() {
    EntradasDiseno(false);
    Boton(8)->setEnabled(true);
    Boton(9)->setEnabled(true);
    GrupoDiseno(false);
    AceptarVentanasDiseno();
    Descargar<frmPonderacion>();
    Descargar<frmEjes>();
    pctFondo->hide();
    Cargar<frmResumen>();
    posicion_ = kPosicionResumen;
    EscribirPosicion();
}

void frmPrincipal::SaltarAPonderacion() {
    AjusteRevision();
    mnuImportar->menuAction()->setEnabled(false);
    Descargar<frmResumen>();
    Cargar<frmPonderacion>();
    posicion_ = kPosicionPonderacion;
    EscribirPosicion();
}

void frmPrincipal::tlbPrincipal_ButtonClick(const QString& clave) {
    const std::string tecla = ACadena(clave);
    if (tecla == "Nuevo") {
        Nuevo();
    } else if (tecla == "Abrir") {
        Abrir();
    } else if (tecla == "Guardar") {
        Guardar();
    } else if (tecla == "Imprimir") {
        Imprimir();
    } else if (tecla == "Retroceder") {
        Retroceder();
    } else if (tecla == "Continuar") {
        Continuar();
    } else if (tecla == "Requerimientos") {
        AbrirRequerimientos();
    } else if (tecla == "Alternativas") {
        AbrirComponentes();
    } else if (tecla == "Tiempo") {
        AbrirEtapas();
    } else if (tecla == "Compilar") {
        Compilar();
    }
}

// The design windows open from the axes window; from another position the step panel opens
// them without bringing that window back.
void frmPrincipal::AbrirRequerimientos() {
    if (frmEjes* ejes = Abierta<frmEjes>()) {
        ejes->AbrirRequerimientos();
    } else {
        Cargar<frmRequerimientos>();
    }
}

void frmPrincipal::AbrirComponentes() {
    if (frmEjes* ejes = Abierta<frmEjes>()) {
        ejes->AbrirComponentes();
    } else {
        Cargar<frmComponentes>();
    }
}

void frmPrincipal::AbrirEtapas() {
    if (frmEjes* ejes = Abierta<frmEjes>()) {
        ejes->AbrirEtapas();
    } else {
        Cargar<frmEtapas>();
    }
}

void frmPrincipal::AceptarVentanasDiseno() {
    if (frmComponentes* componentes = Abierta<frmComponentes>()) {
        componentes->cmdAceptar_Click();
    }
    if (frmRequerimientos* requerimientos = Abierta<frmRequerimientos>()) {
        requerimientos->cmdAceptar_Click();
    }
    if (frmEtapas* etapas = Abierta<frmEtapas>()) {
        etapas->cmdAceptar_Click();
    }
}

void frmPrincipal::DescargarVentanasDiseno() {
    Descargar<frmComponentes>();
    Descargar<frmRequerimientos>();
    Descargar<frmEtapas>();
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

// ---- Settings, labels and the status bar

void frmPrincipal::AjusteDiseno() {
    EntradasDiseno(true);
    cmdRetroceder->setEnabled(false);
    Boton(8)->setEnabled(false);
    cmdContinuar->setEnabled(true);
    Boton(9)->setEnabled(true);
    GrupoDiseno(true);
}

void frmPrincipal::AjusteRevision() {
    EntradasDiseno(false);
    cmdRetroceder->setEnabled(true);
    cmdContinuar->setEnabled(true);
    Boton(8)->setEnabled(true);
    Boton(9)->setEnabled(true);
    GrupoDiseno(false);
}

void frmPrincipal::EntradasDiseno(bool habilitadas) {
    for (QAction* entrada : {mnuConfiguracionEjes, mnuRequerimientos, mnuComponentes, mnuEtapas}) {
        entrada->setEnabled(habilitadas);
    }
}

void frmPrincipal::GrupoDiseno(bool visible) {
    for (int i = 10; i <= 13; ++i) {
        Boton(i)->setVisible(visible);
    }
}

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

void frmPrincipal::Alojar(VentanaHija& ventana) {
    QMdiSubWindow* marco = mdiCliente->addSubWindow(&ventana);
    marco->setObjectName(ventana.objectName() + Q("_marco"));
    ventana.Colocar(*marco, mdiCliente->viewport()->rect());
    marco->show();
    ventana.AjustarControles();
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

bool frmPrincipal::CerrarHijas() {
    for (QMdiSubWindow* marco : mdiCliente->subWindowList()) {
        if (!marco->close()) {
            return false;
        }
    }
    return true;
}

void frmPrincipal::closeEvent(QCloseEvent* evento) {
    // The child windows close first; if the close is refused, those of the position that
    // were open come back.
    const VentanasAbiertas abiertas{
        Abierta<frmEjes>() != nullptr,        Abierta<frmRequerimientos>() != nullptr,
        Abierta<frmComponentes>() != nullptr, Abierta<frmEtapas>() != nullptr,
        Abierta<frmResumen>() != nullptr,     Abierta<frmPonderacion>() != nullptr};
    const bool conPanel = pctPrincipal->isVisibleTo(this);
    if (!CerrarHijas()) {
        evento->ignore();
        return;
    }
    pctFondo->hide();
    pctPrincipal->hide();
    Sesion& sesion = SesionActual();
    if (!GuardarAlCerrar(sesion.modelo, sesion.DirectorioPrograma)) {
        evento->ignore();
        pctPrincipal->setVisible(conPanel);
        RecargarPosicion(abiertas);
        return;
    }
    Cargado = false;
    QMainWindow::closeEvent(evento);
}

void frmPrincipal::RecargarPosicion(const VentanasAbiertas& abiertas) {
    if (posicion_ == kPosicionEjes) {
        if (abiertas.ejes) {
            Cargar<frmEjes>();
        }
        if (abiertas.componentes) {
            Cargar<frmComponentes>();
        }
        if (abiertas.requerimientos) {
            Cargar<frmRequerimientos>();
        }
        if (abiertas.etapas) {
            Cargar<frmEtapas>();
        }
    } else if (posicion_ == kPosicionResumen && abiertas.resumen) {
        Cargar<frmResumen>();
    } else if (posicion_ == kPosicionPonderacion && abiertas.ponderacion) {
        Cargar<frmPonderacion>();
    }
}

} // namespace vadro
