#pragma once

#include <QDialog>

class QLabel;
class QLineEdit;
class QPushButton;

namespace vadro {

class EdicionEtapas;

// The modal dialog that asks for the name of one new stage and adds it to the list it was
// opened from, unless the list holds it already.
class frmNuevaEtapa : public QDialog {
    Q_OBJECT
public:
    frmNuevaEtapa(EdicionEtapas& etapas, QWidget* padre = nullptr);

    QLabel* lblDenominacion;
    QLineEdit* txtDenominacion;
    QPushButton* cmdAceptar;
    QPushButton* cmdCancelar;

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    void cmdAceptar_Click();

    EdicionEtapas& etapas_;
};

} // namespace vadro
