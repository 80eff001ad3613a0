#pragma once

#include "soporte/errores.h"

#include "core/core/error_ejecucion.h"
#include "core/trees/arbol.h"

#include <functional>
#include <string>

namespace vadro::pruebas {

// A tree in one line: each node as `campo` gives it, children in brackets, siblings apart by
// commas, top nodes apart by ";": "M[R1[C1R1,C2R1]]".
std::string Forma(
    const Arbol& arbol, const std::function<std::string(const NodoArbol&)>& campo =
                            [](const NodoArbol& n) { return n.Key(); });
// Builds that line's tree, each node with its key as text and its level as image.
void Construir(Arbol& arbol, const std::string& forma);
// The keys in the order of the collection, apart by "|".
std::string ClavesPorIndice(const Arbol& arbol);

} // namespace vadro::pruebas
