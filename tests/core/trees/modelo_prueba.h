#pragma once

#include "core/core/registros.h"

#include <string>
#include <vector>

namespace vadro::pruebas {

// Model records as a loaded file leaves them: counts set, each node with the description
// "d:" and its name, a weight, a direct score, and a row of its sibling set's matrix of the
// right size.
NodoIndicador Indicador(const std::string& nombre, double peso = 10);
NodoSubcriterio Subcriterio(const std::string& nombre, std::vector<NodoIndicador> indicadores,
                            double peso = 10);
NodoCriterio Criterio(const std::string& nombre, std::vector<NodoIndicador> indicadores,
                      std::vector<NodoSubcriterio> subcriterios = {}, double peso = 10);
NodoRequerimiento Requerimiento(const std::string& nombre, std::vector<NodoCriterio> criterios,
                                double peso = 10);
Modelo ModeloCon(std::vector<NodoRequerimiento> requerimientos, const std::string& nombre = "");

} // namespace vadro::pruebas
