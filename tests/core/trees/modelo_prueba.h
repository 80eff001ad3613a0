#pragma once

#include "core/core/registros.h"

#include <string>
#include <vector>

namespace vadro::pruebas {

// Model records as a loaded file leaves them: counts set, and each node with the description
// "d:" and its name, weight 10, direct score 5 and a row as wide as its sibling set.
NodoIndicador Indicador(const std::string& nombre);
NodoSubcriterio Subcriterio(const std::string& nombre, std::vector<NodoIndicador> indicadores);
NodoCriterio Criterio(const std::string& nombre, std::vector<NodoIndicador> indicadores,
                      std::vector<NodoSubcriterio> subcriterios = {});
NodoRequerimiento Requerimiento(const std::string& nombre, std::vector<NodoCriterio> criterios);
Modelo ModeloCon(std::vector<NodoRequerimiento> requerimientos, const std::string& nombre = "");

} // namespace vadro::pruebas
