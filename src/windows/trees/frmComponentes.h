#pragma once

#include "core/trees/edicion_componentes.h"
#include "windows/trees/ventana_diseno.h"

#include <array>
#include <functional>
#include <memory>

class QMenu;

namespace vadro {

class MarcoNivel;
class ModeloArbol;
class VistaArbol;

// The design window of the components tree: components and their subcomponents, with two
// level selectors, the clipboard and the drag of the requirements window. Every edit marks the
// model as modified; the model changes only when the tree is written back.
class frmComponentes : public VentanaDiseno {
    Q_OBJECT
public:
    explicit frmComponentes(QWidget* padre = nullptr);
    ~frmComponentes() override;

    // Accepts the window: its step label by the content, the model takes the tree, the window
    // unloads.
    void cmdAceptar_Click() override;
    // Writes the tree into the model, the window staying open.
    void LlamaLlenarComponentes();
    void GuardarArbol();
    // Selects a node as a click does, shows it and gives the tree the focus.
    void SeleccionarNodo(NodoArbol* nodo);
    // The in-place edit of the selected node's label.
    void EditarEtiqueta();

    EdicionComponentes& Edicion() { return *ed_; }
    bool Aceptado = false;

    VistaArbol* tvwArbol;
    std::array<MarcoNivel*, 2> fmeNodos{};

protected:
    void ModeloCambiado(ParteModelo parte) override;
    bool PuedeDescargarse() override;
    void showEvent(QShowEvent* evento) override;

private:
    void CrearControles();
    void ConectarArbol();
    void ConectarSelector(int i);
    void Operar(const std::function<void()>& operacion);
    void Refrescar();
    void MostrarMenu(NodoArbol* nodo, const QPoint& global);
    void ConectarMenu(QMenu& menu);

    std::unique_ptr<EdicionComponentes> ed_;
    std::unique_ptr<ModeloArbol> modelo_;
    bool menuConectado_ = false;
};

} // namespace vadro
