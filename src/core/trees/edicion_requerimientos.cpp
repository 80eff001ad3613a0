#include "core/trees/edicion_requerimientos.h"

#include "core/core/error_ejecucion.h"
#include "core/core/mensajes.h"

namespace vadro {

namespace {

// The counters of the window are 16-bit: passing their bound is an overflow, and the counter
// keeps its old value.
int16_t Sumar16(int16_t valor, int suma) {
    const int resultado = valor + suma;
    if (resultado > INT16_MAX || resultado < INT16_MIN) {
        throw ErrorEjecucion(ErrDesbordamiento);
    }
    return static_cast<int16_t>(resultado);
}

// What an operation meets when it goes on with a node it never got.
ErrorEjecucion ErrorSinObjeto() {
    return ErrorEjecucion(91, "Variable de objeto o de bloque With no establecida");
}

NodoArbol* PadreExigido(const NodoArbol* nodo) {
    if (nodo->Padre() == nullptr) {
        throw ErrorSinObjeto();
    }
    return nodo->Padre();
}

} // namespace

EdicionRequerimientos::EdicionRequerimientos(Sesion& sesion) : sesion_(sesion) {
    tvwArbol.Observar(this);
}

EdicionRequerimientos::~EdicionRequerimientos() {
    tvwArbol.DejarDeObservar(this);
}

// A removed node can no longer be the node in hand nor the drop target.
void EdicionRequerimientos::AntesDeQuitar(const NodoArbol* nodo) {
    if (NodoActual != nullptr && NodoActual->DentroDe(nodo)) {
        NodoActual = nullptr;
    }
    if (NodoDestino != nullptr && NodoDestino->DentroDe(nodo)) {
        NodoDestino = nullptr;
    }
}

void EdicionRequerimientos::AntesDeVaciar() {
    NodoActual = nullptr;
    NodoDestino = nullptr;
}

SelectorNivel& EdicionRequerimientos::Selector(int i) {
    if (i < 1 || i > 4) {
        throw ErrorEjecucion(340, "El elemento " + std::to_string(i) +
                                      " de la matriz de controles no existe");
    }
    return Selectores[static_cast<std::size_t>(i - 1)];
}

const SelectorNivel& EdicionRequerimientos::Selector(int i) const {
    return const_cast<EdicionRequerimientos*>(this)->Selector(i);
}

// ---- counters and the working table ----

int16_t EdicionRequerimientos::SubirContadorClaves() {
    ContadorClaves = Sumar16(ContadorClaves, 1);
    return ContadorClaves;
}

void EdicionRequerimientos::FijarContadorClaves(int cuenta) {
    ContadorClaves = Sumar16(0, cuenta);
}

std::string EdicionRequerimientos::ClaveNueva(int nivel) const {
    return LetraNivel(nivel) + " " + std::to_string(ContadorClaves);
}

NodoEdicion& EdicionRequerimientos::Registro(const NodoArbol* nodo) {
    return sesion_.NodosEdicion(*nodo->Tag());
}

// The first four steps of a new record: the next row of the table, blank.
void EdicionRequerimientos::NuevoRegistro(NodoArbol* nodo) {
    const int16_t indice = SiguienteNodoEdicion;
    sesion_.NodoEdicionActual = indice;
    SiguienteNodoEdicion = Sumar16(SiguienteNodoEdicion, 1);
    tvwArbol.CambiarTag(nodo, indice);
    sesion_.NodosEdicion.RedimensionarConservando(indice);
    NodoEdicion& registro = sesion_.NodosEdicion(indice);
    registro.Descripcion.clear();
    registro.Directo = ValorLibre();
    registro.Peso = ValorLibre();
    registro.PesoAuxiliar = ValorLibre();
    registro.Calculo = CalculoDirecto;
    registro.Funcion.Tipo = FuncionNinguna;
}

void EdicionRequerimientos::CrearNodoEdicion(NodoArbol* nodo) {
    NuevoRegistro(nodo);
    ReiniciarPesos(nodo->Padre());
}

void EdicionRequerimientos::ReiniciarPesos(NodoArbol* padre) {
    if (padre == nullptr || padre->NumHijos() == 0) {
        return;
    }
    const int hermanos = padre->NumHijos();
    for (NodoArbol* hijo : padre->Hijos()) {
        if (!hijo->Tag()) {
            NuevoRegistro(hijo);
        }
        NodoEdicion& registro = Registro(hijo);
        registro.Saaty.Redimensionar(hermanos);
        registro.Directo = ValorLibre();
        registro.Peso = ValorLibre();
        registro.PesoAuxiliar = ValorLibre();
    }
}

// ---- additions ----

NodoArbol* EdicionRequerimientos::AñadirNodo(NodoArbol* relativo, Relacion relacion, int nivel,
                                             const std::string& texto) {
    return tvwArbol.Añadir(relativo, relacion, ClaveNueva(nivel), texto, ImagenNivel(nivel));
}

void EdicionRequerimientos::MostrarYSeleccionar(NodoArbol* nodo) {
    tvwArbol.AsegurarVisible(nodo);
    tvwArbol.Seleccionar(nodo);
}

void EdicionRequerimientos::AñadirRequerimiento(const std::string& texto) {
    SubirContadorClaves();
    NodoArbol* nuevo =
        AñadirNodo(tvwArbol.Nodo(1), Relacion::UltimoHijo, NivelRequerimiento, texto);
    CrearNodoEdicion(nuevo);
    MostrarYSeleccionar(nuevo);
    ActualizarCombos(nuevo);
}

void EdicionRequerimientos::AñadirCriterio(const std::string& texto) {
    NodoActual = tvwArbol.Seleccionado();
    SubirContadorClaves();
    NodoArbol* padre = nullptr;
    switch (NivelNodo(NodoActual)) {
    case NivelRequerimiento:
        padre = NodoActual;
        break;
    case NivelCriterio:
        padre = NodoActual->Padre();
        break;
    case NivelSubcriterio:
    case NivelIndicador:
        // Beside the parent: from an indicator of a subcriterion this lands inside the
        // criterion, one level too deep, and so it must.
        padre = PadreExigido(NodoActual)->Padre();
        break;
    default:
        throw ErrorSinObjeto();
    }
    NodoArbol* nuevo = AñadirNodo(padre, Relacion::UltimoHijo, NivelCriterio, texto);
    CrearNodoEdicion(nuevo);
    MostrarYSeleccionar(nuevo);
    ActualizarCombos(nuevo);
}

void EdicionRequerimientos::AñadirSubcriterio(const std::string& texto) {
    NodoActual = tvwArbol.Seleccionado();
    SubirContadorClaves();
    NodoArbol* padre = nullptr;
    switch (NivelNodo(NodoActual)) {
    case NivelRequerimiento:
    case NivelCriterio:
        padre = NodoActual;
        break;
    case NivelSubcriterio:
        padre = NodoActual->Padre();
        break;
    case NivelIndicador:
        padre = PadreExigido(NodoActual)->Padre();
        break;
    default:
        throw ErrorSinObjeto();
    }
    NodoArbol* nuevo = AñadirNodo(padre, Relacion::UltimoHijo, NivelSubcriterio, texto);
    CrearNodoEdicion(nuevo);
    MostrarYSeleccionar(nuevo);
    if (TieneIndicadores(NodoActual)) {
        MoverHijos(NodoActual, nuevo, NivelIndicador);
    }
    ActualizarCombos(nuevo);
}

void EdicionRequerimientos::MoverHijos(NodoArbol* nodo, NodoArbol* nuevoPadre, int nivel) {
    while (nodo->PrimerHijo() != nullptr && NivelNodo(nodo->PrimerHijo()) == nivel) {
        tvwArbol.Mover(nodo->PrimerHijo(), nuevoPadre);
    }
}

void EdicionRequerimientos::AñadirIndicador(const std::string& texto) {
    NodoActual = tvwArbol.Seleccionado();
    SubirContadorClaves();
    NodoArbol* padre = nullptr;
    switch (NivelNodo(NodoActual)) {
    case NivelRequerimiento:
        // A criterion first, with the number just drawn and no record of its own.
        NodoActual = AñadirNodo(NodoActual, Relacion::UltimoHijo, NivelCriterio, "Criterio");
        SubirContadorClaves();
        padre = NodoActual;
        break;
    case NivelCriterio:
    case NivelSubcriterio:
        padre = NodoActual;
        break;
    case NivelIndicador:
        padre = NodoActual->Padre();
        break;
    default:
        throw ErrorSinObjeto();
    }
    NodoArbol* nuevo = AñadirNodo(padre, Relacion::UltimoHijo, NivelIndicador, texto);
    CrearNodoEdicion(nuevo);
    MostrarYSeleccionar(nuevo);
    ActualizarCombos(nuevo);
}

void EdicionRequerimientos::InsertarAntes() { InsertarJunto(Relacion::Anterior); }

void EdicionRequerimientos::InsertarDespues() { InsertarJunto(Relacion::Siguiente); }

// A default node of the selected node's level, beside it.
void EdicionRequerimientos::InsertarJunto(Relacion lado) {
    SubirContadorClaves();
    NodoActual = tvwArbol.Seleccionado();
    if (NodoActual == nullptr) {
        return;
    }
    const int nivel = NivelNodo(NodoActual);
    CrearNodoEdicion(AñadirNodo(NodoActual, lado, nivel, TextoNivel(nivel, sesion_.modelo)));
}

// ---- removal ----

void EdicionRequerimientos::Eliminar() {
    NodoActual = tvwArbol.Seleccionado();
    // The root stays: the delete key reaches here without a test.
    if (NodoActual == nullptr || NodoActual == tvwArbol.Nodo(1)) {
        return;
    }
    NodoArbol* siguiente =
        NodoActual->Anterior() != nullptr ? NodoActual->Anterior() : NodoActual->Siguiente();
    NodoArbol* padre = NodoActual->Padre();
    if (padre != nullptr && padre->Tag() && *padre->Tag() > 0) {
        Registro(padre).PesosBorrados = true;
    }
    // The rows are sized with the node still counted, and before the question: a No keeps the
    // node but not the weights of its siblings.
    ReiniciarPesos(padre);
    bool quitar = true;
    if (NodoActual->NumHijos() > 0) {
        quitar = MsgBox("El elemento selecionado tiene uno o más subnodos. Está seguro que "
                        "quiere eliminarlo?",
                        Botones::SiNo, Icono::Pregunta,
                        "VADRO PROGRAMADOR: eliminar nodo") == Respuesta::Si;
    }
    if (quitar) {
        tvwArbol.Quitar(NodoActual);
    }
    if (siguiente != nullptr) {
        tvwArbol.Seleccionar(siguiente);
    }
    Reordenar();
    ActualizarCombos(siguiente);
}

// ---- clipboard and keys ----

void EdicionRequerimientos::Copiar() {
    NodoArbol* nodo = tvwArbol.Seleccionado();
    if (nodo == nullptr) {
        return;
    }
    PegarHabilitado = true;
    tvwCopia.Vaciar();
    CopiaNodo(tvwArbol, nodo, tvwCopia, nullptr);
}

void EdicionRequerimientos::Pegar() {
    if (tvwCopia.Vacio()) {
        return;
    }
    CopiaNodo(tvwCopia, tvwCopia.Nodo(1), tvwArbol, tvwArbol.Seleccionado());
    Reordenar();
}

void EdicionRequerimientos::CopiaNodo(const Arbol& /*arbolOrigen*/, const NodoArbol* nodo,
                                      Arbol& arbolDestino, NodoArbol* padreDestino) {
    const auto nuevaClave = [this](const NodoArbol& origen) {
        SubirContadorClaves();
        return origen.Key().substr(0, 1) + " " + std::to_string(ContadorClaves);
    };
    const auto imagen = [](const NodoArbol& origen) { return NivelNodo(&origen); };
    try {
        CopiarRama(*nodo, arbolDestino, padreDestino, nuevaClave, imagen);
    } catch (const ErrorEjecucion& error) {
        MsgBox("Error grave en -11665\n" + error.Descripcion(), Botones::Aceptar, Icono::Critico,
               "VADRO PROGRAMADOR");
    }
}

void EdicionRequerimientos::Reordenar() {
    FijarContadorClaves(RenumerarClaves(tvwArbol, 1));
}

} // namespace vadro
