#include "core/core/dialogos.h"

#include "core/core/error_ejecucion.h"
#include "core/core/sesion.h"

#include <utility>

namespace vadro {

std::string MostrarDialogoArchivo(const PeticionDialogo& peticion) {
    auto& funcion = SesionActual().servicios.dialogos;
    // Without a service there is nobody to choose: the same as a cancel.
    std::optional<std::string> ruta = funcion ? funcion(peticion) : std::nullopt;
    if (!ruta) {
        throw ErrorEjecucion(ErrCancelar);
    }
    return *ruta;
}

std::optional<std::string> ElegirArchivo(const PeticionDialogo& peticion) {
    try {
        return MostrarDialogoArchivo(peticion);
    } catch (const ErrorEjecucion& error) {
        if (error.Numero() == ErrCancelar) {
            return std::nullopt;
        }
        throw;
    }
}

FuncionDialogos InstalarDialogos(FuncionDialogos funcion) {
    return std::exchange(SesionActual().servicios.dialogos, std::move(funcion));
}

ImpresoraElegida MostrarDialogoImpresora(const PeticionImpresora& peticion) {
    auto& funcion = SesionActual().servicios.impresora;
    std::optional<ImpresoraElegida> elegida = funcion ? funcion(peticion) : std::nullopt;
    if (!elegida) {
        throw ErrorEjecucion(ErrCancelar);
    }
    return *elegida;
}

FuncionImpresora InstalarImpresora(FuncionImpresora funcion) {
    return std::exchange(SesionActual().servicios.impresora, std::move(funcion));
}

} // namespace vadro
