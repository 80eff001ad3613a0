#pragma once

#include "core/core/registros.h"
#include "core/trees/arbol.h"

#include <string>

namespace vadro {

// Fills a tree with the requirements of a model: the root "M" ("Modelo " and the name in lower
// case), then, depth first, every requirement, its criteria, each criterion's subcriteria with
// their indicators and then its direct indicators, keyed by position leaf first ("I3S1C2R1").
// Every node is expanded. `conClave` puts "(key) " before a name, `conPeso` puts " (weight %)"
// after it, `conFuncion` hangs under each indicator a line with its C, K and P.
void LlenarArbol(Arbol& arbol, const Modelo& modelo, bool conClave, bool conPeso, bool conFuncion);


// Removes every subcriterion below `nodo` in a working tree, its indicators going to the end of
// the subcriterion's parent, last first. No weight is touched.
void EliminarSubcriteriosDelNodo(Arbol& arbol, NodoArbol* nodo);

// Hangs the indicators of every subcriterion of the model directly under its criterion, in
// order, rekeyed "I<n>C<c>R<r>", and leaves no subcriterion. Weights stay as they were.
void EliminarSubcriterios(Modelo& modelo);

} // namespace vadro
