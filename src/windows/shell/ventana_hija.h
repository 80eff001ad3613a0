#pragma once

#include "windows/core/ventana.h"

#include <QWidget>

class QMdiSubWindow;

namespace vadro {

class frmPrincipal;

// A child window of the main window: it lives in the client area between its load (the
// constructor) and its unload (the close of its frame).
class VentanaHija : public QWidget, public Ventana {
    Q_OBJECT
public:
    VentanaHija(frmPrincipal& principal, const char* nombre, const char* titulo);
    void AjustarControles() override;

    // Where the window stands when it is loaded into the client area. The windows of the
    // positions fill it.
    virtual void Colocar(QMdiSubWindow& marco, const QRect& cliente);
    // Whether the window follows the client area when the main window is resized.
    virtual bool OcupaCliente() const { return true; }

    // Unloads the window, as the window itself or the main window asks.
    void Descargar();

    frmPrincipal& Principal() const { return principal_; }

protected:
    // What the window does when it unloads, after `Cargado` has gone false.
    virtual void AlDescargar() {}
    void closeEvent(QCloseEvent* evento) override;

private:
    frmPrincipal& principal_;
};

} // namespace vadro
