#pragma once

#include "core/trees/edicion_componentes.h"
#include "windows/trees/ventana_arbol_diseno.h"

#include <array>

namespace vadro {

// The design window of the components tree: components and their subcomponents, with two
// level selectors, the clipboard and the drag of the requirements window. Every edit marks the
// model as modified; the model changes only when the tree is written back.
class frmComponentes : public VentanaArbolDiseno<EdicionComponentes> {
    Q_OBJECT
public:
    explicit frmComponentes(QWidget* padre = nullptr);

    // Accepts the window: its step label by the content, the model takes the tree, the window
    // unloads.
    void cmdAceptar_Click() override;
    // Writes the tree into the model, the window staying open.
    void LlamaLlenarComponentes();
    void GuardarArbol();

    std::array<MarcoNivel*, 2> fmeNodos{};

protected:
    void ModeloCambiado(ParteModelo parte) override;
    bool PuedeDescargarse() override;
    void RefrescarControles() override;
    void ConectarMenu(QMenu& menu) override;
    void AjustarMenu(QMenu& menu, const Menu& m) override;

private:
    void CrearControles();
};

} // namespace vadro
