#pragma once

#include "windows/shell/ventana_hija.h"

namespace vadro {

// The window of the position "Ejes", the limits of the system: the door to the three design
// windows. The axes and their buttons come with the window's own content.
class frmEjes : public VentanaHija {
    Q_OBJECT
public:
    explicit frmEjes(QWidget* padre = nullptr);

    // A design window that is open already comes to the front; none is loaded twice.
    void AbrirRequerimientos() { emit PideVentana(Hija::Requerimientos); }
    void AbrirComponentes() { emit PideVentana(Hija::Componentes); }
    void AbrirEtapas() { emit PideVentana(Hija::Etapas); }

    void Colocar(QMdiSubWindow& marco, const QRect& cliente) override;
    bool OcupaCliente() const override { return false; }
};

} // namespace vadro
