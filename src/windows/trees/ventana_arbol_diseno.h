#pragma once

#include "core/trees/edicion_componentes.h"
#include "core/trees/edicion_requerimientos.h"
#include "windows/trees/ventana_diseno.h"

#include <functional>
#include <memory>
#include <string>
#include <utility>

class QAction;
class QMenu;

namespace vadro {

class MarcoNivel;
class ModeloArbol;
class VistaArbol;

// A design window over one tree of the model: the tree view, its level selectors and its popup
// menu wired to the core's editing object, which owns the working tree. Each window adds only
// its own controls, menu entries and refresh.
template <class TEdicion> class VentanaArbolDiseno : public VentanaDiseno {
public:
    // The popup menu owned by the main window, and the ending its entry names share.
    VentanaArbolDiseno(Hija hija, const char* titulo, QWidget* padre, const char* menu,
                       const char* sufijo);
    ~VentanaArbolDiseno() override;

    // Selects a node as a click does, shows it and gives the tree the focus.
    void SeleccionarNodo(NodoArbol* nodo);
    // The in-place edit of the selected node's label.
    void EditarEtiqueta();

    TEdicion& Edicion() { return *ed_; }
    bool Aceptado = false;

    VistaArbol* tvwArbol = nullptr;

protected:
    using Menu = decltype(std::declval<TEdicion&>().MenuContextual(nullptr));

    // The tree view inside the window's content.
    void CrearArbol(QWidget* contenido);
    void ConectarArbol();
    // The buttons and the list of the selector of level i.
    void ConectarSelector(MarcoNivel* marco, int i);
    void MostrarSelector(MarcoNivel* marco, int i);
    // Runs an operation of the logic, then shows its outcome, even when it fails halfway.
    void Operar(const std::function<void()>& operacion);
    void Refrescar();
    // The tree as the model holds it now, shown afresh.
    void Recargar();
    void EnfocarArbol();
    void showEvent(QShowEvent* evento) override;

    // What the window shows beside the tree, before the tree itself is brought up to date.
    virtual void RefrescarControles() = 0;
    // The window's own menu entries: their commands, and their look for the node clicked.
    virtual void ConectarMenu(QMenu& menu) = 0;
    virtual void AjustarMenu(QMenu& menu, const Menu& m) = 0;
    // The menu entry of that name, or with the shared ending added.
    static QAction* Entrada(QMenu& menu, const std::string& nombre);
    std::string ConSufijo(const char* nombre) const { return nombre + sufijo_; }
    // Connects an entry to an operation of the logic.
    void Orden(QMenu& menu, const std::string& nombre, std::function<void()> operacion);

    std::unique_ptr<TEdicion> ed_;
    std::unique_ptr<ModeloArbol> modelo_;

private:
    void MostrarMenu(NodoArbol* nodo, const QPoint& global);

    const char* menu_;
    std::string sufijo_;
    bool menuConectado_ = false;
};

extern template class VentanaArbolDiseno<EdicionComponentes>;
extern template class VentanaArbolDiseno<EdicionRequerimientos>;

} // namespace vadro
