#pragma once

#include "core/core/registros.h"
#include "core/trees/arbol.h"

#include <string>

namespace vadro {

// The levels of the requirements tree, by the first letter of a key.
enum NivelRequerimientos : int {
    NivelNinguno = 0,
    NivelRequerimiento = 1,
    NivelCriterio = 2,
    NivelSubcriterio = 3,
    NivelIndicador = 4,
    NivelModelo = 5,
};

// The key letter of a level ("R", "C", "S", "I", "M", "P", "A", "E"); empty for level 0.
std::string LetraNivel(int nivel);

// The image of a level's nodes: the level itself for the five levels of this tree, else none.
int ImagenNivel(int nivel);

// The text a new node of the level bears: "Requerimiento", "Criterio", "Subcriterio",
// "Indicador", or for the root "Modelo " and the model's name in lower case.
std::string TextoNivel(int nivel, const Modelo& modelo);

// True if any child of the node is an indicator, or a subcriterion.
bool TieneIndicadores(const NodoArbol* nodo);
bool TieneSubcriterios(const NodoArbol* nodo);

// Whether a clipboard or a dragged node of level `nivel` may go under `destino`. With no
// target only a requirement may be pasted.
bool DestinoPermitido(int nivel, const NodoArbol* destino);

} // namespace vadro
