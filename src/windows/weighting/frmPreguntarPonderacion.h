#pragma once

#include "windows/core/ventana.h"

#include <QDialog>

class QCheckBox;
class QPushButton;

namespace vadro {

// The question between the summary and the weights: may the users of the compiled model see
// its inner data? Its acceptance finishes the step to "Ponderacion".
class frmPreguntarPonderacion : public QDialog, public Ventana {
    Q_OBJECT
public:
    explicit frmPreguntarPonderacion(QWidget* padre = nullptr);
    void AjustarControles() override;

    QCheckBox* chkVerPesos;
    QPushButton* cmdAceptar;

    void cmdAceptar_Click();

protected:
    void showEvent(QShowEvent* evento) override;
    void done(int resultado) override;
};

} // namespace vadro
