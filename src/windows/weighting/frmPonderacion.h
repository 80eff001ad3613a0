#pragma once

#include "windows/shell/ventana_hija.h"

namespace vadro {

// The window of the position "Ponderacion": the weighted tree at a glance and the door to the
// weights of a sibling set. Its grid comes with the window's own content.
class frmPonderacion : public VentanaHija {
    Q_OBJECT
public:
    explicit frmPonderacion(QWidget* padre = nullptr);
};

} // namespace vadro
