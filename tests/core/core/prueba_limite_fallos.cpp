#include "core/core/error_ejecucion.h"
#include "core/core/limite_fallos.h"
#include "core/core/valor_libre.h"
#include "soporte/acta.h"
#include "soporte/prueba_sesion.h"

#include <gtest/gtest.h>

#include <new>
#include <stdexcept>
#include <string>

namespace vadro {
namespace {

class LimiteFallos : public pruebas::PruebaSesion {};

// Each failure leaving a handler gets its critical box "number: description" (a cancel none)
// and the caller goes on; a handler that ends well shows nothing.
TEST_F(LimiteFallos, EachFailureLeavingAHandlerGetsItsBoxAndTheCallerGoesOn) {
    const std::pair<const char*, std::function<void()>> casos[] = {
        {"cancel", [] { throw ErrorEjecucion(ErrCancelar); }},
        {"overflow", [] { throw ErrorEjecucion(ErrDesbordamiento); }},
        {"own description", [] { throw ErrorEjecucion(ErrPermiso, "Sin acceso a C:\\x"); }},
        {"memory", [] { throw std::bad_alloc(); }},
        {"library", [] { throw std::out_of_range("vector"); }},
        {"anything", [] { throw 3; }},
        {"a number far too large", [] { LeerNumero("1e999"); }},
        {"forty digits as a count",
         [] { AEntero16(*LeerNumero("1234567890123456789012345678901234567890")); }},
        {"a handler that ends well", [] {}},
    };
    pruebas::Acta acta;
    acta.iconos = true;
    for (const auto& [nombre, manejador] : casos) {
        acta.Fila(nombre, EjecutarProtegido(manejador) ? "ended well" : "failed");
    }
    acta.Comparar("nucleo/limite_fallos.txt");
}

TEST_F(LimiteFallos, AFailingBoxDoesNotEscapeTheBoundary) {
    auto anterior = InstalarMensajes([](const Mensaje&) -> Respuesta { throw std::bad_alloc(); });
    EXPECT_FALSE(EjecutarProtegido([] { throw ErrorEjecucion(ErrDesbordamiento); }));
    InstalarMensajes(std::move(anterior));
}

} // namespace
} // namespace vadro
