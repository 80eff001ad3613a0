#pragma once

#include "windows/core/ventana.h"

#include <QDialog>

class QLineEdit;
class QPushButton;

namespace vadro {

// The titles of the three axes, a modal dialog. Acceptance stores them as they stand, an empty
// one too, and marks the model modified.
class frmConfigEjes : public QDialog, public Ventana {
    Q_OBJECT
public:
    explicit frmConfigEjes(QWidget* padre = nullptr);
    void AjustarControles() override;

    QLineEdit* txtEjeX;
    QLineEdit* txtEjeY;
    QLineEdit* txtEjeZ;
    QPushButton* cmdAceptar;
    QPushButton* cmdCancelar;

    void cmdAceptar_Click();

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;
    void done(int resultado) override;
};

} // namespace vadro
