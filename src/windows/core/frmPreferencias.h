#pragma once

#include "windows/core/ventana.h"

#include <QDialog>

class QCheckBox;
class QComboBox;
class QPushButton;

namespace vadro {

class frmPreferencias : public QDialog, public Ventana {
    Q_OBJECT
public:
    explicit frmPreferencias(QWidget* padre = nullptr);
    void AjustarControles() override;

    QCheckBox* chkMostrarInicio;
    QCheckBox* chkVersionBeta;
    QComboBox* cbbTamañoFuente;
    QComboBox* cbbIdioma;
    QPushButton* cmdAceptar;
    QPushButton* cmdCancelar;

    void cmdAceptar_Click();

protected:
    void done(int resultado) override;
};

} // namespace vadro
