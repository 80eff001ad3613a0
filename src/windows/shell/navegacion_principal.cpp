// The way from a finding of the compilation report to its place in the model: the windows
// that stand in the way close, the main window takes the finding's step, the finding's window
// opens over the report and, where the key names a node, that node is selected.
#include "core/compilation/navegacion.h"
#include "windows/core/texto.h"
#include "windows/shell/frmPrincipal.h"
#include "windows/trees/frmComponentes.h"
#include "windows/trees/frmRequerimientos.h"

namespace vadro {

namespace {

// The node of the position in a tree window, selected; what follows is the arrival's.
template <typename Ventana> Ventana* Seleccionar(VentanaHija* abierta, const DestinoError& d) {
    auto* ventana = dynamic_cast<Ventana*>(abierta);
    if (ventana != nullptr) {
        ventana->SeleccionarNodo(NodoDeError(ventana->Edicion().tvwArbol, d.clave.posicion));
    }
    return ventana;
}

} // namespace

void frmPrincipal::IrAError(const QString& clave) {
    if (clave.isEmpty()) {
        return;
    }
    const DestinoError destino = DestinoDeError(ACadena(clave));
    // Each closes as its own closing goes; one that stays (its question answered No) keeps
    // the user where he is.
    for (Hija hija : VentanasCerradasAlNavegar()) {
        Descargar(hija);
        if (Abierta(hija) != nullptr) {
            return;
        }
    }
    if (const auto transicion = TransicionHaciaError(destino)) {
        Aplicar(*transicion);
        LlegarAError(destino);
    }
    EscribirPosicion();
}

void frmPrincipal::LlegarAError(const DestinoError& destino) {
    if (!destino.ventana || !destino.buscarNodo) {
        return;
    }
    VentanaHija* abierta = Abierta(*destino.ventana);
    if (auto* requerimientos = Seleccionar<frmRequerimientos>(abierta, destino)) {
        if (destino.llegada == Llegada::EditarEtiqueta) {
            requerimientos->EditarEtiqueta();
        } else if (destino.llegada == Llegada::EditarFuncion) {
            requerimientos->cmdFuncion_Click();
        }
    } else if (auto* componentes = Seleccionar<frmComponentes>(abierta, destino)) {
        if (destino.llegada == Llegada::EditarEtiqueta) {
            componentes->EditarEtiqueta();
        }
    }
}

} // namespace vadro
