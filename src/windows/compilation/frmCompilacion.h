#pragma once

#include "windows/shell/ventana_hija.h"

namespace vadro {

// The compilation window, opened by the compile command from any position. The checks and
// the report come with the window's own content.
class frmCompilacion : public VentanaHija {
    Q_OBJECT
public:
    explicit frmCompilacion(QWidget* padre = nullptr);

    void Colocar(QMdiSubWindow& marco, const QRect& cliente) override;
    bool OcupaCliente() const override { return false; }
};

} // namespace vadro
