#include "core/files/lectura_seccion.h"

#include "core/core/error_ejecucion.h"

#include <cmath>

namespace vadro {

LecturaSeccion::LecturaSeccion(ArchivoEntrada& archivo, std::string indice)
    : archivo_(archivo), indice_(std::move(indice)),
      disponibles_(archivo.NumLineas() + kMargenElementos) {}

ValorLibre LecturaSeccion::Buscar(const std::string& clave) {
    return indice_.empty() ? BuscarValor(archivo_, clave) : BuscarValor(archivo_, indice_ + clave);
}

void LecturaSeccion::Reservar(std::size_t elementos) {
    if (elementos > disponibles_) {
        throw ErrorEjecucion(ErrMemoria);
    }
    disponibles_ -= elementos;
}

ValorLibre LeerCuenta(const ValorLibre& leido) {
    if (leido.EsVacio()) {
        return leido;
    }
    return ValorLibre(leido.Numero());
}

int ParteEntera(const ValorLibre& leido) {
    if (leido.EsVacio()) {
        return 0;
    }
    return AEntero16(std::floor(leido.Numero()));
}

} // namespace vadro
