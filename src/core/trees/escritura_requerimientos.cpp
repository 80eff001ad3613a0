#include "core/trees/arbol_modelo.h"
#include "core/trees/edicion_requerimientos.h"

namespace vadro {

namespace {

std::string Con(const std::string& clave, const char* letra, int numero) {
    return clave + letra + std::to_string(numero);
}

// The upper bound of a row, or -1 for a row that was never sized and so matches no count.
int CotaFila(const Arreglo<ValorLibre>& fila) {
    return fila.Presente() ? fila.Cota() : -1;
}

} // namespace

void EdicionRequerimientos::Abrir() {
    Reiniciar();
    UltimasPosiciones = {};
    Modelo& modelo = sesion_.modelo;
    LlenarArbol(tvwArbol, modelo, false, false, false);
    LlenarNodosEdicion(modelo, sesion_.NodosEdicion);
    FijarContadorClaves(tvwArbol.Cuenta());
    if (tvwArbol.Vacio()) {
        return; // the selectors stay as the reset left them: empty and disabled
    }
    NodoArbol* primero = tvwArbol.Nodo(1);
    tvwArbol.Seleccionar(primero);
    NodoActual = primero;
    ActualizarCombos(primero);
}

void EdicionRequerimientos::LlenarNodosEdicion(const Modelo& modelo, Arreglo<NodoEdicion>& tabla) {
    int16_t n = 1;
    tvwArbol.CambiarTag(tvwArbol.Nodo(1), n);
    tabla.Redimensionar(1);
    if (!modelo.NumRequerimientos.EsVacio()) {
        // The same walk as the tree's fill, so that the node at position n is the record's.
        const auto registrar = [&](const CabeceraNodo& cabecera) -> NodoEdicion& {
            n = Sumar16(n, 1);
            tvwArbol.CambiarTag(tvwArbol.Nodo(n), n);
            tabla.RedimensionarConservando(n);
            NodoEdicion& registro = tabla(n);
            registro.Descripcion = cabecera.Descripcion;
            registro.Calculo = cabecera.Calculo;
            registro.Peso = cabecera.Peso;
            registro.Directo = cabecera.Directo;
            registro.Saaty = cabecera.Saaty;
            return registro;
        };
        for (int r = 1; r <= modelo.NumRequerimientos.Cuenta(); ++r) {
            const NodoRequerimiento& requerimiento = modelo.Requerimientos(r);
            registrar(requerimiento);
            for (int c = 1; c <= requerimiento.NumCriterios.Cuenta(); ++c) {
                const NodoCriterio& criterio = requerimiento.Criterios(c);
                registrar(criterio);
                for (int s = 1; s <= criterio.NumSubcriterios.Cuenta(); ++s) {
                    const NodoSubcriterio& subcriterio = criterio.Subcriterios(s);
                    registrar(subcriterio);
                    for (int i = 1; i <= subcriterio.NumIndicadores.Cuenta(); ++i) {
                        registrar(subcriterio.Indicadores(i)).Funcion =
                            subcriterio.Indicadores(i).Funcion;
                    }
                }
                for (int i = 1; i <= criterio.NumIndicadores.Cuenta(); ++i) {
                    registrar(criterio.Indicadores(i)).Funcion = criterio.Indicadores(i).Funcion;
                }
            }
        }
    }
    SiguienteNodoEdicion = Sumar16(n, 1);
}

// Name and key always; the rest only from a node with a record. A node without one gets it
// now, and its slot keeps what it held. `filaDePrueba` is the node whose row must span
// `cuentaDePrueba` entries for the weights to travel: the node itself for requirements and
// criteria, the enclosing criterion below them.
bool EdicionRequerimientos::EscribirCabecera(CabeceraNodo& destino, NodoArbol* nodo,
                                             const std::string& clave,
                                             const NodoArbol* filaDePrueba, int cuentaDePrueba) {
    destino.Clave = clave;
    destino.Nombre = nodo->Text();
    if (!nodo->Tag()) {
        CrearNodoEdicion(nodo);
        return false;
    }
    const NodoEdicion& registro = Registro(nodo);
    destino.Descripcion = registro.Descripcion;
    destino.Calculo = registro.Calculo;
    if (CotaFila(Registro(filaDePrueba).Saaty) == cuentaDePrueba) {
        destino.Peso = registro.Peso;
        destino.PesoAuxiliar = registro.PesoAuxiliar;
        destino.Directo = registro.Directo;
        destino.Saaty = registro.Saaty;
    } else {
        ReiniciarPesos(nodo->Padre());
    }
    return true;
}

void EdicionRequerimientos::LlenarRequerimientos(Modelo& modelo) {
    if (tvwArbol.Vacio()) {
        return;
    }
    NodoArbol* raiz = tvwArbol.Nodo(1);
    if (!raiz->Tag()) {
        CrearNodoEdicion(raiz);
    }
    const int cuenta = raiz->NumHijos();
    if (cuenta == 0) {
        modelo.NumRequerimientos = 0;
        return;
    }
    modelo.NumRequerimientos = cuenta;
    modelo.Requerimientos.RedimensionarConservando(cuenta);
    for (int r = 1; r <= cuenta; ++r) {
        EscribirRequerimiento(modelo, modelo.Requerimientos(r), raiz->Hijo(r), r);
    }
}

void EdicionRequerimientos::EscribirRequerimiento(Modelo& modelo, NodoRequerimiento& requerimiento,
                                                  NodoArbol* nodo, int r) {
    const std::string clave = Con("", "R", r);
    EscribirCabecera(requerimiento, nodo, clave, nodo, modelo.NumRequerimientos.Cuenta());
    const int cuenta = nodo->NumHijos();
    if (cuenta == 0) {
        requerimiento.NumCriterios = 0;
        return;
    }
    requerimiento.NumCriterios = cuenta;
    requerimiento.Criterios.RedimensionarConservando(cuenta);
    for (int c = 1; c <= cuenta; ++c) {
        EscribirCriterio(requerimiento, requerimiento.Criterios(c), nodo->Hijo(c),
                         Con(clave, "C", c));
    }
}

// Below the criterion the size test looks at the criterion's row against the criteria of the
// requirement, whatever the size of the node's own sibling set: an old habit of the model
// writer that users' files depend on.
void EdicionRequerimientos::EscribirCriterio(NodoRequerimiento& requerimiento,
                                             NodoCriterio& criterio, NodoArbol* nodo,
                                             const std::string& clave) {
    EscribirCabecera(criterio, nodo, clave, nodo, requerimiento.NumCriterios.Cuenta());
    const auto indicador = [&](NodoIndicador& destino, NodoArbol* hijo,
                               const std::string& claveHijo) {
        if (EscribirCabecera(destino, hijo, claveHijo, nodo, requerimiento.NumCriterios.Cuenta())) {
            destino.Funcion = Registro(hijo).Funcion;
        }
    };
    const int cuenta = nodo->NumHijos();
    if (cuenta == 0) {
        criterio.NumIndicadores = 0;
        criterio.NumSubcriterios = 0;
        return;
    }
    // All children are taken as of the kind of the first one.
    if (NivelNodo(nodo->PrimerHijo()) != NivelSubcriterio) {
        criterio.NumIndicadores = cuenta;
        criterio.Indicadores.RedimensionarConservando(cuenta);
        criterio.NumSubcriterios = 0;
        for (int i = 1; i <= cuenta; ++i) {
            indicador(criterio.Indicadores(i), nodo->Hijo(i), Con(clave, "I", i));
        }
        return;
    }
    criterio.NumIndicadores = 0;
    criterio.NumSubcriterios = cuenta;
    for (int s = 1; s <= cuenta; ++s) {
        criterio.Subcriterios.RedimensionarConservando(s);
        NodoSubcriterio& subcriterio = criterio.Subcriterios(s);
        NodoArbol* hijo = nodo->Hijo(s);
        const std::string claveS = Con(clave, "S", s);
        EscribirCabecera(subcriterio, hijo, claveS, nodo, requerimiento.NumCriterios.Cuenta());
        const int indicadores = hijo->NumHijos();
        subcriterio.NumIndicadores = indicadores;
        if (indicadores > 0) {
            subcriterio.Indicadores.RedimensionarConservando(indicadores);
        }
        for (int i = 1; i <= indicadores; ++i) {
            indicador(subcriterio.Indicadores(i), hijo->Hijo(i), Con(claveS, "I", i));
        }
    }
}

void EdicionRequerimientos::LlamaLlenarRequerimientos() {
    LlenarRequerimientos(sesion_.modelo);
}

bool EdicionRequerimientos::GuardarArbol() {
    const bool hayNodos = !tvwArbol.Vacio();
    LlenarRequerimientos(sesion_.modelo);
    return hayNodos;
}

void EdicionRequerimientos::EliminarSubcriteriosDelNodo(NodoArbol* nodo) {
    vadro::EliminarSubcriteriosDelNodo(tvwArbol, nodo);
}

} // namespace vadro
