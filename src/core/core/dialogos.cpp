#include "core/core/dialogos.h"

#include "core/core/error_ejecucion.h"
#include "core/core/sesion.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace vadro {

std::string MostrarDialogoArchivo(const PeticionDialogo& peticion) {
    auto& funcion = SesionActual().servicios.dialogos;
    // Without a service there is nobody to choose: the same as a cancel.
    const std::optional<RespuestaDialogo> respuesta = funcion ? funcion(peticion) : std::nullopt;
    if (!respuesta) {
        throw ErrorEjecucion(ErrCancelar);
    }
    return CompletarExtension(peticion, *respuesta);
}

std::string ExtensionDelFiltro(const std::string& filtro, int indice) {
    // "Description|pattern|Description|pattern": the pattern of filter n stands in part 2n-1.
    std::vector<std::string> partes;
    std::size_t inicio = 0;
    for (std::size_t corte = filtro.find('|'); corte != std::string::npos;
         corte = filtro.find('|', inicio)) {
        partes.push_back(filtro.substr(inicio, corte - inicio));
        inicio = corte + 1;
    }
    partes.push_back(filtro.substr(inicio));
    const std::size_t patron = 2 * static_cast<std::size_t>(std::max(indice, 1)) - 1;
    if (patron >= partes.size()) {
        return {};
    }
    const std::string& texto = partes[patron];
    const bool unaExtension = texto.size() > 2 && texto.compare(0, 2, "*.") == 0 &&
                              texto.find_first_of("*?;", 2) == std::string::npos;
    return unaExtension ? texto.substr(1) : std::string();
}

std::string CompletarExtension(const PeticionDialogo& peticion, const RespuestaDialogo& respuesta) {
    const std::string& ruta = respuesta.ruta;
    if (peticion.tipo != TipoDialogo::Guardar || ruta.empty()) {
        return ruta;
    }
    const std::size_t nombre = ruta.find_last_of("/\\");
    const std::size_t inicioNombre = nombre == std::string::npos ? 0 : nombre + 1;
    if (ruta.find('.', inicioNombre) != std::string::npos || inicioNombre == ruta.size()) {
        return ruta;
    }
    const int indice =
        respuesta.filtroElegido > 0 ? respuesta.filtroElegido : peticion.indiceFiltro;
    return ruta + ExtensionDelFiltro(peticion.filtro, indice);
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
