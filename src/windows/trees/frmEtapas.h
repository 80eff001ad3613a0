#pragma once

#include "windows/trees/ventana_diseno.h"

namespace vadro {

// The design window of the list of stages. The working copy and its editing come with the
// window's own content.
class frmEtapas : public VentanaDiseno {
    Q_OBJECT
public:
    explicit frmEtapas(QWidget* padre = nullptr);

    // Accepts the window: its step label follows the content, the model takes the working
    // copy and the window unloads.
    void cmdAceptar_Click() override;
    // Writes the working copy into the model, the window staying open.
    void LlamaLlenarEtapas();
};

} // namespace vadro
