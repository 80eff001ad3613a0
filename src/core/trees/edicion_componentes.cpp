#include "core/trees/edicion_componentes.h"

#include "core/core/comunes.h"
#include "core/core/error_ejecucion.h"
#include "core/core/mensajes.h"

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

EdicionComponentes::EdicionComponentes(Sesion& sesion) : sesion_(sesion) {
    tvwArbol.Observar(this);
}

EdicionComponentes::~EdicionComponentes() {
    tvwArbol.DejarDeObservar(this);
}

void EdicionComponentes::AntesDeQuitar(const NodoArbol* nodo) {
    if (NodoActual != nullptr && NodoActual->DentroDe(nodo)) {
        NodoActual = nullptr;
    }
    if (NodoDestino != nullptr && NodoDestino->DentroDe(nodo)) {
        NodoDestino = nullptr;
    }
}

void EdicionComponentes::AntesDeVaciar() {
    NodoActual = nullptr;
    NodoDestino = nullptr;
}

SelectorNivel& EdicionComponentes::Selector(int i) {
    if (i < 1 || i > 2) {
        throw ErrorEjecucion(340, "El elemento " + std::to_string(i) +
                                      " de la matriz de controles no existe");
    }
    return Selectores[static_cast<std::size_t>(i - 1)];
}

void EdicionComponentes::Modificar() {
    sesion_.modelo.Modificado = true;
}

void EdicionComponentes::SubirContadorClaves() {
    if (ContadorClaves == INT16_MAX) {
        throw ErrorEjecucion(ErrDesbordamiento);
    }
    ++ContadorClaves;
}

// ---- opening and writing back ----

