#pragma once

#include "windows/core/ventana.h"

#include <QDialog>

class QPushButton;

namespace vadro {

// The properties of the model, a modal dialog. Its seven fields come with the dialog's own
// content; until then it only accepts and cancels.
class frmPropiedades : public QDialog, public Ventana {
    Q_OBJECT
public:
    explicit frmPropiedades(QWidget* padre = nullptr);
    void AjustarControles() override;

    QPushButton* cmdAceptar;
    QPushButton* cmdCancelar;

    void cmdAceptar_Click();

protected:
    void done(int resultado) override;
};

} // namespace vadro
