#include "core/core/mensajes.h"

#include "core/core/sesion.h"

#include <utility>

#include <iostream>

namespace vadro {

Respuesta PrimerBoton(Botones botones) {
    switch (botones) {
    case Botones::SiNo:
    case Botones::SiNoCancelar:
        return Respuesta::Si;
    case Botones::ReintentarCancelar:
        return Respuesta::Reintentar;
    default:
        return Respuesta::Aceptar;
    }
}

Respuesta MsgBox(const std::string& texto, Botones botones, Icono icono,
                 const std::string& titulo) {
    const Mensaje mensaje{texto, botones, icono, titulo};
    auto& funcion = SesionActual().servicios.mensajes;
    if (funcion) {
        return funcion(mensaje);
    }
    std::cerr << titulo << ": " << texto << '\n';
    return PrimerBoton(botones);
}

FuncionMensajes InstalarMensajes(FuncionMensajes funcion) {
    return std::exchange(SesionActual().servicios.mensajes, std::move(funcion));
}

} // namespace vadro
