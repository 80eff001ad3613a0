#pragma once

#include "../core/tabla_funciones.h"
#include "core/core/comunes.h"
#include "modelo_prueba.h"
#include "volcado.h"

#include "core/trees/edicion_componentes.h"
#include "core/trees/edicion_requerimientos.h"
#include "soporte/prueba_sesion.h"

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <vector>

namespace vadro::pruebas {

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

// The components of a model as written back: key, name and options.
inline std::string Escritos(const Modelo& m) {
    return Elementos(m.NumComponentes, m.Componentes, [](const Componente& c) {
        return c.Clave + " '" + c.Nombre + "' " +
               Elementos(ValorLibre(c.NumSubcomponentes), c.Subcomponentes,
                         [](const Subcomponente& o) { return o.Clave + " '" + o.Nombre + "'"; });
    });
}

// The entries of a tree menu that show, "~" before a paste that is off, and the deletion's
// caption when its entry shows.
inline std::string Entradas(const MenuArbol& m) {
    std::string texto;
    for (const auto& [visible, nombre] : {std::pair{m.InsertarVisible, "Insertar"},
                                          {m.Separador1Visible, "|"},
                                          {m.EliminarVisible, "Eliminar"},
                                          {m.AñadirRVisible, "AñadirR"},
                                          {m.AñadirCVisible, "AñadirC"},
                                          {m.AñadirSVisible, "AñadirS"},
                                          {m.AñadirIVisible, "AñadirI"},
                                          {m.CopiarVisible, "Copiar"},
                                          {m.RenombrarVisible, "Renombrar"},
                                          {m.Separadores23Visible, "||"}}) {
        texto += visible ? std::string(nombre) + " " : "";
    }
    texto += m.PegarVisible ? (m.PegarHabilitado ? "Pegar" : "~Pegar") : "";
    return texto + (m.EliminarVisible ? ", '" + m.EliminarTitulo + "'" : "");
}

// The same for the components menu, whose deletion caption is set even when hidden.
inline std::string Entradas(const MenuArbolComponentes& m) {
    std::string texto;
    for (const auto& [visible, nombre] : {std::pair{m.InsertarVisible, "Insertar"},
                                          {m.EliminarVisible, "Eliminar"},
                                          {m.AñadirCompVisible, "AñadirComp"},
                                          {m.AñadirScVisible, "AñadirSc"},
                                          {m.CopiarVisible, "Copiar"},
                                          {m.RenombrarVisible, "Renombrar"}}) {
        texto += visible ? std::string(nombre) + " " : "";
    }
    texto += m.PegarVisible ? (m.PegarHabilitado ? "Pegar" : "~Pegar") : "";
    return texto + ", '" + m.EliminarTitulo + "'";
}

// A tree window's logic over a fresh session, with shorthand to select by key and to read the
// tree, and the steps both trees share.
template <typename Edicion> class PruebaArbol : public PruebaSesion {
protected:
    Edicion ed{SesionActual()};

    // The state after an operation, as each tree's tests read it.
    virtual std::string Estado() = 0;

    NodoArbol* N(const std::string& clave) { return ed.tvwArbol.NodoPorClave(clave); }
    // The node of a step's argument: by key, '' for none.
    NodoArbol* Nodo(const std::string& clave) { return clave.empty() ? nullptr : N(clave); }
    std::string Textos() {
        return Forma(ed.tvwArbol, [](const NodoArbol& n) { return n.Text(); });
    }
    // A drag of the node onto the target, up to the drop.
    void Arrastrar(const std::string& nodo, const std::string& destino) {
        ed.PulsarRaton(N(nodo));
        ed.MoverRaton(true);
        ed.ArrastrarSobre(N(nodo));
        ed.ArrastrarSobre(N(destino));
    }
    // The selected node and the last number drawn for a key; the drop target shown, if any.
    std::string Seleccion() {
        const NodoArbol* elegido = ed.tvwArbol.Seleccionado();
        return " | selected " + (elegido ? elegido->Key() : "none") + " | key " +
               std::to_string(ed.ContadorClaves);
    }
    std::string Destino() {
        const NodoArbol* destino = ed.tvwArbol.ResaltadoDestino();
        return destino ? " | drop " + destino->Key() : "";
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
    // An operation whose outcome is the state after it.
    Funcion Hacer(std::function<void(const Argumentos&)> operacion) {
        return [this, operacion](const Argumentos& a) {
            operacion(a);
            return Estado();
        };
    }
    // An operation on the selection, which the step may first move to the node it names.
    Funcion Sobre(std::function<void(const Argumentos&)> operacion) {
        return Hacer([this, operacion](const Argumentos& a) {
            if (!a.empty()) {
                ed.tvwArbol.Seleccionar(Nodo(a.at(0)));
            }
            operacion(a);
        });
    }
    static int16_t Entero(const Argumentos& a, std::size_t i = 0) {
        return static_cast<int16_t>(std::stoi(a.at(i)));
    }
    // Works the steps of a data file on the logic: each names an operation and its arguments
    // and gives the state after it, or names a view of the state and gives it. The window's own
    // operations come in `propias`; the questions are answered in turn by `respuestas`.
    void Recorrer(const std::string& datos, std::map<std::string, Funcion> propias,
                  std::deque<Respuesta> respuestas) {
        std::map<std::string, Funcion> operaciones = {
            {"Sel", Sobre([](const Argumentos&) {})},
            {"SoltarRaton", Hacer([this](const Argumentos& a) { ed.SoltarRaton(Nodo(a.at(0))); })},
            {"InsertarAntes", Sobre([this](const Argumentos&) { ed.InsertarAntes(); })},
            {"InsertarDespues", Sobre([this](const Argumentos&) { ed.InsertarDespues(); })},
            {"Eliminar", Sobre([this](const Argumentos&) { ed.Eliminar(); })},
            {"Copiar", Sobre([this](const Argumentos&) { ed.Copiar(); })},
            {"Pegar", Sobre([this](const Argumentos&) { ed.Pegar(); })},
            {"Reordenar", Sobre([this](const Argumentos&) { ed.Reordenar(); })},
            {"ContadorClaves",
             Hacer([this](const Argumentos& a) { ed.ContadorClaves = Entero(a); })},
            {"Arrastrar", Hacer([this](const Argumentos& a) { Arrastrar(a.at(0), a.at(1)); })},
            {"ArrastrarSobre",
             Hacer([this](const Argumentos& a) { ed.ArrastrarSobre(N(a.at(0))); })},
            {"Soltar", Hacer([this](const Argumentos&) { ed.Soltar(); })},
            {"Quitar", Hacer([this](const Argumentos& a) { ed.tvwArbol.Quitar(N(a.at(0))); })},
            {"Vaciar", Hacer([this](const Argumentos&) { ed.tvwArbol.Vaciar(); })},
            {"Caracter", Hacer([this](const Argumentos& a) { ed.Caracter(Entero(a)); })},
            {"SubirContador", Hacer([this](const Argumentos& a) { ed.SubirContador(Entero(a)); })},
            {"BajarContador", Hacer([this](const Argumentos& a) { ed.BajarContador(Entero(a)); })},
            {"AbrirLista", Hacer([this](const Argumentos& a) { ed.AbrirLista(Entero(a)); })},
            {"ElegirEnLista",
             Hacer([this](const Argumentos& a) { ed.ElegirEnLista(Entero(a), Entero(a, 1)); })},
            {"EscribirEnLista",
             Hacer([this](const Argumentos& a) { ed.EscribirEnLista(Entero(a), a.at(1)); })},
            {"Tecla",
             [this](const Argumentos& a) {
                 const PeticionTecla peticion = ed.Tecla(Entero(a));
                 return (peticion == PeticionTecla::EditarEtiqueta ? "edit the label | " : "") +
                        Estado();
             }},
            {"Renombrar",
             [this](const Argumentos& a) {
                 return std::string(ed.Renombrar(a.at(0)) ? "accepted" : "refused");
             }},
            {"Menu",
             [this](const Argumentos& a) { return Entradas(ed.MenuContextual(Nodo(a.at(0)))); }},
            {"Arrastre",
             [this](const Argumentos&) {
                 return "level " + std::to_string(ed.NivelArrastre) + ", current " +
                        (ed.NodoActual ? ed.NodoActual->Key() : "none") + ", copied level " +
                        std::to_string(ed.NivelCopia);
             }},
            {"Habilitados",
             [this](const Argumentos&) {
                 std::string contadores, listas;
                 for (const SelectorNivel& s : ed.Selectores) {
                     contadores += s.ContadorHabilitado ? "1" : "0";
                     listas += s.ListaHabilitada ? "1" : "0";
                 }
                 if constexpr (requires { ed.FuncionHabilitada; }) {
                     listas += ed.FuncionHabilitada ? "|f" : "";
                 }
                 return contadores + "|" + listas;
             }},
            {"Marcos",
             [this](const Argumentos&) {
                 std::string texto;
                 if constexpr (requires { ed.Descripcion; }) {
                     texto = "'" + ed.Descripcion + "' ";
                 }
                 for (const std::string& titulo : ed.TitulosMarcos) {
                     texto += (&titulo == &ed.TitulosMarcos.front() ? "" : "|") + titulo;
                 }
                 return texto;
             }},
            {"Selector", [this](const Argumentos& a) { return Selector(Entero(a)); }},
            {"Estado", [this](const Argumentos&) { return Estado(); }},
            {"Textos", [this](const Argumentos&) { return Textos(); }},
            {"Copia", [this](const Argumentos&) { return Forma(ed.tvwCopia); }},
        };
        propias.merge(operaciones);
        Tabular(datos, propias, std::move(respuestas));
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
    NodoEdicion& Reg(const std::string& clave) { return sesion().NodosEdicion(*N(clave)->Tag()); }
    // The weights of a node's record: the width of its row, "/" and its weight.
    std::string Pesos(const std::string& clave) {
        const NodoEdicion& r = Reg(clave);
        return (r.Saaty.Presente() ? std::to_string(r.Saaty.Cota()) : "-") + "/" + r.Peso.Texto();
    }
    // The working tree, each node as key, "#", the row of its record and its weights
    // ("I1C1R1#4 3/10"), or "#-" without a record; then the selection and the key counter, the
    // current row of the working table and the drop target, if any.
    std::string Estado() override {
        return Forma(ed.tvwArbol,
                     [this](const NodoArbol& n) {
                         return n.Key() + "#" +
                                (n.Tag() ? std::to_string(*n.Tag()) + " " + Pesos(n.Key()) : "-");
                     }) +
               Seleccion() + " | row " + std::to_string(sesion().NodoEdicionActual) + Destino();
    }
    // Works the steps of a data file, with the operations of the requirements tree: additions
    // with their default texts, the working table and the write-back.
    void Pasos(const std::string& datos, std::deque<Respuesta> respuestas = {}) {
        Recorrer(datos,
                 {{"AñadirRequerimiento",
                   Sobre([this](const Argumentos&) { ed.AñadirRequerimiento("Requerimiento"); })},
                  {"AñadirCriterio",
                   Sobre([this](const Argumentos&) { ed.AñadirCriterio("Criterio"); })},
                  {"AñadirSubcriterio",
                   Sobre([this](const Argumentos&) { ed.AñadirSubcriterio("Subcriterio"); })},
                  {"AñadirIndicador",
                   Sobre([this](const Argumentos&) { ed.AñadirIndicador("Indicador"); })},
                  {"CopiaNodo", Hacer([this](const Argumentos& a) {
                       ed.CopiaNodo(ed.tvwArbol, N(a.at(0)), ed.tvwArbol, N(a.at(1)));
                   })},
                  {"SiguienteNodoEdicion",
                   Hacer([this](const Argumentos& a) { ed.SiguienteNodoEdicion = Entero(a); })},
                  {"CambiarDescripcion",
                   Hacer([this](const Argumentos& a) { ed.CambiarDescripcion(a.at(0)); })},
                  {"EliminarSubcriteriosDelNodo", Hacer([this](const Argumentos& a) {
                       ed.EliminarSubcriteriosDelNodo(N(a.at(0)));
                   })},
                  {"Abrir", Hacer([this](const Argumentos&) { Abrir(); })},
                  {"Permiso", Hacer([this](const Argumentos& a) {
                       sesion().modelo.ConSubcriterios = a.at(0) == "yes";
                   })},
                  {"ClicFuncion",
                   [this](const Argumentos&) {
                       const std::optional<std::string> indicador = ed.ClicFuncion();
                       return (indicador ? "'" + *indicador + "'" : "none") + " | row " +
                              std::to_string(sesion().NodoEdicionActual);
                   }},
                  {"LlamaLlenarRequerimientos",
                   [this](const Argumentos&) {
                       ed.LlamaLlenarRequerimientos();
                       return "next row " + std::to_string(ed.SiguienteNodoEdicion) + " | " +
                              Escrito(sesion().modelo);
                   }},
                  {"Posiciones",
                   [this](const Argumentos&) {
                       std::string texto;
                       for (const int posicion : ed.UltimasPosiciones) {
                           texto += Unir({texto.empty() ? "" : " ", std::to_string(posicion)});
                       }
                       return texto;
                   }},
                  {"Registro",
                   [this](const Argumentos& a) {
                       const NodoEdicion& r = Reg(a.at(0));
                       return "'" + r.Descripcion + "'" +
                              (r.Calculo == CalculoDirecto ? " direct" : " pairwise") +
                              (r.PesosBorrados ? ", weights erased" : "");
                   }}},
                 std::move(respuestas));
    }
};

} // namespace vadro::pruebas
