#pragma once

#include "core/trees/edicion_requerimientos.h"
#include "windows/trees/ventana_diseno.h"

#include <array>
#include <functional>
#include <memory>
#include <string>

class QLabel;
class QMenu;
class QPlainTextEdit;
class QPushButton;

namespace vadro {

class MarcoNivel;
class ModeloArbol;
class VistaArbol;

// The design window of the requirements tree: the working tree with its clipboard, the
// description of the node in hand, the four level selectors and the door to the function
// editor. The model changes only when the tree is written back.
class frmRequerimientos : public VentanaDiseno {
    Q_OBJECT
public:
    explicit frmRequerimientos(QWidget* padre = nullptr);
    ~frmRequerimientos() override;

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
    // Selects a node as a click does, shows it and gives the tree the focus.
    void SeleccionarNodo(NodoArbol* nodo);
    // The in-place edit of the selected node's label.
    void EditarEtiqueta();
    void cmdFuncion_Click();

    EdicionRequerimientos& Edicion() { return *ed_; }
    bool Aceptado = false;

    VistaArbol* tvwArbol;
    QWidget* fmeDescripcion;
    QLabel* lblDescripcion;
    QPlainTextEdit* txtDescripcion;
    std::array<MarcoNivel*, 4> fmeNodos{};
    QPushButton* cmdFuncion;

protected:
    void ModeloCambiado(ParteModelo parte) override;
    void PermisoSubcriterios(bool permitidos) override;
    bool PuedeDescargarse() override;
    void showEvent(QShowEvent* evento) override;

private:
    void CrearControles();
    void ConectarArbol();
    void ConectarSelector(int i);
    // Runs an operation of the logic, then shows its outcome, even when it fails halfway.
    void Operar(const std::function<void()>& operacion);
    void Refrescar();
    void MostrarMenu(NodoArbol* nodo, const QPoint& global);
    void ConectarMenu(QMenu& menu);
    void EnfocarArbol();

    std::unique_ptr<EdicionRequerimientos> ed_;
    std::unique_ptr<ModeloArbol> modelo_;
    bool menuConectado_ = false;
};

} // namespace vadro
