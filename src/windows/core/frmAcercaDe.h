#pragma once

#include "windows/core/ventana.h"

#include <QDialog>

class QLabel;
class QPushButton;

namespace vadro {

class frmAcercaDe : public QDialog, public Ventana {
    Q_OBJECT
public:
    explicit frmAcercaDe(QWidget* padre = nullptr);
    void AjustarControles() override {}

    QLabel* lblModulo;
    QLabel* lblVersion;
    QLabel* lblDisclaimer;
    QPushButton* cmdAceptar;
};

} // namespace vadro
