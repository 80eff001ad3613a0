#include "core/trees/edicion_requerimientos.h"

namespace vadro {

std::string SelectorNivel::ClaveElegida() const {
    const auto posicion = static_cast<std::size_t>(SeleccionClave);
    return SeleccionClave >= 1 && posicion <= Claves.size() ? Claves[posicion - 1] : "";
}

// The counter's change event: its label follows any value that is not negative.
void EdicionRequerimientos::PonerContador(int i, int valor) {
    SelectorNivel& selector = Selector(i);
    if (selector.Contador == valor) {
        return;
    }
    selector.Contador = valor;
    if (valor >= 0) {
        selector.Etiqueta = std::to_string(valor);
    }
}

void EdicionRequerimientos::ActualizarCombos(NodoArbol* nodo) {
    for (int i = 1; i <= 4; ++i) {
        SelectorNivel& selector = Selector(i);
        selector.Nombres.clear();
        selector.Texto.clear();
        selector.Seleccion = 0;
        selector.Bloqueada = true;
        PonerContador(i, 0);
        selector.Claves.clear();
        selector.SeleccionClave = 0;
    }
    FijarHabilitados(nodo);
    if (nodo == nullptr) {
        Descripcion.clear();
    } else {
        // The root fills no selector, so every counter reads 0 whatever it holds.
        if (NivelNodo(nodo) != NivelModelo) {
            LlenarCombos(nodo->NumHijos() > 0 ? nodo->PrimerHijo() : nodo);
        }
        Descripcion = nodo->Tag() ? Registro(nodo).Descripcion : "";
    }
    FijarTitulos(nodo);
}

void EdicionRequerimientos::LlenarCombos(NodoArbol* nodo) {
    for (NodoArbol* actual = nodo; actual != nullptr; actual = actual->Padre()) {
        // The level comes from the node, not from its depth: a criterion made inside a
        // criterion fills selector 2 from there.
        const int i = NivelNodo(actual);
        SelectorNivel& selector = Selector(i);
        selector.Bloqueada = false;
        for (NodoArbol* hermano = actual->PrimerHermano(); hermano != nullptr;
             hermano = hermano->Siguiente()) {
            selector.Nombres.push_back(hermano->Text());
            selector.Claves.push_back(hermano->Key());
            PonerContador(i, selector.Contador + 1);
            if (hermano == actual) {
                selector.Seleccion = static_cast<int>(selector.Nombres.size());
                selector.Texto = hermano->Text();
                ClicLista(i); // a choice made by the program raises the click as well
                selector.SeleccionClave = selector.Seleccion;
            }
        }
        if (i < 2) {
            break;
        }
    }
}

void EdicionRequerimientos::FijarHabilitados(const NodoArbol* nodo) {
    const int nivel = NivelNodo(nodo);
    const bool hijos = nodo != nullptr && nodo->NumHijos() > 0;
    const bool permiso = sesion_.modelo.ConSubcriterios;
    struct Estados {
        std::array<bool, 4> contador;
        std::array<bool, 4> lista;
        bool funcion;
    };
    Estados e{{true, false, false, false}, {false, false, false, false}, false};
    switch (nivel) {
    case NivelModelo:
        e = {{true, false, false, false}, {hijos, false, false, false}, false};
        break;
    case NivelRequerimiento:
        e = {{true, true, false, false}, {true, hijos, false, false}, false};
        break;
    case NivelCriterio: {
        const bool a = permiso && !TieneIndicadores(nodo);
        const bool b = !TieneSubcriterios(nodo);
        e = {{true, true, a, b}, {true, true, a && hijos, b && hijos}, false};
        break;
    }
    case NivelSubcriterio:
        e = {{true, true, true, true}, {true, true, true, hijos}, false};
        break;
    case NivelIndicador: {
        const bool d = permiso && NivelNodo(nodo->Padre()) == NivelSubcriterio;
        e = {{true, true, d, true}, {true, true, d, true}, true};
        break;
    }
    default:
        break;
    }
    for (int i = 1; i <= 4; ++i) {
        Selector(i).ContadorHabilitado = e.contador[static_cast<std::size_t>(i - 1)];
        Selector(i).ListaHabilitada = e.lista[static_cast<std::size_t>(i - 1)];
    }
    FuncionHabilitada = e.funcion;
}

void EdicionRequerimientos::FijarTitulos(const NodoArbol* nodo) {
    const auto n = [this](int i) { return std::to_string(Selector(i).Seleccion); };
    TitulosMarcos = {"Requerimientos", "Criterios", "Subcriterios", "Indicadores"};
    const int nivel = NivelNodo(nodo);
    if (nivel < NivelRequerimiento || nivel > NivelIndicador) {
        return;
    }
    TitulosMarcos[0] = "Requerimiento " + n(1);
    TitulosMarcos[1] = "Criterios del requerimiento " + n(1);
    const bool criterioConSubcriterios = nivel == NivelCriterio && TieneSubcriterios(nodo);
    if (nivel == NivelSubcriterio || criterioConSubcriterios) {
        TitulosMarcos[2] = "Subcriterios del criterio " + n(2);
        TitulosMarcos[3] = "Indicadores del subcriterio " + n(3);
    } else if (nivel == NivelCriterio) {
        TitulosMarcos[3] = "Indicadores del criterio " + n(2);
    } else if (nivel == NivelIndicador) {
        TitulosMarcos[2] = "Subcriterios del criterio " + n(2);
        TitulosMarcos[3] = "Indicadores del criterio " + n(2);
    }
}

// ---- events of the selectors ----

void EdicionRequerimientos::SubirContador(int i) {
    SelectorNivel& selector = Selector(i);
    if (!selector.ContadorHabilitado) {
        return;
    }
    PonerContador(i, selector.Contador + 1);
    switch (i) {
    case NivelRequerimiento:
        AñadirRequerimiento("Requerimiento");
        break;
    case NivelCriterio:
        AñadirCriterio("Criterio");
        break;
    case NivelSubcriterio:
        AñadirSubcriterio("Subcriterio");
        break;
    default:
        AñadirIndicador("Indicador");
        break;
    }
    Selector(i).ListaHabilitada = true;
}

void EdicionRequerimientos::BajarContador(int i) {
    SelectorNivel& selector = Selector(i);
    // At 0 there is nothing to remove: the key list holds no key to look for.
    if (!selector.ContadorHabilitado || selector.Contador <= 0) {
        return;
    }
    PonerContador(i, selector.Contador - 1);
    // The node the selector shows goes, not the last one.
    tvwArbol.Seleccionar(tvwArbol.NodoPorClave(selector.ClaveElegida()));
    Eliminar();
    if (selector.Etiqueta == "0") {
        selector.ListaHabilitada = false;
    }
}

void EdicionRequerimientos::AbrirLista(int i) {
    SelectorNivel& selector = Selector(i);
    if (selector.ListaHabilitada) {
        selector.Marca = "Usuario";
    }
}

void EdicionRequerimientos::ElegirEnLista(int i, int posicion) {
    SelectorNivel& selector = Selector(i);
    if (!selector.ListaHabilitada || posicion < 1 ||
        posicion > static_cast<int>(selector.Nombres.size())) {
        return;
    }
    selector.Seleccion = posicion;
    selector.Texto = selector.Nombres[static_cast<std::size_t>(posicion - 1)];
    ClicLista(i);
}

// The click of a list acts only after the user opened it: the program's own choices raise the
// click too, and must not act.
void EdicionRequerimientos::ClicLista(int i) {
    SelectorNivel& selector = Selector(i);
    if (selector.Marca != "Usuario") {
        return;
    }
    selector.Marca = "Auto";
    selector.SeleccionClave = selector.Seleccion;
    UltimasPosiciones[static_cast<std::size_t>(i - 1)] = selector.Seleccion;
    tvwArbol.Seleccionar(tvwArbol.NodoPorClave(selector.ClaveElegida()));
}

void EdicionRequerimientos::EnfocarLista(int i) {
    const int seleccion = Selector(i).Seleccion;
    UltimasPosiciones[static_cast<std::size_t>(i - 1)] = seleccion;
}

void EdicionRequerimientos::EscribirEnLista(int i, const std::string& texto) {
    SelectorNivel& selector = Selector(i);
    if (!selector.ListaHabilitada || selector.Bloqueada) {
        return;
    }
    selector.Texto = texto;
    tvwArbol.Seleccionar(tvwArbol.NodoPorClave(selector.ClaveElegida()));
    tvwArbol.CambiarTexto(tvwArbol.Seleccionado(), texto);
}

} // namespace vadro
