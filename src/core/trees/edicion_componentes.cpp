#include "core/trees/edicion_componentes.h"

#include "core/core/comunes.h"
#include "core/core/error_ejecucion.h"

namespace vadro {

int NivelComponentesDe(const NodoArbol* nodo) {
    if (nodo == nullptr) {
        return 0;
    }
    const std::string prefijo = nodo->Key().substr(0, 2);
    return prefijo == "Co" ? NivelComponente : prefijo == "Sc" ? NivelSubcomponente : 0;
}

std::string PrefijoComponentes(int nivel) {
    return nivel == NivelComponente ? "Co" : nivel == NivelSubcomponente ? "Sc" : "";
}

std::string TextoComponentes(int nivel) {
    return nivel == NivelComponente      ? "Componente"
           : nivel == NivelSubcomponente ? "Subcomponente"
                                         : "";
}

int ImagenComponentes(int nivel) {
    // The two last images of the shared list, after the five of the requirements tree.
    return nivel == NivelComponente ? 7 : nivel == NivelSubcomponente ? 8 : 0;
}

bool DestinoComponentesPermitido(int nivel, const NodoArbol* destino) {
    if (destino == nullptr) {
        return nivel == NivelComponente;
    }
    return NivelComponentesDe(destino) + 1 == nivel;
}

namespace {

// The components tree: two letters name a level, and every edit marks the model as modified.
constexpr ReglasArbol kReglas{
    .letrasClave = 2,
    .nivel = NivelComponentesDe,
    .prefijo = PrefijoComponentes,
    .imagen = ImagenComponentes,
    .textoNuevo = [](int nivel, const Modelo& /*modelo*/) { return TextoComponentes(nivel); },
    .imagenCopia =
        [](const NodoArbol& origen) { return ImagenComponentes(NivelComponentesDe(&origen)); },
    .destinoPermitido = DestinoComponentesPermitido,
    .falloCopia =
        [](const ErrorEjecucion& error) {
            return "Error " + std::to_string(error.Numero()) +
                   " copiando nodo: " + error.Descripcion();
        },
    .marcaModificado = true,
};

} // namespace

EdicionComponentes::EdicionComponentes(Sesion& sesion) : EdicionArbol(sesion, kReglas) {}

// ---- opening and writing back ----

void EdicionComponentes::Abrir() {
    Reiniciar();
    tvwArbol.Vaciar();
    for (const FilaArbol& fila : LlenarArbolComponentes(sesion_.modelo, false)) {
        NodoArbol* padre =
            fila.clavePadre.empty() ? nullptr : tvwArbol.NodoPorClave(fila.clavePadre);
        const int nivel = padre == nullptr ? NivelComponente : NivelSubcomponente;
        NodoArbol* nodo = tvwArbol.Añadir(padre, Relacion::UltimoHijo, fila.clave, fila.texto,
                                          ImagenComponentes(nivel));
        tvwArbol.Expandir(nodo);
    }
    ContadorClaves = static_cast<int16_t>(tvwArbol.Cuenta());
    NodoArbol* primero = tvwArbol.PrimeraRaiz();
    if (primero != nullptr) {
        tvwArbol.Seleccionar(primero);
        NodoActual = primero;
    }
    ActualizarCombos(primero);
}

void EdicionComponentes::LlenarComponentes(Modelo& modelo) {
    const auto& componentes = tvwArbol.Raices();
    const int cuenta = static_cast<int>(componentes.size());
    modelo.NumComponentes = cuenta;
    modelo.Componentes.Redimensionar(cuenta);
    for (int c = 1; c <= cuenta; ++c) {
        const NodoArbol* nodo = componentes[static_cast<std::size_t>(c - 1)];
        Componente& componente = modelo.Componentes(c);
        componente.Clave = "Co" + std::to_string(c);
        componente.Nombre = nodo->Text();
        componente.NumSubcomponentes = static_cast<int16_t>(nodo->NumHijos());
        componente.Subcomponentes.Borrar();
        if (nodo->NumHijos() > 0) {
            componente.Subcomponentes.Redimensionar(nodo->NumHijos());
        }
        for (int s = 1; s <= nodo->NumHijos(); ++s) {
            Subcomponente& sub = componente.Subcomponentes(s);
            sub.Clave = "Sc" + std::to_string(s) + componente.Clave;
            sub.Nombre = nodo->Hijo(s)->Text();
        }
    }
}

void EdicionComponentes::LlamaLlenarComponentes() {
    LlenarComponentes(sesion_.modelo);
}

bool EdicionComponentes::GuardarArbol() {
    LlenarComponentes(sesion_.modelo);
    return !tvwArbol.Vacio();
}

// ---- operations ----

void EdicionComponentes::AñadirComponente(const std::string& texto) {
    SubirContadorClaves();
    ActualizarCombos(AñadirHijo(nullptr, NivelComponente, texto));
}

void EdicionComponentes::AñadirSubcomponente(const std::string& texto) {
    NodoActual = tvwArbol.Seleccionado();
    SubirContadorClaves();
    NodoArbol* padre = nullptr;
    switch (NivelComponentesDe(NodoActual)) {
    case NivelComponente:
        padre = NodoActual;
        break;
    case NivelSubcomponente:
        padre = NodoActual->Padre();
        break;
    default:
        return; // nothing to hang it on
    }
    ActualizarCombos(AñadirHijo(padre, NivelSubcomponente, texto));
}

void EdicionComponentes::AñadirNivel(int nivel, const std::string& texto) {
    if (nivel == NivelComponente) {
        AñadirComponente(texto);
    } else {
        AñadirSubcomponente(texto);
    }
}

void EdicionComponentes::Reordenar() {
    ContadorClaves = static_cast<int16_t>(RenumerarClaves(tvwArbol, 2));
}

// ---- selectors ----

void EdicionComponentes::ActualizarCombos(NodoArbol* nodo) {
    VaciarSelectores();
    const int nivel = NivelComponentesDe(nodo);
    const bool hijos = nodo != nullptr && nodo->NumHijos() > 0;
    Selector(1).ContadorHabilitado = true;
    Selector(2).ContadorHabilitado = nivel >= NivelComponente;
    Selector(1).ListaHabilitada = nivel >= NivelComponente;
    Selector(2).ListaHabilitada = nivel == NivelSubcomponente || hijos;
    if (nodo != nullptr) {
        LlenarCombos(hijos ? nodo->PrimerHijo() : nodo);
    }
    if (nodo == nullptr) {
        TitulosMarcos = {"Componentes", "Subcomponentes"};
    } else {
        const std::string n = std::to_string(Selector(1).Seleccion);
        TitulosMarcos = {"Componente " + n, "Subcomponentes del comp. " + n};
    }
}

// ---- the menu ----

MenuArbolComponentes EdicionComponentes::MenuContextual(NodoArbol* nodo) {
    SoltarRaton(nodo);
    MenuArbolComponentes menu;
    const int nivel = NivelComponentesDe(NodoActual);
    const bool hayNodo = NodoActual != nullptr;
    menu.InsertarVisible = hayNodo;
    menu.EliminarVisible = hayNodo;
    menu.EliminarTitulo =
        nivel == NivelSubcomponente ? "&Eliminar subcomponente" : "&Eliminar componente";
    // As in the requirements tree: the empty place adds at the top, a node below itself.
    menu.AñadirCompVisible = !hayNodo;
    menu.AñadirScVisible = nivel == NivelComponente;
    menu.CopiarVisible = hayNodo;
    menu.RenombrarVisible = hayNodo;
    menu.PegarVisible = true;
    menu.PegarHabilitado = PermitirPegar();
    return menu;
}

} // namespace vadro
