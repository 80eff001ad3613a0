#include "core/trees/edicion_requerimientos.h"

#include "core/core/error_ejecucion.h"

namespace vadro {

namespace {

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

// The requirements tree: one letter names a level, the level is the image, and the tree's
// edits leave `Modificado` alone.
constexpr ReglasArbol kReglas{
    .letrasClave = 1,
    .nivel = NivelNodo,
    .prefijo = LetraNivel,
    .imagen = ImagenNivel,
    .textoNuevo = TextoNivel,
    .imagenCopia = [](const NodoArbol& origen) { return NivelNodo(&origen); },
    .destinoPermitido = DestinoPermitido,
    .falloCopia =
        [](const ErrorEjecucion& error) { return "Error grave en -11665\n" + error.Descripcion(); },
    .marcaModificado = false,
};

} // namespace

EdicionRequerimientos::EdicionRequerimientos(Sesion& sesion) : EdicionArbol(sesion, kReglas) {}

// ---- counters and the working table ----

void EdicionRequerimientos::FijarContadorClaves(int cuenta) {
    ContadorClaves = Sumar16(0, cuenta);
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

void EdicionRequerimientos::AñadirRequerimiento(const std::string& texto) {
    SubirContadorClaves();
    ActualizarCombos(AñadirHijo(tvwArbol.Nodo(1), NivelRequerimiento, texto));
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
    ActualizarCombos(AñadirHijo(padre, NivelCriterio, texto));
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
    NodoArbol* nuevo = AñadirHijo(padre, NivelSubcriterio, texto);
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
    ActualizarCombos(AñadirHijo(padre, NivelIndicador, texto));
}

void EdicionRequerimientos::AñadirNivel(int nivel, const std::string& texto) {
    switch (nivel) {
    case NivelRequerimiento:
        AñadirRequerimiento(texto);
        break;
    case NivelCriterio:
        AñadirCriterio(texto);
        break;
    case NivelSubcriterio:
        AñadirSubcriterio(texto);
        break;
    default:
        AñadirIndicador(texto);
        break;
    }
}

// Every node the user adds gets its record; the criterion an indicator brings along does not.
void EdicionRequerimientos::NodoCreado(NodoArbol* nodo) {
    CrearNodoEdicion(nodo);
}

// ---- removal ----

// The root stays: the delete key reaches here without a test.
bool EdicionRequerimientos::AntesDeEliminar(NodoArbol* nodo) {
    if (nodo == tvwArbol.Nodo(1)) {
        return false;
    }
    NodoArbol* padre = nodo->Padre();
    if (padre != nullptr && padre->Tag() && *padre->Tag() > 0) {
        Registro(padre).PesosBorrados = true;
    }
    // The rows are sized with the node still counted, and before the question: a No keeps the
    // node but not the weights of its siblings.
    ReiniciarPesos(padre);
    return true;
}

// ---- clipboard ----

void EdicionRequerimientos::CopiaNodo(const Arbol& /*arbolOrigen*/, const NodoArbol* nodo,
                                      Arbol& arbolDestino, NodoArbol* padreDestino) {
    CopiaNodo(nodo, arbolDestino, padreDestino);
}

void EdicionRequerimientos::Reordenar() {
    FijarContadorClaves(RenumerarClaves(tvwArbol, 1));
}

} // namespace vadro
