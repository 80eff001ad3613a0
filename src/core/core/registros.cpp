#include "core/core/registros.h"

namespace vadro {

bool HaySubcriterios(const Modelo& modelo) {
    bool hay = false;
    const int requerimientos = modelo.NumRequerimientos.Cuenta();
    for (int r = 1; r <= requerimientos; ++r) {
        const NodoRequerimiento& requerimiento = modelo.Requerimientos(r);
        const int criterios = requerimiento.NumCriterios.Cuenta();
        for (int c = 1; c <= criterios; ++c) {
            if (requerimiento.Criterios(c).NumSubcriterios.Cuenta() > 0) {
                hay = true;
            }
        }
    }
    return hay;
}

int NivelNodo(const std::string& clave) {
    if (clave.empty()) {
        return 0;
    }
    switch (clave.front()) {
    case 'R':
        return 1;
    case 'C':
        return 2;
    case 'S':
        return 3;
    case 'I':
        return 4;
    case 'M':
        return 5;
    case 'P':
        return 6;
    case 'A':
        return 7;
    case 'E':
        return 8;
    default:
        return 0;
    }
}

} // namespace vadro
