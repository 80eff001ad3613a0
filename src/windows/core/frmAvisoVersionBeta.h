#pragma once

#include "windows/core/dialogo_aviso.h"

namespace vadro {

// The development notice at the start; its check box stops it for later starts.
class frmAvisoVersionBeta : public DialogoAviso {
    Q_OBJECT
public:
    explicit frmAvisoVersionBeta(QWidget* padre = nullptr);
};

// The address where users report errors and look for updates.
inline const char* const kDireccionWeb = "https://vadro.example.org";

} // namespace vadro
