#include "core/reports/resumen.h"

#include "core/core/comunes.h"
#include "core/trees/arbol_modelo.h"
#include "core/trees/edicion_componentes.h"

namespace vadro {

void LlenarResumenRequerimientos(Arbol& arbol, const Modelo& modelo) {
    LlenarArbol(arbol, modelo, true, false, false);
}

void LlenarResumenComponentes(Arbol& arbol, const Modelo& modelo) {
    arbol.Vaciar();
    for (const FilaArbol& fila : LlenarArbolComponentes(modelo, true)) {
        NodoArbol* padre = fila.clavePadre.empty() ? nullptr : arbol.NodoPorClave(fila.clavePadre);
        const int nivel = padre == nullptr ? NivelComponente : NivelSubcomponente;
        NodoArbol* nodo = arbol.Añadir(padre, Relacion::UltimoHijo, fila.clave, fila.texto,
                                       ImagenComponentes(nivel));
        arbol.Expandir(nodo);
    }
}

std::vector<std::string> LineasResumenEtapas(const Modelo& modelo) {
    return LlenarEtapas(modelo);
}

} // namespace vadro
