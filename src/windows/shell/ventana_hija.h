#pragma once

#include "core/shell/flujo_trabajo.h"
#include "windows/core/ventana.h"

#include <QWidget>

class QMdiSubWindow;

namespace vadro {

// A child window of the main window: it lives in the client area between its load (the
// constructor) and its unload (the close of its frame). It never touches the main window:
// it tells it what happened through its signals.
class VentanaHija : public QWidget, public Ventana {
    Q_OBJECT
public:
    VentanaHija(Hija hija, const char* titulo, QWidget* padre = nullptr);
    void AjustarControles() override;

    Hija Identidad() const { return hija_; }

    // Where the window stands when it is loaded into the client area. The windows of the
    // positions fill it.
    virtual void Colocar(QMdiSubWindow& marco, const QRect& cliente);
    // Whether the window follows the client area when the main window is resized.
    virtual bool OcupaCliente() const { return true; }

    // Unloads the window, as the window itself or the main window asks.
    void Descargar();

    // A part of the model was replaced from outside the window (an opening, an import, the
    // subcriteria removed): a window that shows that part fills it again from the model (the
    // summary its pane, a design window its tree and selectors).
    virtual void ModeloCambiado(ParteModelo /*parte*/) {}
    // The subcriteria permission changed: the requirements window shows or hides its frame of
    // subcriteria and adjusts its controls; when they are no longer allowed it also removes
    // them from its working tree, from its first node down.
    virtual void PermisoSubcriterios(bool /*permitidos*/) {}

signals:
    // The window has unloaded.
    void Descargada(vadro::Hija hija);
    // Another child window should open, or come to the front when it is open.
    void PideVentana(vadro::Hija hija);
    // A design window wrote its part into the model: the windows that show it follow.
    void ModeloAceptado(vadro::ParteModelo parte);
    // A step of the panel is satisfied or not.
    void MarcaPaso(int etiqueta, bool satisfecho);
    // A hint for panel 1 of the status bar; the empty text puts the position back.
    void Estado(const QString& texto);
    // The main window should take a step of the workflow, once the step in hand is done.
    void PideTransicion(const vadro::Transicion& transicion);

protected:
    // What the window does when it unloads, after `Cargado` has gone false. It may refuse,
    // and the window stays.
    virtual bool PuedeDescargarse() { return true; }
    virtual void AlDescargar() {}
    void closeEvent(QCloseEvent* evento) override;

private:
    Hija hija_;
};

} // namespace vadro
