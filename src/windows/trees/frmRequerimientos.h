#pragma once

#include "core/trees/edicion_requerimientos.h"
#include "windows/trees/ventana_arbol_diseno.h"

#include <array>
#include <string>

class QLabel;
class QPlainTextEdit;
class QPushButton;

namespace vadro {

// The design window of the requirements tree: the working tree with its clipboard, the
// description of the node in hand, the four level selectors and the door to the function
// editor. The model changes only when the tree is written back.
class frmRequerimientos : public VentanaArbolDiseno<EdicionRequerimientos> {
    Q_OBJECT
public:
    explicit frmRequerimientos(QWidget* padre = nullptr);

    // Accepts the window: its step label by the node count, the model takes the tree, the
    // window unloads.
    void cmdAceptar_Click() override;
    // Writes the tree into the model, the window staying open.
    void LlamaLlenarRequerimientos();
    // Likewise, giving the first step label its normal look back when the tree has a node.
    void GuardarArbol();
    void AjustarControles() override;
    void ActualizarCombos(NodoArbol* nodo);
    void EliminarSubcriteriosDelNodo(NodoArbol* nodo);
    void cmdFuncion_Click();

    QWidget* fmeDescripcion;
    QLabel* lblDescripcion;
    QPlainTextEdit* txtDescripcion;
    std::array<MarcoNivel*, 4> fmeNodos{};
    QPushButton* cmdFuncion;

protected:
    void ModeloCambiado(ParteModelo parte) override;
    void PermisoSubcriterios(bool permitidos) override;
    bool PuedeDescargarse() override;
    void RefrescarControles() override;
    void ConectarMenu(QMenu& menu) override;
    void AjustarMenu(QMenu& menu, const Menu& m) override;

private:
    void CrearControles();
};

} // namespace vadro
