#pragma once

#include <string>

namespace vadro::pruebas {

// The questions of the tree windows.
inline const std::string kEliminarNodo = "VADRO PROGRAMADOR: eliminar nodo";
inline const std::string kPreguntaEliminar =
    "El elemento selecionado tiene uno o más subnodos. Está seguro que quiere eliminarlo?";
inline const std::string kMoverNodo = "VADRO PROGRAMADOR: mover nodo";

// The question before a drop under another parent, naming the old and the new parent.
inline std::string PreguntaMover(const std::string& viejo, const std::string& nuevo) {
    return "En caso de haber sido introducidas, se borrarán las matrices de pesos "
           "correspondientes a los nodos:\n- " +
           viejo + "\n- " + nuevo +
           "\n\nEstá usted seguro de querer mover el elemento seleccionado?";
}

} // namespace vadro::pruebas
