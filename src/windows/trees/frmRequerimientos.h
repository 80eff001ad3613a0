#pragma once

#include "windows/trees/ventana_diseno.h"

namespace vadro {

// The design window of the requirements tree. The working copy and its editing come with the
// window's own content.
class frmRequerimientos : public VentanaDiseno {
    Q_OBJECT
public:
    explicit frmRequerimientos(frmPrincipal& principal);

    // Accepts the window: its step label follows the content, the model takes the working
    // copy and the window unloads.
    void cmdAceptar_Click() override;
    // Writes the working copy into the model, the window staying open.
    void LlamaLlenarRequerimientos();
};

} // namespace vadro
