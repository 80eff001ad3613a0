#pragma once

#include "windows/shell/ventana_hija.h"

namespace vadro {

// The window of the position "Resumen": the model at a glance. Its trees and its list come
// with the window's own content.
class frmResumen : public VentanaHija {
    Q_OBJECT
public:
    explicit frmResumen(frmPrincipal& principal);

protected:
    void AlDescargar() override;
};

} // namespace vadro
