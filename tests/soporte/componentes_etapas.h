#pragma once

#include "core/core/registros.h"

#include <string>
#include <utility>
#include <vector>

namespace vadro::pruebas {

using ListaComponentes = std::vector<std::pair<std::string, std::vector<std::string>>>;

// Components by name with the names of their options, counts as a loaded file sets them; a
// component without options keeps its array absent.
inline void PonerComponentes(Modelo& modelo, const ListaComponentes& componentes) {
    modelo.NumComponentes = static_cast<int>(componentes.size());
    modelo.Componentes.Redimensionar(static_cast<int>(componentes.size()));
    for (std::size_t c = 0; c < componentes.size(); ++c) {
        const auto& [nombre, opciones] = componentes[c];
        Componente& componente = modelo.Componentes(static_cast<int>(c) + 1);
        componente.Nombre = nombre;
        componente.NumSubcomponentes = static_cast<int16_t>(opciones.size());
        if (!opciones.empty()) {
            componente.Subcomponentes.Redimensionar(static_cast<int>(opciones.size()));
        }
        for (std::size_t o = 0; o < opciones.size(); ++o) {
            componente.Subcomponentes(static_cast<int>(o) + 1).Nombre = opciones[o];
        }
    }
}

inline void PonerEtapas(Modelo& modelo, const std::vector<std::string>& etapas) {
    modelo.NumEtapas = static_cast<int>(etapas.size());
    modelo.Etapas.Redimensionar(static_cast<int>(etapas.size()));
    for (std::size_t e = 0; e < etapas.size(); ++e) {
        modelo.Etapas(static_cast<int>(e) + 1) = etapas[e];
    }
}

} // namespace vadro::pruebas
