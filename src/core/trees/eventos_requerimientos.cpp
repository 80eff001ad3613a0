#include "core/trees/edicion_requerimientos.h"

#include "core/core/codigo_pagina.h"
#include "core/core/mensajes.h"

namespace vadro {

// ---- pointer ----

// A move to another parent loses the weights of both sibling sets, so it asks first.
void EdicionRequerimientos::MoverArrastrado(NodoArbol* destino) {
    NodoArbol* padreViejo = NodoActual->Padre();
    if (destino == padreViejo) {
        // Last among its siblings, weights untouched, though rows and matrix columns no
        // longer follow the same order.
        tvwArbol.Mover(NodoActual, padreViejo);
    } else if (MsgBox("En caso de haber sido introducidas, se borrarán las matrices de pesos "
                      "correspondientes a los nodos:\n- " +
                          padreViejo->Text() + "\n- " + destino->Text() +
                          "\n\nEstá usted seguro de querer mover el elemento seleccionado?",
                      Botones::SiNo, Icono::Pregunta,
                      "VADRO PROGRAMADOR: mover nodo") == Respuesta::Si) {
        tvwArbol.Mover(NodoActual, destino);
        ReiniciarPesos(padreViejo);
        ReiniciarPesos(destino);
    }
}

MenuArbol EdicionRequerimientos::MenuContextual(NodoArbol* nodo) {
    SoltarRaton(nodo);
    MenuArbol menu;
    const auto conNodo = [&menu](const std::string& eliminar) {
        menu.InsertarVisible = true;
        menu.EliminarVisible = true;
        menu.EliminarTitulo = eliminar;
    };
    switch (NivelNodo(NodoActual)) {
    case NivelRequerimiento:
        conNodo("&Eliminar requerimiento");
        menu.Separador1Visible = true;
        menu.AñadirCVisible = true;
        break;
    case NivelCriterio:
        conNodo("&Eliminar criterio");
        menu.Separador1Visible = true;
        menu.AñadirSVisible = sesion_.modelo.ConSubcriterios && !TieneIndicadores(NodoActual);
        menu.AñadirIVisible = !TieneSubcriterios(NodoActual);
        break;
    case NivelSubcriterio:
        conNodo("&Eliminar subcriterio");
        menu.Separador1Visible = true;
        menu.AñadirIVisible = true;
        break;
    case NivelIndicador:
        conNodo("&Eliminar indicador");
        break;
    default:
        menu.AñadirRVisible = true;
        break;
    }
    const bool hayNodo = NodoActual != nullptr;
    menu.CopiarVisible = hayNodo;
    menu.RenombrarVisible = hayNodo;
    menu.Separadores23Visible = hayNodo;
    menu.PegarVisible = true;
    menu.PegarHabilitado = PermitirPegar();
    return menu;
}

// ---- labels ----

bool EdicionRequerimientos::Renombrar(const std::string& texto) {
    NodoArbol* nodo = tvwArbol.Seleccionado();
    if (nodo == nullptr || nodo->Key() != "P") {
        return EdicionArbol::Renombrar(texto);
    }
    // A node keyed "P" would name the model; the root of this tree is keyed "M".
    if (MsgBox("Está seguro que quiere cambiar el nombre del modelo?", Botones::SiNo,
               Icono::Pregunta, "VADRO PROGRAMADOR: cambio de nombre") != Respuesta::Si) {
        return false;
    }
    tvwArbol.CambiarTexto(nodo, EnMinusculas(texto));
    return true;
}

// ---- description and function ----

void EdicionRequerimientos::CambiarDescripcion(const std::string& texto) {
    Descripcion = texto;
    NodoArbol* nodo = tvwArbol.Seleccionado();
    if (nodo == nullptr) {
        return;
    }
    if (!nodo->Tag()) {
        CrearNodoEdicion(nodo);
    }
    Registro(nodo).Descripcion = texto;
}

std::optional<std::string> EdicionRequerimientos::ClicFuncion() {
    NodoArbol* nodo = tvwArbol.Seleccionado();
    if (!FuncionHabilitada || nodo == nullptr) {
        return std::nullopt;
    }
    if (!nodo->Tag()) {
        CrearNodoEdicion(nodo);
    }
    sesion_.NodoEdicionActual = static_cast<int16_t>(*nodo->Tag());
    return nodo->Text();
}

} // namespace vadro
