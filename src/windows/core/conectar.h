#pragma once

#include "core/core/limite_fallos.h"

#include <QObject>

#include <type_traits>
#include <utility>

namespace vadro {

// A handler behind the program's failure boundary: it takes the arguments of the signal when
// it wants them, or none. A failure that leaves it is shown and the program goes on.
template <typename Manejador> auto Protegido(Manejador manejador) {
    return [manejador = std::move(manejador)](auto... argumentos) {
        EjecutarProtegido([&] {
            if constexpr (std::is_invocable_v<Manejador&, decltype(argumentos)...>) {
                manejador(argumentos...);
            } else {
                manejador();
            }
        });
    };
}

// Every signal of a window reaches its handler through here, never through a bare connect:
// an exception that left a slot would end the program.
template <typename Emisor, typename Senal, typename Manejador>
QMetaObject::Connection Conectar(Emisor* emisor, Senal senal, const QObject* contexto,
                                 Manejador manejador) {
    return QObject::connect(emisor, senal, contexto, Protegido(std::move(manejador)));
}

} // namespace vadro
