#pragma once

#include <stdexcept>
#include <string>

namespace vadro {

// The classic runtime error numbers that travel up to the caller of a routine that has no
// trap of its own. The command that catches one decides whether to show it.
enum CodigoError : int {
    ErrLlamadaNoValida = 5,
    ErrDesbordamiento = 6,
    ErrMemoria = 7,
    ErrSubindice = 9,
    ErrDivisionCero = 11,
    ErrTipos = 13,
    ErrInterno = 51,
    ErrNombreArchivo = 52,
    ErrArchivoNoEncontrado = 53,
    ErrArchivoAbierto = 55,
    ErrEntradaSalida = 57,
    ErrDiscoLleno = 61,
    ErrFinArchivo = 62,
    ErrPermiso = 70,
    ErrAccesoRuta = 75,
    ErrRutaNoEncontrada = 76,
    ErrFormatoArchivo = 321,
    ErrImpresora = 482,
    ErrCancelar = 32755,
};

// Spanish description of a runtime error number, as the system would show it.
std::string DescripcionError(int numero);

class ErrorEjecucion : public std::runtime_error {
public:
    explicit ErrorEjecucion(int numero);
    ErrorEjecucion(int numero, const std::string& descripcion);

    int Numero() const noexcept { return numero_; }
    std::string Descripcion() const { return what(); }

private:
    int numero_;
};

// The text of the runtime error box shown when a failure reaches a command with no trap.
std::string TextoErrorEjecucion(const ErrorEjecucion& error);

} // namespace vadro
