#include "volcado.h"

namespace vadro::pruebas {

namespace {

std::string Rama(const NodoArbol& nodo, const std::function<std::string(const NodoArbol&)>& campo) {
    std::string texto = campo(nodo);
    if (nodo.NumHijos() > 0) {
        texto += "[";
        for (const NodoArbol* hijo : nodo.Hijos()) {
            texto += Rama(*hijo, campo) + (hijo == nodo.UltimoHijo() ? "" : ",");
        }
        texto += "]";
    }
    return texto;
}

} // namespace

std::string Forma(const Arbol& arbol, const std::function<std::string(const NodoArbol&)>& campo) {
    std::string texto;
    for (const NodoArbol* raiz : arbol.Raices()) {
        texto += (texto.empty() ? "" : " ") + Rama(*raiz, campo);
    }
    return texto;
}

std::string ClavesPorIndice(const Arbol& arbol) {
    std::string texto;
    for (int i = 1; i <= arbol.Cuenta(); ++i) {
        texto += (i > 1 ? "|" : "") + arbol.Nodo(i)->Key();
    }
    return texto;
}

} // namespace vadro::pruebas
