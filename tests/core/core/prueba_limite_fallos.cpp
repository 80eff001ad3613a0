#include "core/core/error_ejecucion.h"
#include "core/core/limite_fallos.h"
#include "core/core/valor_libre.h"
#include "soporte/prueba_sesion.h"

#include <gtest/gtest.h>

#include <new>
#include <stdexcept>
#include <string>

namespace vadro {
namespace {

class LimiteFallos : public pruebas::PruebaSesion {};

TEST_F(LimiteFallos, EachFailureLeavingAHandlerGetsItsBoxAndTheCallerGoesOn) {
    struct Caso {
        const char* nombre;
        std::function<void()> manejador;
        const char* texto; // nullptr: no box at all
    };
    const Caso casos[] = {
        {"cancel", [] { throw ErrorEjecucion(ErrCancelar); }, nullptr},
        {"overflow", [] { throw ErrorEjecucion(ErrDesbordamiento); }, "6: Desbordamiento"},
        {"own description", [] { throw ErrorEjecucion(ErrPermiso, "Sin acceso a C:\\x"); },
         "70: Sin acceso a C:\\x"},
        {"memory", [] { throw std::bad_alloc(); }, "7: Memoria insuficiente"},
        {"library", [] { throw std::out_of_range("vector"); }, "51: Error interno"},
        {"anything", [] { throw 3; }, "51: Error interno"},
        {"a number far too large", [] { LeerNumero("1e999"); }, "6: Desbordamiento"},
        {"forty digits as a count",
         [] { AEntero16(*LeerNumero("1234567890123456789012345678901234567890")); },
         "6: Desbordamiento"},
    };
    for (const Caso& caso : casos) {
        if (caso.texto != nullptr) {
            mensajes.Esperar("VADRO PROGRAMADOR", caso.texto);
        }
        const auto vistos = mensajes.Vistos().size();
        EXPECT_FALSE(EjecutarProtegido(caso.manejador)) << caso.nombre;
        EXPECT_EQ(mensajes.Vistos().size(), vistos + (caso.texto != nullptr ? 1 : 0))
            << caso.nombre;
        if (caso.texto != nullptr) {
            EXPECT_EQ(mensajes.Vistos().back().icono, Icono::Critico) << caso.nombre;
        }
    }
}

TEST_F(LimiteFallos, AHandlerThatEndsWellShowsNothing) {
    int llamadas = 0;
    EXPECT_TRUE(EjecutarProtegido([&] { ++llamadas; }));
    EXPECT_EQ(llamadas, 1);
    EXPECT_TRUE(mensajes.Vistos().empty());
}

TEST_F(LimiteFallos, AFailingBoxDoesNotEscapeTheBoundary) {
    auto anterior = InstalarMensajes([](const Mensaje&) -> Respuesta { throw std::bad_alloc(); });
    EXPECT_FALSE(EjecutarProtegido([] { throw ErrorEjecucion(ErrDesbordamiento); }));
    InstalarMensajes(std::move(anterior));
}

} // namespace
} // namespace vadro
