#pragma once

#include "windows/core/ventana.h"

#include <QDialog>

#include <functional>

class QCheckBox;
class QPushButton;

namespace vadro {

// The start screen: a new model or an existing one.
class frmInicio : public QDialog, public Ventana {
    Q_OBJECT
public:
    frmInicio(std::function<void()> nuevo, std::function<void()> abrir, QWidget* padre = nullptr);
    ~frmInicio() override;
    void AjustarControles() override {}

    QPushButton* cmdNuevo;
    QPushButton* cmdExistente;
    QCheckBox* chkNoMostrar;

    // The open start screen, if any, so that the model commands can close it.
    static frmInicio* Abierto();

protected:
    void showEvent(QShowEvent* evento) override;
    void done(int resultado) override;
};

} // namespace vadro
