#pragma once

#include "windows/core/dialogo_aviso.h"

namespace vadro {

// The notice before the first drawing of a function. Its check box sets a property of the
// session only: it is not stored in the configuration.
class frmAvisoFuncionValor : public DialogoAviso {
    Q_OBJECT
public:
    frmAvisoFuncionValor(bool& mostrarAviso, QWidget* padre = nullptr);
};

} // namespace vadro
