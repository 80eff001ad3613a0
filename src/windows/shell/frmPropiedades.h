#pragma once

#include "core/shell/ventanas_shell.h"
#include "windows/core/ventana.h"

#include <QDialog>

#include <array>

class QLabel;
class QLineEdit;
class QPushButton;

namespace vadro {

// The properties of the model, a modal dialog: seven texts that name the model, copied to it
// on acceptance with no test of any kind.
class frmPropiedades : public QDialog, public Ventana {
    Q_OBJECT
public:
    explicit frmPropiedades(QWidget* padre = nullptr);
    void AjustarControles() override;

    std::array<QLineEdit*, kNumPropiedades> txtInfo{};
    std::array<QLabel*, kNumPropiedades> lblInfo{};
    QPushButton* cmdAceptar;
    QPushButton* cmdCancelar;

    void cmdAceptar_Click();

protected:
    void done(int resultado) override;
};

} // namespace vadro
