#pragma once

#include "core/core/registros.h"
#include "core/trees/arbol.h"

#include <string>
#include <vector>

namespace vadro {

// The summary's trees and list, read only: what the window of the position "Resumen" shows.

// The requirements: the root "Modelo " and the name in lower case, then every node as
// "(key) name", without weights or functions, all expanded.
void LlenarResumenRequerimientos(Arbol& arbol, const Modelo& modelo);

// The components as "(Co1) name", each with its subcomponents "(Sc1Co1) name" under it, with
// the images of the components window, all expanded.
void LlenarResumenComponentes(Arbol& arbol, const Modelo& modelo);

// The stages, one line each.
std::vector<std::string> LineasResumenEtapas(const Modelo& modelo);

} // namespace vadro
