#pragma once

#include "windows/shell/ventana_hija.h"

namespace vadro {

// The window of the position "Resumen": the summary of the model. Its frames come with the
// window's own content.
class frmResumen : public VentanaHija {
    Q_OBJECT
public:
    explicit frmResumen(QWidget* padre = nullptr);
};

} // namespace vadro
