#pragma once

#include "core/shell/ventanas_shell.h"
#include "windows/shell/ventana_hija.h"

#include <array>

class QPushButton;

namespace vadro {

// The window of the position "Ejes", the limits of the system: a picture of three axes, one
// button on each, the door to the three design windows.
class frmEjes : public VentanaHija {
    Q_OBJECT
public:
    explicit frmEjes(QWidget* padre = nullptr);

    // A design window that is open already comes to the front; none is loaded twice.
    void AbrirRequerimientos() { emit PideVentana(Hija::Requerimientos); }
    void AbrirComponentes() { emit PideVentana(Hija::Componentes); }
    void AbrirEtapas() { emit PideVentana(Hija::Etapas); }

    // The buttons show the axes' titles of the model.
    void MostrarEjes();
    // The axes dialog, modal; on acceptance the buttons show the new titles.
    void cmdEjes_Click();

    void Colocar(QMdiSubWindow& marco, const QRect& cliente) override;
    bool OcupaCliente() const override { return false; }

    QWidget* pctFondo;
    QWidget* imgEjes;
    QPushButton* cmdTiempo;
    QPushButton* cmdRequerimientos;
    QPushButton* cmdComponentes;
    QPushButton* cmdEjes;

protected:
    void resizeEvent(QResizeEvent* evento) override;
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    QPushButton* BotonDe(Eje eje) const;
    void Distribuir();
};

} // namespace vadro
