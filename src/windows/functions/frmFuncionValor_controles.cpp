// The controls of the function editor and their places.
#include "windows/core/controles.h"
#include "windows/core/texto.h"
#include "windows/functions/arriba_abajo.h"
#include "windows/functions/frmFuncionValor.h"
#include "windows/functions/modelo_tabla.h"
#include "windows/functions/panel_optativos.h"
#include "windows/functions/panel_puntuacion.h"
#include "windows/functions/pintar_grafica.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabBar>
#include <QTableView>
#include <QVBoxLayout>

namespace vadro {

namespace {

QLineEdit* Entrada(QWidget* padre, const char* nombre) {
    auto* entrada = new QLineEdit(padre);
    entrada->setObjectName(Q(nombre));
    entrada->setMinimumWidth(70);
    return entrada;
}

} // namespace

void frmFuncionValor::Construir() {
    auto* columna = new QVBoxLayout(this);

    auto* cabecera = new QHBoxLayout;
    cabecera->addWidget(Etiqueta(this, "lblTipoFuncion", "Tipo de función"));
    cbbTipoFuncionPrimaria = new QComboBox(this);
    cbbTipoFuncionPrimaria->setObjectName(Q("cbbTipoFuncionPrimaria"));
    for (const char* tipo : kTiposLista) {
        cbbTipoFuncionPrimaria->addItem(Q(tipo));
    }
    cbbTipoFuncionPrimaria->setCurrentIndex(-1);
    cabecera->addWidget(cbbTipoFuncionPrimaria);
    chkOptativos = Casilla(this, "chkOptativos", "I. Optativos");
    cabecera->addWidget(chkOptativos);
    cabecera->addStretch();
    cmdCargar = Boton(this, "cmdCargar", "Cargar");
    cmdGuardar = Boton(this, "cmdGuardar", "Guardar");
    cabecera->addWidget(cmdCargar);
    cabecera->addWidget(cmdGuardar);
    columna->addLayout(cabecera);

    tspSeleccion = new QTabBar(this);
    tspSeleccion->setObjectName(Q("tspSeleccion"));
    tspSeleccion->addTab(Q("Función de valor"));
    tspSeleccion->addTab(Q("Elementos de puntuación"));
    tspSeleccion->setExpanding(false);
    columna->addWidget(tspSeleccion);

    pctFondoGrafica = new QWidget(this);
    pctFondoGrafica->setObjectName(Q("pctFondoGrafica"));
    auto* fondo = new QHBoxLayout(pctFondoGrafica);
    fondo->setContentsMargins(0, 0, 0, 0);
    auto* izquierda = new QVBoxLayout;
    izquierda->addWidget(ConstruirLimites());
    izquierda->addWidget(ConstruirContinua());
    izquierda->addWidget(ConstruirEscalon(), 1);
    izquierda->addStretch();
    fondo->addLayout(izquierda, 0);
    fondo->addWidget(ConstruirGrafica(), 1);
    columna->addWidget(pctFondoGrafica, 1);

    const Manejador manejar = [this](const std::function<void()>& accion) {
        ManejarAccion(accion);
    };
    pctTablas = new PanelPuntuacion(editor, manejar, this);
    columna->addWidget(pctTablas, 1);
    pctError = new QWidget(this);
    pctError->setObjectName(Q("pctError"));
    auto* error = new QVBoxLayout(pctError);
    auto* textoError = Etiqueta(pctError, "lblError",
                                "El tipo de función seleccionado no tiene opciones en los "
                                "elementos de puntuación.");
    textoError->setAlignment(Qt::AlignCenter);
    error->addWidget(textoError);
    columna->addWidget(pctError, 1);
    pctOptativos = new PanelOptativos(editor, manejar, this);
    columna->addWidget(pctOptativos, 1);

    cmdAceptar = BotonAceptar(this);
    cmdCancelar = Boton(this, "cmdCancelar", "Cancelar");
    columna->addLayout(FilaBotones({cmdAceptar, cmdCancelar}));
}

QWidget* frmFuncionValor::ConstruirLimites() {
    auto* caja = new QWidget(this);
    auto* columna = new QVBoxLayout(caja);
    columna->setContentsMargins(0, 0, 0, 0);

    auto* rango = Marco(caja, "fmeRango", "Rango de validez del indicador");
    auto* rejilla = new QGridLayout(rango);
    const char* nombres[] = {"txtMin",      "txtMax", "txtMinRef", "txtMaxRef",
                             "txtUnidades", "txtC",   "txtK",      "txtP"};
    for (std::size_t i = 0; i < entradas.size(); ++i) {
        entradas[i] = Entrada(caja, nombres[i]);
    }
    chkMinUsuario = Casilla(rango, "chkMinUsuario", "Permitir cambios al usuario");
    chkMaxUsuario = Casilla(rango, "chkMaxUsuario", "Permitir cambios al usuario");
    rejilla->addWidget(Etiqueta(rango, "lblMin", "Límite inferior ......."), 0, 0);
    rejilla->addWidget(entradas[0], 0, 1);
    rejilla->addWidget(chkMinUsuario, 0, 2);
    rejilla->addWidget(Etiqueta(rango, "lblMax", "Límite superior ......."), 1, 0);
    rejilla->addWidget(entradas[1], 1, 1);
    rejilla->addWidget(chkMaxUsuario, 1, 2);
    columna->addWidget(rango);

    auto* limites = Marco(caja, "fmeLimites", "Límites de la función de valor");
    auto* filas = new QGridLayout(limites);
    chkAjustarMinRef = Casilla(limites, "chkAjustarMinRef", "Ajustar a las alternativas");
    chkAjustarMaxRef = Casilla(limites, "chkAjustarMaxRef", "Ajustar a las alternativas");
    chkMinRefUsuario = Casilla(limites, "chkMinRefUsuario", "Permitir cambios al usuario");
    chkMaxRefUsuario = Casilla(limites, "chkMaxRefUsuario", "Permitir cambios al usuario");
    lblMinRef = Etiqueta(limites, "lblMinRef", "");
    lblMaxRef = Etiqueta(limites, "lblMaxRef", "");
    int fila = 0;
    for (const bool maximo : {false, true}) {
        filas->addWidget(
            Etiqueta(limites, maximo ? "lblPuntoMax" : "lblPuntoMin",
                     maximo ? "Punto de máxima satisfacción" : "Punto de mínima satisfacción"),
            fila, 0, 1, 3);
        filas->addWidget(Etiqueta(limites, maximo ? "lblReferenciaMax" : "lblReferenciaMin",
                                  "Referencia ....................."),
                         fila + 1, 0);
        filas->addWidget(entradas[maximo ? 3 : 2], fila + 1, 1);
        filas->addWidget(maximo ? lblMaxRef : lblMinRef, fila + 1, 1);
        filas->addWidget(maximo ? chkAjustarMaxRef : chkAjustarMinRef, fila + 1, 2);
        filas->addWidget(maximo ? chkMaxRefUsuario : chkMinRefUsuario, fila + 2, 2);
        fila += 3;
    }
    columna->addWidget(limites);

    auto* unidad = Marco(caja, "fmeUnidades", "Unidad aceptada");
    auto* fila_unidad = new QHBoxLayout(unidad);
    fila_unidad->addWidget(entradas[4]);
    columna->addWidget(unidad);
    return caja;
}

QWidget* frmFuncionValor::ConstruirContinua() {
    fmeContinua = Marco(pctFondoGrafica, "fmeContinua", "Parámetros de la función contínua");
    auto* rejilla = new QGridLayout(fmeContinua);
    lblLimitesC = Etiqueta(fmeContinua, "lblLimitesC", "");
    lblLimitesK = Etiqueta(fmeContinua, "lblLimitesK", "");
    lblLimitesP = Etiqueta(fmeContinua, "lblLimitesP", "");
    const std::array<QLabel*, 3> leyendas{lblLimitesC, lblLimitesK, lblLimitesP};
    const char* nombres[] = {"updC", "updK", "updP"};
    for (std::size_t i = 0; i < 3; ++i) {
        const int fila = static_cast<int>(i);
        upd[i] = new ArribaAbajo(fmeContinua);
        upd[i]->setObjectName(Q(nombres[i]));
        rejilla->addWidget(leyendas[i], fila, 0);
        rejilla->addWidget(entradas[5 + i], fila, 1);
        rejilla->addWidget(upd[i], fila, 2);
    }
    auto* botones = new QHBoxLayout;
    const char* formas[] = {"Lineal", "Convexa", "Cóncava", "Forma S"};
    for (std::size_t i = 0; i < cmdFuncion.size(); ++i) {
        const std::string nombre = "cmdFuncion(" + std::to_string(i) + ")";
        cmdFuncion[i] = Boton(fmeContinua, nombre.c_str(), formas[i]);
        cmdFuncion[i]->setAutoDefault(false);
        botones->addWidget(cmdFuncion[i]);
    }
    rejilla->addLayout(botones, 3, 0, 1, 3);
    return fmeContinua;
}

QWidget* frmFuncionValor::ConstruirEscalon() {
    fmeEscalon = Marco(pctFondoGrafica, "fmeEscalon", "Parámetros de la función escalón");
    auto* columna = new QVBoxLayout(fmeEscalon);
    auto* cuenta = new QHBoxLayout;
    cuenta->addWidget(Etiqueta(fmeEscalon, "lblNumIntervalos", "Nº de intervalos"));
    lblIntervalos = Etiqueta(fmeEscalon, "lblIntervalos", "0");
    lblIntervalos->setFrameShape(QFrame::Panel);
    lblIntervalos->setFrameShadow(QFrame::Sunken);
    lblIntervalos->setMinimumWidth(40);
    lblIntervalos->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    cuenta->addWidget(lblIntervalos);
    updIntervalos = new ArribaAbajo(fmeEscalon);
    updIntervalos->setObjectName(Q("updIntervalos"));
    cuenta->addWidget(updIntervalos);
    cuenta->addStretch();
    columna->addLayout(cuenta);

    grdIntervalos = new QTableView(fmeEscalon);
    grdIntervalos->setObjectName(Q("grdIntervalos"));
    modeloIntervalos = new ModeloTabla(editor, grdIntervalos);
    grdIntervalos->setModel(modeloIntervalos);
    grdIntervalos->verticalHeader()->hide();
    grdIntervalos->setSelectionMode(QAbstractItemView::SingleSelection);
    grdIntervalos->setSelectionBehavior(QAbstractItemView::SelectItems);
    grdIntervalos->setEditTriggers(QAbstractItemView::NoEditTriggers);
    grdIntervalos->horizontalHeader()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    for (int c = 1; c < 4; ++c) {
        grdIntervalos->horizontalHeader()->setSectionResizeMode(c, QHeaderView::Stretch);
    }
    grdIntervalos->setMinimumHeight(140);
    txtValor = new QLineEdit(grdIntervalos->viewport());
    txtValor->setObjectName(Q("txtValor"));
    txtValor->hide();
    columna->addWidget(grdIntervalos, 1);
    return fmeEscalon;
}

QWidget* frmFuncionValor::ConstruirGrafica() {
    auto* marco = Marco(pctFondoGrafica, "fmeGrafica", "Representación gráfica a escala real");
    auto* rejilla = new QGridLayout(marco);
    lblMaxPorcentaje = Etiqueta(marco, "lblMaxPorcentaje", "100% Smax");
    lblMinPorcentaje = Etiqueta(marco, "lblMinPorcentaje", "Smin 0%");
    lblEjeY = Etiqueta(marco, "lblEjeY", "R(X)");
    lblEjeX = Etiqueta(marco, "lblEjeX", "");
    lblMinimo = Etiqueta(marco, "lblMinimo", "0 u");
    lblMaximo = Etiqueta(marco, "lblMaximo", "100 u");
    pctGrafica = new LienzoGrafica(marco);
    pctGrafica->setObjectName(Q("pctGrafica"));
    pctGrafica->setMinimumSize(300, 220);
    pctGrafica->PonerGrafica(&editor.grafica);
    rejilla->addWidget(lblMaxPorcentaje, 0, 0, Qt::AlignRight | Qt::AlignTop);
    rejilla->addWidget(lblEjeY, 1, 0, Qt::AlignRight | Qt::AlignVCenter);
    rejilla->addWidget(lblMinPorcentaje, 2, 0, Qt::AlignRight | Qt::AlignBottom);
    rejilla->addWidget(pctGrafica, 0, 1, 3, 3);
    rejilla->addWidget(lblMinimo, 3, 1, Qt::AlignLeft);
    rejilla->addWidget(lblEjeX, 3, 2, Qt::AlignHCenter);
    rejilla->addWidget(lblMaximo, 3, 3, Qt::AlignRight);
    rejilla->setColumnStretch(2, 1);
    rejilla->setRowStretch(1, 1);
    return marco;
}

} // namespace vadro
