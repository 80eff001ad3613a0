#pragma once

#include "windows/core/dialogo_aviso.h"

namespace vadro {

// Asks before the number of intervals of a step function is reduced. Aceptar and Cancelar
// are the answer; the check box sets a property of the function editor for the session.
class frmConfirmacion : public DialogoAviso {
    Q_OBJECT
public:
    frmConfirmacion(bool& mostrarConfirmacion, QWidget* padre = nullptr);
};

} // namespace vadro
