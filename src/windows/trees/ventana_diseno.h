#pragma once

#include "windows/shell/ventana_hija.h"

class QMenu;
class QPushButton;
class QVBoxLayout;

namespace vadro {

// A design window: it works on a copy of one part of the model and writes it back when it is
// accepted, by its own button or by the main window leaving "Ejes" forwards.
class VentanaDiseno : public VentanaHija {
    Q_OBJECT
public:
    VentanaDiseno(Hija hija, const char* titulo, QWidget* padre);

    QPushButton* cmdAceptar;
    virtual void cmdAceptar_Click() = 0;

    void Colocar(QMdiSubWindow& marco, const QRect& cliente) override;
    bool OcupaCliente() const override { return false; }

protected:
    // The window's content, above the row of its button.
    void PonerContenido(QWidget* contenido);
    // The popup menu of that name that the main window owns, or none while the window stands
    // alone.
    QMenu* MenuEmergente(const char* nombre) const;

private:
    QVBoxLayout* columna_;
};

} // namespace vadro
