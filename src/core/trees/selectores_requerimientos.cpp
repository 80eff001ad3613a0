#include "core/trees/edicion_requerimientos.h"

namespace vadro {

void EdicionRequerimientos::ActualizarCombos(NodoArbol* nodo) {
    VaciarSelectores();
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

// The window keeps each list's last position, on a click and when the list gets the focus.
void EdicionRequerimientos::RecordarPosicion(int i) {
    UltimasPosiciones[static_cast<std::size_t>(i - 1)] = Selector(i).Seleccion;
}

} // namespace vadro