void EdicionComponentes::Abrir() {
    NodoActual = nullptr;
    NodoDestino = nullptr;
    NivelArrastre = 0;
    NivelCopia = 0;
    Arrastrando = false;
    PegarHabilitado = false;
    Selectores = {};
    tvwCopia.Vaciar();
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

NodoArbol* EdicionComponentes::AñadirNodo(NodoArbol* relativo, Relacion relacion, int nivel,
                                          const std::string& texto) {
    const std::string clave = PrefijoComponentes(nivel) + " " + std::to_string(ContadorClaves);
    NodoArbol* nodo = tvwArbol.Añadir(relativo, relacion, clave, texto, ImagenComponentes(nivel));
    Modificar();
    return nodo;
}

void EdicionComponentes::MostrarYSeleccionar(NodoArbol* nodo) {
    tvwArbol.AsegurarVisible(nodo);
    tvwArbol.Seleccionar(nodo);
}

void EdicionComponentes::AñadirComponente(const std::string& texto) {
    SubirContadorClaves();
    NodoArbol* nuevo = AñadirNodo(nullptr, Relacion::UltimoHijo, NivelComponente, texto);
    MostrarYSeleccionar(nuevo);
    ActualizarCombos(nuevo);
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
    NodoArbol* nuevo = AñadirNodo(padre, Relacion::UltimoHijo, NivelSubcomponente, texto);
    MostrarYSeleccionar(nuevo);
    ActualizarCombos(nuevo);
}

void EdicionComponentes::InsertarAntes() {
    InsertarJunto(Relacion::Anterior);
}

void EdicionComponentes::InsertarDespues() {
    InsertarJunto(Relacion::Siguiente);
}

void EdicionComponentes::InsertarJunto(Relacion lado) {
    SubirContadorClaves();
    NodoActual = tvwArbol.Seleccionado();
    if (NodoActual == nullptr) {
        return;
    }
    const int nivel = NivelComponentesDe(NodoActual);
    AñadirNodo(NodoActual, lado, nivel, TextoComponentes(nivel));
}

void EdicionComponentes::Eliminar() {
    NodoActual = tvwArbol.Seleccionado();
    if (NodoActual == nullptr) {
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

void EdicionComponentes::Copiar() {
    NodoArbol* nodo = tvwArbol.Seleccionado();
    if (nodo == nullptr) {
        return;
    }
    PegarHabilitado = true;
    tvwCopia.Vaciar();
    CopiaNodo(nodo, tvwCopia, nullptr);
}

void EdicionComponentes::Pegar() {
    if (tvwCopia.Vacio()) {
        return;
    }
    CopiaNodo(tvwCopia.Nodo(1), tvwArbol, tvwArbol.Seleccionado());
    Modificar();
    Reordenar();
}

void EdicionComponentes::CopiaNodo(const NodoArbol* nodo, Arbol& arbolDestino,
                                   NodoArbol* padreDestino) {
    const auto nuevaClave = [this](const NodoArbol& origen) {
        SubirContadorClaves();
        return origen.Key().substr(0, 2) + " " + std::to_string(ContadorClaves);
    };
    const auto imagen = [](const NodoArbol& origen) {
        return ImagenComponentes(NivelComponentesDe(&origen));
    };
    try {
        CopiarRama(*nodo, arbolDestino, padreDestino, nuevaClave, imagen);
    } catch (const ErrorEjecucion& error) {
        MsgBox("Error " + std::to_string(error.Numero()) + " copiando nodo: " + error.Descripcion(),
               Botones::Aceptar, Icono::Critico, "VADRO PROGRAMADOR");
    }
}

void EdicionComponentes::Reordenar() {
    ContadorClaves = static_cast<int16_t>(RenumerarClaves(tvwArbol, 2));
}

// ---- selectors ----

void EdicionComponentes::PonerContador(int i, int valor) {
    SelectorNivel& selector = Selector(i);
    if (selector.Contador == valor) {
        return;
    }
    selector.Contador = valor;
    if (valor >= 0) {
        selector.Etiqueta = std::to_string(valor);
    }
}

void EdicionComponentes::ActualizarCombos(NodoArbol* nodo) {
    for (int i = 1; i <= 2; ++i) {
        SelectorNivel& selector = Selector(i);
        selector.Nombres.clear();
        selector.Claves.clear();
        selector.Texto.clear();
        selector.Seleccion = 0;
        selector.SeleccionClave = 0;
        selector.Bloqueada = true;
        PonerContador(i, 0);
    }
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

void EdicionComponentes::LlenarCombos(NodoArbol* nodo) {
    for (NodoArbol* actual = nodo; actual != nullptr; actual = actual->Padre()) {
        const int i = NivelComponentesDe(actual);
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
                ClicLista(i);
                selector.SeleccionClave = selector.Seleccion;
            }
        }
        if (i < 2) {
            break;
        }
    }
}

void EdicionComponentes::SubirContador(int i) {
    SelectorNivel& selector = Selector(i);
    if (!selector.ContadorHabilitado) {
        return;
    }
    PonerContador(i, selector.Contador + 1);
    Modificar(); // the counters are edits of the tree too
    if (i == NivelComponente) {
        AñadirComponente("Componente");
    } else {
        AñadirSubcomponente("Subcomponente");
    }
    Selector(i).ListaHabilitada = true;
}

void EdicionComponentes::BajarContador(int i) {
    SelectorNivel& selector = Selector(i);
    if (!selector.ContadorHabilitado || selector.Contador <= 0) {
        return;
    }
    PonerContador(i, selector.Contador - 1);
    Modificar();
    tvwArbol.Seleccionar(tvwArbol.NodoPorClave(selector.ClaveElegida()));
    Eliminar();
    if (selector.Etiqueta == "0") {
        selector.ListaHabilitada = false;
    }
}

void EdicionComponentes::AbrirLista(int i) {
    SelectorNivel& selector = Selector(i);
    if (selector.ListaHabilitada) {
        selector.Marca = "Usuario";
    }
}

void EdicionComponentes::ElegirEnLista(int i, int posicion) {
    SelectorNivel& selector = Selector(i);
    if (!selector.ListaHabilitada || posicion < 1 ||
        posicion > static_cast<int>(selector.Nombres.size())) {
        return;
    }
    selector.Seleccion = posicion;
    selector.Texto = selector.Nombres[static_cast<std::size_t>(posicion - 1)];
    ClicLista(i);
}

void EdicionComponentes::ClicLista(int i) {
    SelectorNivel& selector = Selector(i);
    if (selector.Marca != "Usuario") {
        return;
    }
    selector.Marca = "Auto";
    selector.SeleccionClave = selector.Seleccion;
    tvwArbol.Seleccionar(tvwArbol.NodoPorClave(selector.ClaveElegida()));
}

void EdicionComponentes::EnfocarLista(int /*i*/) {}

void EdicionComponentes::EscribirEnLista(int i, const std::string& texto) {
    SelectorNivel& selector = Selector(i);
    if (!selector.ListaHabilitada || selector.Bloqueada) {
        return;
    }
    selector.Texto = texto;
    tvwArbol.Seleccionar(tvwArbol.NodoPorClave(selector.ClaveElegida()));
    tvwArbol.CambiarTexto(tvwArbol.Seleccionado(), texto);
    Modificar();
}

// ---- pointer, keys and labels ----

void EdicionComponentes::PulsarRaton(NodoArbol* nodo) {
    NodoActual = nodo;
}

void EdicionComponentes::MoverRaton(bool botonIzquierdo) {
    if (!botonIzquierdo || NodoActual == nullptr || Arrastrando) {
        return;
    }
    NivelArrastre = NivelComponentesDe(NodoActual);
    Arrastrando = true;
    NodoDestino = nullptr;
}

void EdicionComponentes::ArrastrarSobre(NodoArbol* nodo) {
    if (!Arrastrando || nodo == NodoDestino) {
        return;
    }
    NodoDestino = nodo;
    const bool permitido = nodo != nullptr && DestinoComponentesPermitido(NivelArrastre, nodo);
    tvwArbol.Resaltar(permitido ? nodo : nullptr);
}

void EdicionComponentes::Soltar() {
    if (!Arrastrando) {
        return;
    }
    Arrastrando = false;
    NodoArbol* destino = tvwArbol.ResaltadoDestino();
    if (destino != nullptr && NodoActual != nullptr && NodoActual->Padre() != nullptr) {
        // No weights hang on these nodes: the move needs no question.
        tvwArbol.Mover(NodoActual, destino);
        tvwArbol.Resaltar(nullptr);
        Modificar();
    }
    ActualizarCombos(NodoActual);
}

void EdicionComponentes::SoltarRaton(NodoArbol* nodo) {
    NodoActual = nodo;
    tvwArbol.Seleccionar(nodo);
    NivelArrastre = NivelComponentesDe(nodo);
    ActualizarCombos(nodo);
    if (!tvwCopia.Vacio()) {
        NivelCopia = NivelComponentesDe(tvwCopia.Nodo(1));
    }
}

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
    menu.PegarHabilitado = DestinoComponentesPermitido(NivelCopia, NodoActual);
    PegarHabilitado = menu.PegarHabilitado;
    return menu;
}

PeticionTecla EdicionComponentes::Tecla(int codigo) {
    switch (codigo) {
    case 37:
    case 38:
    case 39:
    case 40:
        NodoActual = tvwArbol.Seleccionado();
        NivelArrastre = NivelComponentesDe(NodoActual);
        ActualizarCombos(NodoActual);
        return PeticionTecla::Ninguna;
    case 46:
        Eliminar();
        return PeticionTecla::Ninguna;
    case 113:
        return PeticionTecla::EditarEtiqueta;
    default:
        return PeticionTecla::Ninguna;
    }
}

void EdicionComponentes::Caracter(int caracter) {
    if (caracter == 3) {
        Copiar();
    }
}

bool EdicionComponentes::Renombrar(const std::string& texto) {
    NodoArbol* nodo = tvwArbol.Seleccionado();
    if (nodo == nullptr) {
        return false;
    }
    tvwArbol.CambiarTexto(nodo, texto);
    Modificar();
    ActualizarCombos(nodo);
    return true;
}

} // namespace vadro
