#pragma once

#include "../core/tabla_funciones.h"
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

// A node of the model: key, name, description, weight and the width of its row.
inline std::string Cabecera(const CabeceraNodo& n) {
    return n.Clave + " '" + n.Nombre + "' '" + n.Descripcion + "' " + n.Peso.Texto() + "/" +
           (n.Saaty.Presente() ? std::to_string(n.Saaty.Cota()) : "-");
}

// The count of a list of the model and its elements in braces.
template <typename T, typename F>
std::string Elementos(const ValorLibre& cuenta, const Arreglo<T>& arreglo, F elemento) {
    std::string texto = cuenta.Texto() + "{";
    for (int i = 1; arreglo.Presente() && i <= arreglo.Cota(); ++i) {
        texto += (i > 1 ? ", " : "") + elemento(arreglo(i));
    }
    return texto + "}";
}

// The requirements of a model as written back, each node as Cabecera gives it, its lists after
// it: criteria "C", subcriteria "S" and indicators "I", which add their function's type and
// units.
inline std::string Escrito(const Modelo& m) {
    const auto indicador = [](const NodoIndicador& i) {
        return Cabecera(i) + " f" + std::to_string(i.Funcion.Tipo) + " '" + i.Funcion.Unidades +
               "'";
    };
    const auto subcriterio = [&](const NodoSubcriterio& s) {
        return Cabecera(s) + " I" + Elementos(s.NumIndicadores, s.Indicadores, indicador);
    };
    const auto criterio = [&](const NodoCriterio& c) {
        return Cabecera(c) + " I" + Elementos(c.NumIndicadores, c.Indicadores, indicador) + " S" +
               Elementos(c.NumSubcriterios, c.Subcriterios, subcriterio);
    };
    return Elementos(m.NumRequerimientos, m.Requerimientos, [&](const NodoRequerimiento& r) {
        return Cabecera(r) + " C" + Elementos(r.NumCriterios, r.Criterios, criterio);
    });
}

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
    // The working tree, each node as key, "#", the row of its record and its weights
    // ("I1C1R1#4 3/10"), or "#-" without a record; then the selected node, the last number
    // drawn for a key, the current row of the working table and the drop target shown, if any.
    std::string Estado() {
        const NodoArbol* elegido = ed.tvwArbol.Seleccionado();
        return Forma(ed.tvwArbol,
                     [this](const NodoArbol& n) {
                         return n.Key() + "#" +
                                (n.Tag() ? std::to_string(*n.Tag()) + " " + Pesos(n.Key()) : "-");
                     }) +
               " | selected " + (elegido ? elegido->Key() : "none") + " | key " +
               std::to_string(ed.ContadorClaves) + " | row " +
               std::to_string(sesion().NodoEdicionActual) +
               (ed.tvwArbol.ResaltadoDestino() ? " | drop " + ed.tvwArbol.ResaltadoDestino()->Key()
                                               : "");
    }
    // Selector i: its names and its keys with the chosen ones in brackets, its counter and its
    // label; then "locked" when its list takes no typing, its text where it is not the chosen
    // name, and its mark.
    std::string Selector(int i) {
        const SelectorNivel& s = ed.Selector(i);
        std::string nombres, claves, elegido;
        for (std::size_t k = 0; k < s.Nombres.size(); ++k) {
            const bool este = static_cast<int>(k) + 1 == s.Seleccion;
            elegido = este ? s.Nombres[k] : elegido;
            nombres += (k > 0 ? " " : "") + (este ? "[" + s.Nombres[k] + "]" : s.Nombres[k]);
        }
        for (const std::string& clave : s.Claves) {
            claves += (claves.empty() ? "" : "|") +
                      (clave == s.ClaveElegida() ? "[" + clave + "]" : clave);
        }
        return nombres + " (" + claves + ") " + std::to_string(s.Contador) + " '" + s.Etiqueta +
               "'" + (s.Bloqueada ? " locked" : "") +
               (s.Texto == elegido ? "" : " text '" + s.Texto + "'") +
               (s.Marca.empty() ? "" : " mark " + s.Marca);
    }
    // The enabled states of counters and lists, one digit each, and "f" for the function
    // button.
    std::string Habilitados() {
        std::string contadores, listas;
        for (int i = 1; i <= 4; ++i) {
            contadores += ed.Selector(i).ContadorHabilitado ? "1" : "0";
            listas += ed.Selector(i).ListaHabilitada ? "1" : "0";
        }
        return contadores + "|" + listas + (ed.FuncionHabilitada ? "|f" : "");
    }
    // Works the steps of a data file on the logic: each names an operation and its arguments
    // and gives the working tree after it as Estado does, or names a view of the state and
    // gives it. An operation on the selection first selects the node it names, if any (by key,
    // '' for none). The questions are answered in turn by `respuestas`.
    void Pasos(const std::string& datos, std::deque<Respuesta> respuestas = {}) {
        const auto nodo = [this](const std::string& clave) {
            return clave.empty() ? nullptr : N(clave);
        };
        const auto hacer = [this](std::function<void(const Argumentos&)> operacion) -> Funcion {
            return [this, operacion](const Argumentos& a) {
                operacion(a);
                return Estado();
            };
        };
        const auto sobre = [&](std::function<void()> operacion) {
            return hacer([&, operacion](const Argumentos& a) {
                if (!a.empty()) {
                    ed.tvwArbol.Seleccionar(nodo(a.at(0)));
                }
                operacion();
            });
        };
        const auto entero = [](const Argumentos& a) {
            return static_cast<int16_t>(std::stoi(a.at(0)));
        };
        Tabular(
            datos,
            {{"Sel", sobre([] {})},
             {"SoltarRaton", hacer([&](const Argumentos& a) { ed.SoltarRaton(nodo(a.at(0))); })},
             {"AñadirRequerimiento", sobre([&] { ed.AñadirRequerimiento("Requerimiento"); })},
             {"AñadirCriterio", sobre([&] { ed.AñadirCriterio("Criterio"); })},
             {"AñadirSubcriterio", sobre([&] { ed.AñadirSubcriterio("Subcriterio"); })},
             {"AñadirIndicador", sobre([&] { ed.AñadirIndicador("Indicador"); })},
             {"InsertarAntes", sobre([&] { ed.InsertarAntes(); })},
             {"InsertarDespues", sobre([&] { ed.InsertarDespues(); })},
             {"Eliminar", sobre([&] { ed.Eliminar(); })},
             {"Copiar", sobre([&] { ed.Copiar(); })},
             {"Pegar", sobre([&] { ed.Pegar(); })},
             {"Reordenar", sobre([&] { ed.Reordenar(); })},
             {"CopiaNodo", hacer([&](const Argumentos& a) {
                  ed.CopiaNodo(ed.tvwArbol, N(a.at(0)), ed.tvwArbol, N(a.at(1)));
              })},
             {"ContadorClaves", hacer([&](const Argumentos& a) { ed.ContadorClaves = entero(a); })},
             {"SiguienteNodoEdicion",
              hacer([&](const Argumentos& a) { ed.SiguienteNodoEdicion = entero(a); })},
             {"Arrastrar", hacer([&](const Argumentos& a) { Arrastrar(a.at(0), a.at(1)); })},
             {"ArrastrarSobre", hacer([&](const Argumentos& a) { ed.ArrastrarSobre(N(a.at(0))); })},
             {"Soltar", hacer([&](const Argumentos&) { ed.Soltar(); })},
             {"Quitar", hacer([&](const Argumentos& a) { ed.tvwArbol.Quitar(N(a.at(0))); })},
             {"Tecla",
              [&](const Argumentos& a) {
                  const PeticionTecla peticion = ed.Tecla(entero(a));
                  return (peticion == PeticionTecla::EditarEtiqueta ? "edit the label | " : "") +
                         Estado();
              }},
             {"Caracter", hacer([&](const Argumentos& a) { ed.Caracter(entero(a)); })},
             {"CambiarDescripcion",
              hacer([&](const Argumentos& a) { ed.CambiarDescripcion(a.at(0)); })},
             {"Renombrar",
              [&](const Argumentos& a) {
                  return std::string(ed.Renombrar(a.at(0)) ? "accepted" : "refused");
              }},
             {"ClicFuncion",
              [&](const Argumentos&) {
                  const std::optional<std::string> indicador = ed.ClicFuncion();
                  return (indicador ? "'" + *indicador + "'" : "none") + " | row " +
                         std::to_string(sesion().NodoEdicionActual);
              }},
             {"Arrastre",
              [this](const Argumentos&) {
                  return "level " + std::to_string(ed.NivelArrastre) + ", current " +
                         (ed.NodoActual ? ed.NodoActual->Key() : "none");
              }},
             {"SubirContador", hacer([&](const Argumentos& a) { ed.SubirContador(entero(a)); })},
             {"BajarContador", hacer([&](const Argumentos& a) { ed.BajarContador(entero(a)); })},
             {"EliminarSubcriteriosDelNodo",
              hacer([&](const Argumentos& a) { ed.EliminarSubcriteriosDelNodo(N(a.at(0))); })},
             {"LlamaLlenarRequerimientos",
              [&](const Argumentos&) {
                  ed.LlamaLlenarRequerimientos();
                  return "next row " + std::to_string(ed.SiguienteNodoEdicion) + " | " +
                         Escrito(sesion().modelo);
              }},
             {"Abrir", hacer([&](const Argumentos&) { Abrir(); })},
             {"Permiso", hacer([&](const Argumentos& a) {
                  sesion().modelo.ConSubcriterios = a.at(0) == "yes";
              })},
             {"AbrirLista", hacer([&](const Argumentos& a) { ed.AbrirLista(entero(a)); })},
             {"ElegirEnLista",
              hacer([&](const Argumentos& a) { ed.ElegirEnLista(entero(a), std::stoi(a.at(1))); })},
             {"EscribirEnLista",
              hacer([&](const Argumentos& a) { ed.EscribirEnLista(entero(a), a.at(1)); })},
             {"Habilitados", [this](const Argumentos&) { return Habilitados(); }},
             {"Posiciones",
              [this](const Argumentos&) {
                  std::string texto;
                  for (const int posicion : ed.UltimasPosiciones) {
                      texto += (texto.empty() ? "" : " ") + std::to_string(posicion);
                  }
                  return texto;
              }},
             {"Estado", [this](const Argumentos&) { return Estado(); }},
             {"Textos", [this](const Argumentos&) { return Textos(); }},
             {"Copia", [this](const Argumentos&) { return Forma(ed.tvwCopia); }},
             {"Selector", [&](const Argumentos& a) { return Selector(entero(a)); }},
             {"Registro",
              [this](const Argumentos& a) {
                  const NodoEdicion& r = Reg(a.at(0));
                  return "'" + r.Descripcion + "'" +
                         (r.Calculo == CalculoDirecto ? " direct" : " pairwise") +
                         (r.PesosBorrados ? ", weights erased" : "");
              }},
             {"Marcos",
              [this](const Argumentos&) {
                  return "'" + ed.Descripcion + "' " + ed.TitulosMarcos[0] + "|" +
                         ed.TitulosMarcos[1] + "|" + ed.TitulosMarcos[2] + "|" +
                         ed.TitulosMarcos[3];
              }}},
            std::move(respuestas));
    }
};

} // namespace vadro::pruebas
