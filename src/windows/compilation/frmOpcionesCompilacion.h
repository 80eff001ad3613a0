#pragma once

#include "windows/core/ventana.h"

#include <QDialog>

class QCheckBox;
class QPushButton;

namespace vadro {

// The options of a compilation: whether the tree is to be shown. The setting is kept with the
// model for the session, though no check reads it and nothing in the program opens this
// dialog.
class frmOpcionesCompilacion : public QDialog, public Ventana {
    Q_OBJECT
public:
    explicit frmOpcionesCompilacion(QWidget* padre = nullptr);
    void AjustarControles() override;

    QCheckBox* chkMostrarArbol;
    QPushButton* cmdAceptar;

    void cmdAceptar_Click();

protected:
    void done(int resultado) override;
};

} // namespace vadro
