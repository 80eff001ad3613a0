#include "windows/trees/frmRequerimientos.h"

#include "core/core/sesion.h"
#include "core/shell/flujo_trabajo.h"
#include "core/trees/edicion_etapas.h"
#include "windows/core/conectar.h"
#include "windows/core/controles.h"
#include "windows/core/modal.h"
#include "windows/core/texto.h"
#include "windows/functions/frmFuncionValor.h"
#include "windows/trees/modelo_arbol.h"
#include "windows/trees/selector_nivel.h"
#include "windows/trees/vista_arbol.h"

#include <QDialog>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace vadro {

namespace {

constexpr const char* kNiveles[] = {"Requerimientos", "Criterios", "Subcriterios", "Indicadores"};

} // namespace

frmRequerimientos::frmRequerimientos(QWidget* padre)
    : VentanaArbolDiseno(Hija::Requerimientos, "Arbol de requerimientos", padre, "mnuArbolR", "") {
    CrearControles();
    ConectarArbol();
    Conectar(txtDescripcion, &QPlainTextEdit::textChanged, this,
             [this] { ed_->CambiarDescripcion(ACadena(txtDescripcion->toPlainText())); });
    Conectar(cmdFuncion, &QPushButton::clicked, this, [this] { cmdFuncion_Click(); });
    for (int i = 1; i <= 4; ++i) {
        MarcoNivel* marco = fmeNodos[static_cast<std::size_t>(i - 1)];
        ConectarSelector(marco, i);
        Conectar(marco, &MarcoNivel::Enfocada, this, [this, i] { ed_->EnfocarLista(i); });
    }
    AjustarControles();
    Recargar();
    Aceptado = true;
}

void frmRequerimientos::CrearControles() {
    auto* contenido = new QWidget(this);
    CrearArbol(contenido);

    fmeDescripcion = new QWidget(contenido);
    fmeDescripcion->setObjectName(Q("fmeDescripcion"));
    lblDescripcion = new QLabel(Q("Descripción"), fmeDescripcion);
    lblDescripcion->setObjectName(Q("lblDescripcion"));
    txtDescripcion = new QPlainTextEdit(fmeDescripcion);
    txtDescripcion->setObjectName(Q("txtDescripcion"));
    auto* descripcion = new QVBoxLayout(fmeDescripcion);
    descripcion->setContentsMargins(0, 0, 0, 0);
    descripcion->addWidget(lblDescripcion);
    descripcion->addWidget(txtDescripcion);

    auto* derecha = new QVBoxLayout;
    derecha->addWidget(fmeDescripcion, 1);
    for (int i = 1; i <= 4; ++i) {
        fmeNodos[static_cast<std::size_t>(i - 1)] = new MarcoNivel(i, kNiveles[i - 1], contenido);
        derecha->addWidget(fmeNodos[static_cast<std::size_t>(i - 1)]);
    }
    cmdFuncion = Boton(fmeNodos[3], "cmdFuncion", "Función de valor / Indicadores optativos");
    static_cast<QGridLayout*>(fmeNodos[3]->layout())->addWidget(cmdFuncion, 2, 0, 1, 4);

    auto* fila = new QHBoxLayout(contenido);
    fila->setContentsMargins(0, 0, 0, 0);
    fila->addWidget(tvwArbol, 3);
    fila->addLayout(derecha, 2);
    PonerContenido(contenido);
}

void frmRequerimientos::RefrescarControles() {
    for (int i = 1; i <= 4; ++i) {
        MostrarSelector(fmeNodos[static_cast<std::size_t>(i - 1)], i);
    }
    const QString descripcion = Q(ed_->Descripcion);
    if (txtDescripcion->toPlainText() != descripcion) {
        const QSignalBlocker bloqueo(txtDescripcion);
        txtDescripcion->setPlainText(descripcion);
    }
    cmdFuncion->setEnabled(ed_->FuncionHabilitada);
}

// ---- the tree menu ----

void frmRequerimientos::ConectarMenu(QMenu& menu) {
    Orden(menu, "mnuAñadirR", [this] { ed_->AñadirRequerimiento("Requerimiento"); });
    Orden(menu, "mnuAñadirC", [this] { ed_->AñadirCriterio("Criterio"); });
    Orden(menu, "mnuAñadirS", [this] { ed_->AñadirSubcriterio("Subcriterio"); });
    Orden(menu, "mnuAñadirI", [this] { ed_->AñadirIndicador("Indicador"); });
}

void frmRequerimientos::AjustarMenu(QMenu& menu, const Menu& m) {
    Entrada(menu, "sepArbolR1")->setVisible(m.Separador1Visible);
    if (m.EliminarVisible) {
        Entrada(menu, "mnuEliminar")->setText(Q(m.EliminarTitulo));
    }
    Entrada(menu, "mnuAñadirR")->setVisible(m.AñadirRVisible);
    Entrada(menu, "mnuAñadirC")->setVisible(m.AñadirCVisible);
    Entrada(menu, "mnuAñadirS")->setVisible(m.AñadirSVisible);
    Entrada(menu, "mnuAñadirI")->setVisible(m.AñadirIVisible);
    Entrada(menu, "sepArbolR2")->setVisible(m.Separadores23Visible);
    Entrada(menu, "sepArbolR3")->setVisible(m.Separadores23Visible);
}

// ---- the function editor ----

void frmRequerimientos::cmdFuncion_Click() {
    std::optional<std::string> indicador;
    Operar([&] { indicador = ed_->ClicFuncion(); });
    if (indicador) {
        EditarFuncion(SesionActual().NodoEdicionActual, *indicador, this);
    }
}

// ---- writing back and closing ----

void frmRequerimientos::cmdAceptar_Click() {
    emit MarcaPaso(EtqRequerimientos, ed_->tvwArbol.Cuenta() >= 2);
    ed_->LlamaLlenarRequerimientos();
    Aceptado = true;
    emit ModeloAceptado(ParteModelo::Requerimientos);
    Descargar();
}

void frmRequerimientos::LlamaLlenarRequerimientos() {
    ed_->LlamaLlenarRequerimientos();
}

void frmRequerimientos::GuardarArbol() {
    if (ed_->GuardarArbol()) {
        emit MarcaPaso(EtqRequerimientos, true);
    }
}

void frmRequerimientos::ActualizarCombos(NodoArbol* nodo) {
    Operar([&] { ed_->ActualizarCombos(nodo); });
}

void frmRequerimientos::EliminarSubcriteriosDelNodo(NodoArbol* nodo) {
    Operar([&] { ed_->EliminarSubcriteriosDelNodo(nodo); });
}

void frmRequerimientos::AjustarControles() {
    VentanaDiseno::AjustarControles();
    // The subcriteria frame stands only while the model allows them; the others close up.
    fmeNodos[2]->setVisible(SesionActual().modelo.ConSubcriterios);
}

bool frmRequerimientos::PuedeDescargarse() {
    const bool puede = PuedeCerrarRequerimientos(Aceptado);
    emit MarcaPaso(EtqRequerimientos, ed_->tvwArbol.Cuenta() >= 2);
    return puede;
}

// A tree replaced from outside (an opening, an import) is shown afresh.
void frmRequerimientos::ModeloCambiado(ParteModelo parte) {
    if (parte == ParteModelo::Requerimientos) {
        Recargar();
    }
}

void frmRequerimientos::PermisoSubcriterios(bool permitidos) {
    if (!permitidos) {
        EliminarSubcriteriosDelNodo(ed_->tvwArbol.PrimeraRaiz());
    }
    AjustarControles();
}

} // namespace vadro
