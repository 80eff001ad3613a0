#pragma once

#include "windows/shell/ventana_hija.h"

namespace vadro {

// The window of the position "Ejes", the limits of the system: the door to the three design
// windows. The axes and their buttons come with the window's own content.
class frmEjes : public VentanaHija {
    Q_OBJECT
public:
    explicit frmEjes(frmPrincipal& principal);

    void AbrirRequerimientos();
    void AbrirComponentes();
    void AbrirEtapas();

    void Colocar(QMdiSubWindow& marco, const QRect& cliente) override;
    bool OcupaCliente() const override { return false; }

protected:
    void AlDescargar() override;
};

} // namespace vadro
