#include "core/trees/edicion_arbol.h"

#include "core/core/error_ejecucion.h"
#include "core/core/mensajes.h"

namespace vadro {

std::string SelectorNivel::ClaveElegida() const {
    const auto posicion = static_cast<std::size_t>(SeleccionClave);
    return SeleccionClave >= 1 && posicion <= Claves.size() ? Claves[posicion - 1] : "";
}

int16_t Sumar16(int16_t valor, int suma) {
    const int resultado = valor + suma;
    if (resultado > INT16_MAX || resultado < INT16_MIN) {
        throw ErrorEjecucion(ErrDesbordamiento);
    }
    return static_cast<int16_t>(resultado);
}

template <std::size_t N>
EdicionArbol<N>::EdicionArbol(Sesion& sesion, const ReglasArbol& reglas)
    : sesion_(sesion), reglas_(reglas) {
    tvwArbol.Observar(this);
}

template <std::size_t N> EdicionArbol<N>::~EdicionArbol() {
    tvwArbol.DejarDeObservar(this);
}

template <std::size_t N> void EdicionArbol<N>::AntesDeQuitar(const NodoArbol* nodo) {
    if (NodoActual != nullptr && NodoActual->DentroDe(nodo)) {
        NodoActual = nullptr;
    }
    if (NodoDestino != nullptr && NodoDestino->DentroDe(nodo)) {
        NodoDestino = nullptr;
    }
}

template <std::size_t N> void EdicionArbol<N>::AntesDeVaciar() {
    NodoActual = nullptr;
    NodoDestino = nullptr;
}

template <std::size_t N> SelectorNivel& EdicionArbol<N>::Selector(int i) {
    if (i < 1 || i > static_cast<int>(N)) {
        throw ErrorEjecucion(340, "El elemento " + std::to_string(i) +
                                      " de la matriz de controles no existe");
    }
    return Selectores[static_cast<std::size_t>(i - 1)];
}

template <std::size_t N> const SelectorNivel& EdicionArbol<N>::Selector(int i) const {
    return const_cast<EdicionArbol*>(this)->Selector(i);
}

// ---- shared steps ----

template <std::size_t N> void EdicionArbol<N>::Reiniciar() {
    NodoActual = nullptr;
    NodoDestino = nullptr;
    NivelArrastre = 0;
    NivelCopia = 0;
    Arrastrando = false;
    PegarHabilitado = false;
    Selectores = {}; // the controls come fresh with the window
    tvwCopia.Vaciar();
}

template <std::size_t N> void EdicionArbol<N>::Modificar() {
    if (reglas_.marcaModificado) {
        sesion_.modelo.Modificado = true;
    }
}

template <std::size_t N> void EdicionArbol<N>::SubirContadorClaves() {
    ContadorClaves = Sumar16(ContadorClaves, 1);
}

// New keys are the level's prefix, a blank and the counter, which the caller raised first.
template <std::size_t N>
NodoArbol* EdicionArbol<N>::AñadirNodo(NodoArbol* relativo, Relacion relacion, int nivel,
                                       const std::string& texto) {
    const std::string clave = reglas_.prefijo(nivel) + " " + std::to_string(ContadorClaves);
    NodoArbol* nodo = tvwArbol.Añadir(relativo, relacion, clave, texto, reglas_.imagen(nivel));
    Modificar();
    return nodo;
}

template <std::size_t N> void EdicionArbol<N>::MostrarYSeleccionar(NodoArbol* nodo) {
    tvwArbol.AsegurarVisible(nodo);
    tvwArbol.Seleccionar(nodo);
}

template <std::size_t N>
NodoArbol* EdicionArbol<N>::AñadirHijo(NodoArbol* padre, int nivel, const std::string& texto) {
    NodoArbol* nuevo = AñadirNodo(padre, Relacion::UltimoHijo, nivel, texto);
    NodoCreado(nuevo);
    MostrarYSeleccionar(nuevo);
    return nuevo;
}

template <std::size_t N> bool EdicionArbol<N>::PermitirPegar() {
    PegarHabilitado = reglas_.destinoPermitido(NivelCopia, NodoActual);
    return PegarHabilitado;
}

// ---- operations ----

template <std::size_t N> void EdicionArbol<N>::InsertarAntes() {
    InsertarJunto(Relacion::Anterior);
}

template <std::size_t N> void EdicionArbol<N>::InsertarDespues() {
    InsertarJunto(Relacion::Siguiente);
}

// A default node of the selected node's level, beside it. The counter rises even when nothing
// is selected.
template <std::size_t N> void EdicionArbol<N>::InsertarJunto(Relacion lado) {
    SubirContadorClaves();
    NodoActual = tvwArbol.Seleccionado();
    if (NodoActual == nullptr) {
        return;
    }
    const int nivel = Nivel(NodoActual);
    NodoCreado(AñadirNodo(NodoActual, lado, nivel, reglas_.textoNuevo(nivel, sesion_.modelo)));
}

template <std::size_t N> void EdicionArbol<N>::Eliminar() {
    NodoActual = tvwArbol.Seleccionado();
    if (NodoActual == nullptr || !AntesDeEliminar(NodoActual)) {
        return;
    }
    NodoArbol* siguiente =
        NodoActual->Anterior() != nullptr ? NodoActual->Anterior() : NodoActual->Siguiente();
    bool quitar = true;
    if (NodoActual->NumHijos() > 0) {
        quitar = MsgBox("El elemento selecionado tiene uno o más subnodos. Está seguro que "
                        "quiere eliminarlo?",
                        Botones::SiNo, Icono::Pregunta,
                        "VADRO PROGRAMADOR: eliminar nodo") == Respuesta::Si;
    }
    if (quitar) {
        tvwArbol.Quitar(NodoActual);
        Modificar();
    }
    if (siguiente != nullptr) {
        tvwArbol.Seleccionar(siguiente);
    }
    Reordenar();
    ActualizarCombos(siguiente);
}

template <std::size_t N> void EdicionArbol<N>::Copiar() {
    NodoArbol* nodo = tvwArbol.Seleccionado();
    if (nodo == nullptr) {
        return;
    }
    PegarHabilitado = true;
    tvwCopia.Vaciar();
    CopiaNodo(nodo, tvwCopia, nullptr);
}

template <std::size_t N> void EdicionArbol<N>::Pegar() {
    if (tvwCopia.Vacio()) {
        return;
    }
    CopiaNodo(tvwCopia.Nodo(1), tvwArbol, tvwArbol.Seleccionado());
    Modificar();
    Reordenar();
}

// Each copy keeps the level prefix of its original's key, with a number newly drawn.
template <std::size_t N>
void EdicionArbol<N>::CopiaNodo(const NodoArbol* nodo, Arbol& arbolDestino,
                                NodoArbol* padreDestino) {
    const auto letras = static_cast<std::size_t>(reglas_.letrasClave);
    const auto nuevaClave = [this, letras](const NodoArbol& origen) {
        SubirContadorClaves();
        return origen.Key().substr(0, letras) + " " + std::to_string(ContadorClaves);
    };
    try {
        CopiarRama(*nodo, arbolDestino, padreDestino, nuevaClave, reglas_.imagenCopia);
    } catch (const ErrorEjecucion& error) {
        MsgBox(reglas_.falloCopia(error), Botones::Aceptar, Icono::Critico, "VADRO PROGRAMADOR");
    }
}

// ---- selectors ----

// The counter's change event: its label follows any value that is not negative.
template <std::size_t N> void EdicionArbol<N>::PonerContador(int i, int valor) {
    SelectorNivel& selector = Selector(i);
    if (selector.Contador == valor) {
        return;
    }
    selector.Contador = valor;
    if (valor >= 0) {
        selector.Etiqueta = std::to_string(valor);
    }
}

template <std::size_t N> void EdicionArbol<N>::VaciarSelectores() {
    for (int i = 1; i <= static_cast<int>(N); ++i) {
        SelectorNivel& selector = Selector(i);
        selector.Nombres.clear();
        selector.Claves.clear();
        selector.Texto.clear();
        selector.Seleccion = 0;
        selector.SeleccionClave = 0;
        selector.Bloqueada = true;
        PonerContador(i, 0);
    }
}

template <std::size_t N> void EdicionArbol<N>::LlenarCombos(NodoArbol* nodo) {
    for (NodoArbol* actual = nodo; actual != nullptr; actual = actual->Padre()) {
        // The level comes from the node, not from its depth: a criterion made inside a
        // criterion fills selector 2 from there.
        const int i = Nivel(actual);
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

template <std::size_t N> void EdicionArbol<N>::SubirContador(int i) {
    SelectorNivel& selector = Selector(i);
    if (!selector.ContadorHabilitado) {
        return;
    }
    PonerContador(i, selector.Contador + 1);
    Modificar(); // the counters are edits of the tree too
    AñadirNivel(i, reglas_.textoNuevo(i, sesion_.modelo));
    Selector(i).ListaHabilitada = true;
}

template <std::size_t N> void EdicionArbol<N>::BajarContador(int i) {
    SelectorNivel& selector = Selector(i);
    // At 0 there is nothing to remove: the key list holds no key to look for.
    if (!selector.ContadorHabilitado || selector.Contador <= 0) {
        return;
    }
    PonerContador(i, selector.Contador - 1);
    Modificar();
    // The node the selector shows goes, not the last one.
    tvwArbol.Seleccionar(tvwArbol.NodoPorClave(selector.ClaveElegida()));
    Eliminar();
    if (selector.Etiqueta == "0") {
        selector.ListaHabilitada = false;
    }
}

template <std::size_t N> void EdicionArbol<N>::AbrirLista(int i) {
    SelectorNivel& selector = Selector(i);
    if (selector.ListaHabilitada) {
        selector.Marca = "Usuario";
    }
}

template <std::size_t N> void EdicionArbol<N>::ElegirEnLista(int i, int posicion) {
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
template <std::size_t N> void EdicionArbol<N>::ClicLista(int i) {
    SelectorNivel& selector = Selector(i);
    if (selector.Marca != "Usuario") {
        return;
    }
    selector.Marca = "Auto";
    selector.SeleccionClave = selector.Seleccion;
    RecordarPosicion(i);
    tvwArbol.Seleccionar(tvwArbol.NodoPorClave(selector.ClaveElegida()));
}

template <std::size_t N> void EdicionArbol<N>::EnfocarLista(int i) {
    RecordarPosicion(i);
}

template <std::size_t N> void EdicionArbol<N>::EscribirEnLista(int i, const std::string& texto) {
    SelectorNivel& selector = Selector(i);
    if (!selector.ListaHabilitada || selector.Bloqueada) {
        return;
    }
    selector.Texto = texto;
    tvwArbol.Seleccionar(tvwArbol.NodoPorClave(selector.ClaveElegida()));
    tvwArbol.CambiarTexto(tvwArbol.Seleccionado(), texto);
    Modificar();
}

// ---- pointer ----

template <std::size_t N> void EdicionArbol<N>::PulsarRaton(NodoArbol* nodo) {
    NodoActual = nodo;
}

template <std::size_t N> void EdicionArbol<N>::MoverRaton(bool botonIzquierdo) {
    if (!botonIzquierdo || NodoActual == nullptr || Arrastrando) {
        return;
    }
    NivelArrastre = Nivel(NodoActual);
    Arrastrando = true;
    NodoDestino = nullptr; // so that the first node under the pointer is always tested
}

template <std::size_t N> void EdicionArbol<N>::ArrastrarSobre(NodoArbol* nodo) {
    if (!Arrastrando || nodo == NodoDestino) {
        return;
    }
    NodoDestino = nodo;
    const bool permitido = nodo != nullptr && reglas_.destinoPermitido(NivelArrastre, nodo);
    tvwArbol.Resaltar(permitido ? nodo : nullptr);
}

template <std::size_t N> void EdicionArbol<N>::Soltar() {
    if (!Arrastrando) {
        return;
    }
    Arrastrando = false;
    NodoArbol* destino = tvwArbol.ResaltadoDestino();
    if (destino != nullptr && NodoActual != nullptr && NodoActual->Padre() != nullptr) {
        MoverArrastrado(destino);
        tvwArbol.Resaltar(nullptr);
    }
    ActualizarCombos(NodoActual);
}

// Where no weights hang on the nodes the move needs no question.
template <std::size_t N> void EdicionArbol<N>::MoverArrastrado(NodoArbol* destino) {
    tvwArbol.Mover(NodoActual, destino);
    Modificar();
}

template <std::size_t N> void EdicionArbol<N>::SoltarRaton(NodoArbol* nodo) {
    NodoActual = nodo;
    tvwArbol.Seleccionar(nodo);
    NivelArrastre = Nivel(nodo);
    ActualizarCombos(nodo);
    if (!tvwCopia.Vacio()) {
        NivelCopia = Nivel(tvwCopia.Nodo(1));
    }
}

// ---- keys and labels ----

template <std::size_t N> PeticionTecla EdicionArbol<N>::Tecla(int codigo) {
    switch (codigo) {
    case 37: // the four arrows
    case 38:
    case 39:
    case 40:
        NodoActual = tvwArbol.Seleccionado();
        NivelArrastre = Nivel(NodoActual);
        ActualizarCombos(NodoActual);
        return PeticionTecla::Ninguna;
    case 46: // Delete
        Eliminar();
        return PeticionTecla::Ninguna;
    case 113: // F2
        return PeticionTecla::EditarEtiqueta;
    default:
        return PeticionTecla::Ninguna;
    }
}

template <std::size_t N> void EdicionArbol<N>::Caracter(int caracter) {
    if (caracter == 3) { // Ctrl+C; there is no key for paste
        Copiar();
    }
}

template <std::size_t N> bool EdicionArbol<N>::Renombrar(const std::string& texto) {
    NodoArbol* nodo = tvwArbol.Seleccionado();
    if (nodo == nullptr) {
        return false;
    }
    tvwArbol.CambiarTexto(nodo, texto);
    Modificar();
    ActualizarCombos(nodo);
    return true;
}

template class EdicionArbol<2>;
template class EdicionArbol<4>;

} // namespace vadro
