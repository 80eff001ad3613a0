#include "core/core/limite_fallos.h"

#include "core/core/error_ejecucion.h"
#include "core/core/mensajes.h"

#include <new>
#include <string>

namespace vadro {

namespace {

void MostrarFallo(int numero, const std::string& descripcion) noexcept {
    try {
        MsgBox(TextoFallo(numero, descripcion), Botones::Aceptar, Icono::Critico,
               "VADRO PROGRAMADOR");
    } catch (...) {
        // Not even the box could be shown (no memory left): the program still goes on.
    }
}

} // namespace

std::string TextoFallo(int numero, const std::string& descripcion) {
    return std::to_string(numero) + ": " + descripcion;
}

bool EjecutarProtegido(const std::function<void()>& manejador) noexcept {
    try {
        manejador();
        return true;
    } catch (const ErrorEjecucion& error) {
        if (error.Numero() != ErrCancelar) {
            MostrarFallo(error.Numero(), error.Descripcion());
        }
    } catch (const std::bad_alloc&) {
        MostrarFallo(ErrMemoria, DescripcionError(ErrMemoria));
    } catch (...) {
        // A failure of the library below the logic, which has no number of its own.
        MostrarFallo(ErrInterno, DescripcionError(ErrInterno));
    }
    return false;
}

} // namespace vadro
