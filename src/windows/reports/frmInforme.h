#pragma once

#include "windows/shell/ventana_hija.h"

namespace vadro {

// The window of the position "Informe": the report of the whole model. Its panes come with
// the window's own content.
class frmInforme : public VentanaHija {
    Q_OBJECT
public:
    explicit frmInforme(QWidget* padre = nullptr);
};

} // namespace vadro
