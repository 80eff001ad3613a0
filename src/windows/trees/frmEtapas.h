#pragma once

#include "core/trees/edicion_etapas.h"
#include "windows/trees/ventana_diseno.h"

#include <string>

class QListWidget;
class QPushButton;

namespace vadro {

// The design window of the list of life-cycle stages: a working list with its four buttons,
// written to the model when accepted.
class frmEtapas : public VentanaDiseno {
    Q_OBJECT
public:
    explicit frmEtapas(QWidget* padre = nullptr);

    // Accepts the window: its step label by the content, the model takes the list, the
    // window unloads.
    void cmdAceptar_Click() override;
    // Writes the list into the model, the window staying open.
    void LlamaLlenarEtapas();
    // Adds a stage at the end of the list, as the new-stage dialog asks.
    void AgregarEtapa(const std::string& nombre);

    EdicionEtapas& Edicion() { return ed_; }

    QListWidget* lstEtapas;
    QPushButton* cmdAgregar;
    QPushButton* cmdEliminar;
    QPushButton* cmdSubir;
    QPushButton* cmdBajar;

protected:
    void ModeloCambiado(ParteModelo parte) override;

private:
    void Refrescar();
    void cmdAgregar_Click();

    EdicionEtapas ed_;
};

} // namespace vadro
