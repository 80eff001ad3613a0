#pragma once

#include "core/core/error_ejecucion.h"

namespace vadro::pruebas {

// The number of the runtime error the action raises; 0 when it raises none.
template <typename Accion> int NumeroDeError(Accion&& accion) {
    try {
        accion();
    } catch (const ErrorEjecucion& error) {
        return error.Numero();
    }
    return 0;
}

} // namespace vadro::pruebas
