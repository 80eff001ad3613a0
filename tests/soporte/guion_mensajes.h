#pragma once

#include "core/core/mensajes.h"

#include <deque>
#include <functional>
#include <string>
#include <vector>

namespace vadro::pruebas {

// A script of the message boxes a test expects, in order, with the answer to each. Any
// message that the script does not expect fails the test; so does an expected one that never
// came. Installed for the life of the object.
class GuionMensajes {
public:
    GuionMensajes();
    ~GuionMensajes();
    GuionMensajes(const GuionMensajes&) = delete;
    GuionMensajes& operator=(const GuionMensajes&) = delete;

    // Expects a message with this title and text, and answers it.
    GuionMensajes& Esperar(const std::string& titulo, const std::string& texto,
                           Respuesta respuesta = Respuesta::Aceptar);
    // Likewise, and runs an action before answering (to change what caused the message).
    GuionMensajes& Esperar(const std::string& titulo, const std::string& texto, Respuesta respuesta,
                           std::function<void()> accion);

    // Every message shown so far, expected or not.
    const std::vector<Mensaje>& Vistos() const { return vistos_; }
    bool Completo() const { return esperados_.empty(); }

private:
    struct Esperado {
        std::string titulo;
        std::string texto;
        Respuesta respuesta;
        std::function<void()> accion;
    };
    Respuesta Responder(const Mensaje& mensaje);

    std::deque<Esperado> esperados_;
    std::vector<Mensaje> vistos_;
    FuncionMensajes anterior_;
};

} // namespace vadro::pruebas
