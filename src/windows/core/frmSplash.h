#pragma once

#include "windows/core/ventana.h"

#include <QWidget>

namespace vadro {

// The screen shown while the program starts. No logic.
class frmSplash : public QWidget, public Ventana {
    Q_OBJECT
public:
    explicit frmSplash(QWidget* padre = nullptr);
    void AjustarControles() override {}
};

} // namespace vadro
