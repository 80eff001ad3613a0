#include "soporte/guion_mensajes.h"

#include <gtest/gtest.h>

namespace vadro::pruebas {

GuionMensajes::GuionMensajes() {
    anterior_ = InstalarMensajes([this](const Mensaje& mensaje) { return Responder(mensaje); });
}

GuionMensajes::~GuionMensajes() {
    InstalarMensajes(std::move(anterior_));
    for (const auto& falta : esperados_) {
        ADD_FAILURE() << "Expected message never shown: [" << falta.titulo << "] " << falta.texto;
    }
}

GuionMensajes& GuionMensajes::Esperar(const std::string& titulo, const std::string& texto,
                                      Respuesta respuesta) {
    return Esperar(titulo, texto, respuesta, nullptr);
}

GuionMensajes& GuionMensajes::Esperar(const std::string& titulo, const std::string& texto,
                                      Respuesta respuesta, std::function<void()> accion) {
    esperados_.push_back({titulo, texto, respuesta, std::move(accion)});
    return *this;
}

Respuesta GuionMensajes::Responder(const Mensaje& mensaje) {
    vistos_.push_back(mensaje);
    if (esperados_.empty()) {
        ADD_FAILURE() << "Unexpected message: [" << mensaje.titulo << "] " << mensaje.texto;
        // A retry box answered by its first button would ask again for ever.
        return mensaje.botones == Botones::ReintentarCancelar ? Respuesta::Cancelar
                                                              : PrimerBoton(mensaje.botones);
    }
    Esperado esperado = std::move(esperados_.front());
    esperados_.pop_front();
    EXPECT_EQ(mensaje.titulo, esperado.titulo);
    EXPECT_EQ(mensaje.texto, esperado.texto);
    if (esperado.accion) {
        esperado.accion();
    }
    return esperado.respuesta;
}

} // namespace vadro::pruebas
