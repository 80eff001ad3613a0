#include "core/core/sesion.h"

namespace vadro {

Sesion& SesionActual() {
    static Sesion sesion;
    return sesion;
}

void ReiniciarSesion() {
    Sesion& sesion = SesionActual();
    Servicios servicios = std::move(sesion.servicios);
    std::string directorio = std::move(sesion.DirectorioPrograma);
    sesion = Sesion{};
    sesion.servicios = std::move(servicios);
    sesion.DirectorioPrograma = std::move(directorio);
}

} // namespace vadro
