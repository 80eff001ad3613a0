#include "core/core/error_ejecucion.h"

#include <map>

namespace vadro {

std::string DescripcionError(int numero) {
    static const std::map<int, std::string> descripciones = {
        {ErrLlamadaNoValida, "Llamada a procedimiento o argumento no válidos"},
        {ErrDesbordamiento, "Desbordamiento"},
        {ErrMemoria, "Memoria insuficiente"},
        {ErrSubindice, "El subíndice está fuera del intervalo"},
        {ErrDivisionCero, "División por cero"},
        {ErrTipos, "No coinciden los tipos"},
        {ErrInterno, "Error interno"},
        {ErrNombreArchivo, "Nombre o número de archivo incorrecto"},
        {ErrArchivoNoEncontrado, "No se encontró el archivo"},
        {ErrArchivoAbierto, "El archivo ya está abierto"},
        {ErrEntradaSalida, "Error de E/S en el dispositivo"},
        {ErrDiscoLleno, "Disco lleno"},
        {ErrFinArchivo, "La entrada sobrepasa el final del archivo"},
        {ErrPermiso, "Permiso denegado"},
        {ErrAccesoRuta, "Error de acceso a la ruta o el archivo"},
        {ErrRutaNoEncontrada, "No se encontró la ruta de acceso"},
        {ErrFormatoArchivo, "Formato de archivo no válido"},
        {ErrImpresora, "Error de impresora"},
        {ErrCancelar, "Se ha seleccionado Cancelar."},
    };
    const auto it = descripciones.find(numero);
    return it != descripciones.end() ? it->second : "Error definido por la aplicación o el objeto";
}

ErrorEjecucion::ErrorEjecucion(int numero) : ErrorEjecucion(numero, DescripcionError(numero)) {}

ErrorEjecucion::ErrorEjecucion(int numero, const std::string& descripcion)
    : std::runtime_error(descripcion), numero_(numero) {}

std::string TextoErrorEjecucion(const ErrorEjecucion& error) {
    return "Se ha producido el error '" + std::to_string(error.Numero()) +
           "' en tiempo de ejecución:\n\n" + error.Descripcion();
}

} // namespace vadro
