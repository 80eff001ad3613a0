#include "core/trees/niveles.h"

#include "core/core/codigo_pagina.h"

#include <algorithm>

namespace vadro {

std::string LetraNivel(int nivel) {
    static const char* const letras[] = {"", "R", "C", "S", "I", "M", "P", "A", "E"};
    return nivel >= 1 && nivel <= 8 ? letras[nivel] : "";
}

int ImagenNivel(int nivel) {
    return nivel >= 1 && nivel <= NivelModelo ? nivel : 0;
}

std::string TextoNivel(int nivel, const Modelo& modelo) {
    switch (nivel) {
    case NivelRequerimiento:
        return "Requerimiento";
    case NivelCriterio:
        return "Criterio";
    case NivelSubcriterio:
        return "Subcriterio";
    case NivelIndicador:
        return "Indicador";
    case NivelModelo:
        return "Modelo " + EnMinusculas(modelo.Nombre);
    default:
        return "";
    }
}

namespace {

bool TieneHijoDeNivel(const NodoArbol* nodo, int nivel) {
    const auto& hijos = nodo->Hijos();
    return std::any_of(hijos.begin(), hijos.end(),
                       [nivel](const NodoArbol* hijo) { return NivelNodo(hijo) == nivel; });
}

} // namespace

bool TieneIndicadores(const NodoArbol* nodo) {
    return TieneHijoDeNivel(nodo, NivelIndicador);
}

bool TieneSubcriterios(const NodoArbol* nodo) {
    return TieneHijoDeNivel(nodo, NivelSubcriterio);
}

bool DestinoPermitido(int nivel, const NodoArbol* destino) {
    if (destino == nullptr) {
        return nivel == NivelRequerimiento;
    }
    const int nivelDestino = NivelNodo(destino);
    switch (nivel) {
    case NivelRequerimiento:
        return nivelDestino == NivelModelo;
    case NivelSubcriterio:
        return nivelDestino == NivelCriterio && !TieneIndicadores(destino);
    case NivelIndicador:
        return nivelDestino == NivelSubcriterio ||
               (nivelDestino == NivelCriterio && !TieneSubcriterios(destino));
    default: // a criterion, and any other level, goes one level below its target
        return nivelDestino + 1 == nivel;
    }
}

} // namespace vadro
