#include "volcado.h"

#include "core/core/comunes.h"
#include "core/core/registros.h"

#include <vector>

namespace vadro::pruebas {

namespace {

std::string Rama(const NodoArbol& nodo, const std::function<std::string(const NodoArbol&)>& campo) {
    std::string texto = campo(nodo);
    for (const NodoArbol* hijo : nodo.Hijos()) {
        texto += Unir({hijo == nodo.PrimerHijo() ? "[" : ",", Rama(*hijo, campo)});
    }
    return texto + (nodo.NumHijos() > 0 ? "]" : "");
}

} // namespace

std::string Forma(const Arbol& arbol, const std::function<std::string(const NodoArbol&)>& campo) {
    std::string texto;
    for (const NodoArbol* raiz : arbol.Raices()) {
        texto += Unir({texto.empty() ? "" : ";", Rama(*raiz, campo)});
    }
    return texto;
}

void Construir(Arbol& arbol, const std::string& forma) {
    std::vector<NodoArbol*> padres{nullptr};
    NodoArbol* ultimo = nullptr;
    std::string clave;
    const auto cerrar = [&] {
        if (!clave.empty()) {
            ultimo =
                arbol.Añadir(padres.back(), Relacion::UltimoHijo, clave, clave, NivelNodo(clave));
        }
        clave.clear();
    };
    for (const char c : forma) {
        if (c == '[' || c == ']' || c == ',' || c == ';') {
            cerrar();
            if (c == '[') {
                padres.push_back(ultimo);
            } else if (c == ']') {
                padres.pop_back();
            }
        } else {
            clave += c;
        }
    }
    cerrar();
}

std::string ClavesPorIndice(const Arbol& arbol) {
    std::string texto;
    for (int i = 1; i <= arbol.Cuenta(); ++i) {
        texto += (i > 1 ? "|" : "") + arbol.Nodo(i)->Key();
    }
    return texto;
}

} // namespace vadro::pruebas
