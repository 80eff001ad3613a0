#pragma once

#include "modelo_prueba.h"
#include "volcado.h"

#include "core/trees/edicion_requerimientos.h"
#include "soporte/prueba_sesion.h"

#include <string>

namespace vadro::pruebas {

inline const std::string kEliminarNodo = "VADRO PROGRAMADOR: eliminar nodo";
inline const std::string kPreguntaEliminar =
    "El elemento selecionado tiene uno o más subnodos. Está seguro que quiere eliminarlo?";

// The requirements window's logic over a fresh session, with shorthand to select by key and to
// read the tree and the working table.
class PruebaEdicion : public PruebaSesion {
protected:
    EdicionRequerimientos ed{SesionActual()};

    void Abrir(Modelo modelo) {
        sesion().modelo = std::move(modelo);
        ed.Abrir();
    }
    NodoArbol* N(const std::string& clave) { return ed.tvwArbol.NodoPorClave(clave); }
    void Sel(const std::string& clave) { ed.tvwArbol.Seleccionar(N(clave)); }
    std::string Claves() { return Forma(ed.tvwArbol); }
    std::string Textos() {
        return Forma(ed.tvwArbol, [](const NodoArbol& n) { return n.Text(); });
    }
    // Each node as key, "#" and tag, or "#-" without one.
    std::string Tags() {
        return Forma(ed.tvwArbol, [](const NodoArbol& n) {
            return n.Key() + "#" + (n.Tag() ? std::to_string(*n.Tag()) : "-");
        });
    }
    NodoEdicion& Reg(const std::string& clave) { return sesion().NodosEdicion(*N(clave)->Tag()); }
    // The weights of a node's record: the width of its row, "/" and its weight.
    std::string Pesos(const std::string& clave) {
        const NodoEdicion& r = Reg(clave);
        return (r.Saaty.Presente() ? std::to_string(r.Saaty.Cota()) : "-") + "/" + r.Peso.Texto();
    }
};

} // namespace vadro::pruebas
