#pragma once

#include "mensajes_arbol.h"
#include "modelo_prueba.h"
#include "volcado.h"

#include "core/trees/edicion_componentes.h"
#include "core/trees/edicion_requerimientos.h"
#include "soporte/prueba_sesion.h"

#include <string>
#include <vector>

namespace vadro::pruebas {

using Lista = std::vector<std::string>;

// A tree window's logic over a fresh session, with shorthand to select by key and to read the
// tree.
template <typename Edicion> class PruebaArbol : public PruebaSesion {
protected:
    Edicion ed{SesionActual()};

    NodoArbol* N(const std::string& clave) { return ed.tvwArbol.NodoPorClave(clave); }
    void Sel(const std::string& clave) { ed.tvwArbol.Seleccionar(N(clave)); }
    std::string Claves() { return Forma(ed.tvwArbol); }
    std::string Textos() {
        return Forma(ed.tvwArbol, [](const NodoArbol& n) { return n.Text(); });
    }
    // The deletion of the selected node, the question of a node with children answered so.
    void Eliminar(Respuesta respuesta) {
        mensajes.Esperar(kEliminarNodo, kPreguntaEliminar, respuesta);
        ed.Eliminar();
    }
    // A drag of the node onto the target, up to the drop.
    void Arrastrar(const std::string& nodo, const std::string& destino) {
        ed.PulsarRaton(N(nodo));
        ed.MoverRaton(true);
        ed.ArrastrarSobre(N(nodo));
        ed.ArrastrarSobre(N(destino));
    }
};

// The requirements window's logic, with shorthand to read the working table too.
class PruebaEdicion : public PruebaArbol<EdicionRequerimientos> {
protected:
    // Opened, the tree is M 1, R1 2, C1R1 3 with the indicators i1 to i3 at 4 to 6, C2R1 7 (with
    // the subcriterion S1C2R1 8 if asked) and R2.
    void Abrir(bool conSubcriterio = false, bool permiso = false) {
        Modelo m = ModeloCon(
            {Requerimiento("A",
                           {Criterio("C1", {Indicador("i1"), Indicador("i2"), Indicador("i3")}),
                            Criterio("C2", {},
                                     conSubcriterio ? std::vector{Subcriterio("S", {})}
                                                    : std::vector<NodoSubcriterio>{})}),
             Requerimiento("B", {})});
        m.Requerimientos(1).PesoAuxiliar = 0.1;
        m.ConSubcriterios = permiso;
        Abrir(m);
    }
    void Abrir(Modelo modelo) {
        sesion().modelo = std::move(modelo);
        ed.Abrir();
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
