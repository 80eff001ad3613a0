#include "windows/trees/frmComponentes.h"

#include "core/shell/flujo_trabajo.h"
#include "core/trees/edicion_etapas.h"
#include "windows/core/texto.h"
#include "windows/trees/selector_nivel.h"
#include "windows/trees/vista_arbol.h"

#include <QHBoxLayout>
#include <QMenu>
#include <QVBoxLayout>

namespace vadro {

frmComponentes::frmComponentes(QWidget* padre)
    : VentanaArbolDiseno(Hija::Componentes, "Arbol de componentes", padre, "mnuArbolC", "C") {
    CrearControles();
    ConectarArbol();
    ConectarSelector(fmeNodos[0], 1);
    ConectarSelector(fmeNodos[1], 2);
    AjustarControles();
    // The load leaves the window unaccepted: closing it always asks.
    Recargar();
}

void frmComponentes::CrearControles() {
    auto* contenido = new QWidget(this);
    CrearArbol(contenido);
    auto* derecha = new QVBoxLayout;
    fmeNodos[0] = new MarcoNivel(1, "Componentes", contenido);
    fmeNodos[1] = new MarcoNivel(2, "Subcomponentes", contenido);
    derecha->addWidget(fmeNodos[0]);
    derecha->addWidget(fmeNodos[1]);
    derecha->addStretch();
    auto* fila = new QHBoxLayout(contenido);
    fila->setContentsMargins(0, 0, 0, 0);
    fila->addWidget(tvwArbol, 3);
    fila->addLayout(derecha, 2);
    PonerContenido(contenido);
}

void frmComponentes::RefrescarControles() {
    MostrarSelector(fmeNodos[0], 1);
    MostrarSelector(fmeNodos[1], 2);
}

void frmComponentes::ConectarMenu(QMenu& menu) {
    Orden(menu, "mnuAñadirComp", [this] { ed_->AñadirComponente("Componente"); });
    Orden(menu, "mnuAñadirSc", [this] { ed_->AñadirSubcomponente("Subcomponente"); });
}

void frmComponentes::AjustarMenu(QMenu& menu, const Menu& m) {
    Entrada(menu, "mnuEliminarC")->setText(Q(m.EliminarTitulo));
    Entrada(menu, "mnuAñadirComp")->setVisible(m.AñadirCompVisible);
    Entrada(menu, "mnuAñadirSc")->setVisible(m.AñadirScVisible);
    // The separators stand between the groups, which with no node are two single entries.
    for (QAction* accion : menu.actions()) {
        if (accion->isSeparator()) {
            accion->setVisible(m.CopiarVisible);
        }
    }
}

void frmComponentes::cmdAceptar_Click() {
    emit MarcaPaso(EtqComponentes, !ed_->tvwArbol.Vacio());
    ed_->LlamaLlenarComponentes();
    Aceptado = true;
    emit ModeloAceptado(ParteModelo::Componentes);
    Descargar();
}

void frmComponentes::LlamaLlenarComponentes() {
    ed_->LlamaLlenarComponentes();
}

void frmComponentes::GuardarArbol() {
    ed_->GuardarArbol();
}

bool frmComponentes::PuedeDescargarse() {
    return PuedeCerrarComponentes(Aceptado);
}

void frmComponentes::ModeloCambiado(ParteModelo parte) {
    if (parte == ParteModelo::Componentes) {
        Recargar();
    }
}

} // namespace vadro
