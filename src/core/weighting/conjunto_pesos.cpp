#include "core/weighting/conjunto_pesos.h"

#include "core/core/error_ejecucion.h"
#include "core/core/formato_numero.h"
#include "core/weighting/aritmetica.h"

namespace vadro {

namespace {

template <typename Nodo>
std::vector<CabeceraNodo*> Cabeceras(Arreglo<Nodo>& nodos, const ValorLibre& cuenta) {
    std::vector<CabeceraNodo*> cabeceras;
    const int n = cuenta.Cuenta();
    for (int i = 1; i <= n; ++i) {
        cabeceras.push_back(&nodos(i));
    }
    return cabeceras;
}

int Indice(const ValorLibre& indice) {
    return AEntero16(indice);
}

int Tamano(const std::vector<CabeceraNodo*>& nodos) {
    return static_cast<int>(nodos.size());
}

CabeceraNodo& Nodo(const std::vector<CabeceraNodo*>& nodos, int i) {
    return *nodos[static_cast<std::size_t>(i - 1)];
}

void PonerNombres(const std::vector<CabeceraNodo*>& nodos, RejillaPonderacion& rejilla,
                  bool enCabecera) {
    for (int i = 1; i <= Tamano(nodos); ++i) {
        rejilla.PonerTexto(i, 0, Nodo(nodos, i).Nombre);
        if (enCabecera) {
            rejilla.PonerTexto(0, i, Nodo(nodos, i).Nombre);
        }
    }
}

// Cells of a stored row that were never given stay empty; a row written for a smaller set
// is lengthened in the node itself.
void ExtenderFila(CabeceraNodo& nodo, int n) {
    if (nodo.Saaty.Tamano() < n) {
        nodo.Saaty.RedimensionarConservando(n);
    }
}

void CargarFila(CabeceraNodo& nodo, int i, int n, Matriz<ValorLibre>& matriz,
                RejillaPonderacion& rejilla) {
    ExtenderFila(nodo, n);
    for (int j = 1; j <= n; ++j) {
        if (!nodo.Saaty(j).EsVacio()) {
            rejilla.PonerTexto(i, j, Formato00(nodo.Saaty(j)));
        }
        matriz(i, j) = nodo.Saaty(j);
    }
    if (!nodo.Peso.EsVacio()) {
        rejilla.PonerTexto(i, n + 1, Formato00(nodo.Peso));
    }
}

void MarcarDiagonal(int n, Matriz<ValorLibre>& matriz, RejillaPonderacion& rejilla) {
    for (int i = 1; i <= n; ++i) {
        matriz(i, i) = 1;
        rejilla.PonerTexto(i, i, "1");
        rejilla.PonerColorFondo(i, i, ColorAmarilloClaro);
        rejilla.PonerColorFondo(i, n + 1, ColorAmarilloClaro);
    }
}

} // namespace

std::vector<CabeceraNodo*> NodosConjunto(Modelo& modelo, const DireccionConjunto& direccion) {
    if (direccion.Requerimiento.EsVacio()) {
        return Cabeceras(modelo.Requerimientos, modelo.NumRequerimientos);
    }
    NodoRequerimiento& requerimiento = modelo.Requerimientos(Indice(direccion.Requerimiento));
    if (direccion.Criterio.EsVacio()) {
        return Cabeceras(requerimiento.Criterios, requerimiento.NumCriterios);
    }
    NodoCriterio& criterio = requerimiento.Criterios(Indice(direccion.Criterio));
    if (!direccion.Subcriterio.EsVacio()) {
        NodoSubcriterio& subcriterio = criterio.Subcriterios(Indice(direccion.Subcriterio));
        return Cabeceras(subcriterio.Indicadores, subcriterio.NumIndicadores);
    }
    if (criterio.NumSubcriterios.Cuenta() > 0) {
        return Cabeceras(criterio.Subcriterios, criterio.NumSubcriterios);
    }
    return Cabeceras(criterio.Indicadores, criterio.NumIndicadores);
}

AspectoConsistencia InicializarRejillaSaaty(Sesion& sesion, EdicionPesos& edicion,
                                            RejillaPonderacion& rejilla) {
    const auto nodos = NodosConjunto(sesion.modelo, edicion.Direccion);
    const int n = Tamano(nodos);
    rejilla.Dimensionar(n + 1, n + 2);
    sesion.MatrizSaaty.Redimensionar(n, n);
    sesion.PesosEdicion.Redimensionar(n);
    rejilla.PonerTexto(0, 0, CabeceraSaaty);
    rejilla.PonerTexto(0, n + 1, CabeceraPeso);
    PonerNombres(nodos, rejilla, true);
    for (int i = 1; i <= n; ++i) {
        CargarFila(Nodo(nodos, i), i, n, sesion.MatrizSaaty, rejilla);
    }
    MarcarDiagonal(n, sesion.MatrizSaaty, rejilla);
    return RecalcularSaaty(sesion, edicion, rejilla);
}

void InicializarRejillaDirecto(Modelo& modelo, EdicionPesos& edicion, RejillaPonderacion& rejilla) {
    const auto nodos = NodosConjunto(modelo, edicion.Direccion);
    const int n = Tamano(nodos);
    rejilla.Dimensionar(n + 2, 3);
    edicion.PuntuacionesDirecto.Redimensionar(n);
    edicion.PorcentajesDirecto.Redimensionar(n);
    rejilla.PonerTexto(0, 0, CabeceraDirecto);
    rejilla.PonerTexto(0, ColumnaPuntuacion, CabeceraPuntuacion);
    rejilla.PonerTexto(0, ColumnaPorcentaje, CabeceraPeso);
    rejilla.PonerTexto(n + 1, 0, RotuloTotal);
    PonerNombres(nodos, rejilla, false);
    for (int i = 1; i <= n; ++i) {
        const CabeceraNodo& nodo = Nodo(nodos, i);
        if (!nodo.Directo.EsVacio()) {
            rejilla.PonerTexto(i, ColumnaPuntuacion, Formato00(nodo.Directo));
            edicion.PuntuacionesDirecto(i) = nodo.Directo;
        }
        if (!nodo.Peso.EsVacio()) {
            rejilla.PonerTexto(i, ColumnaPorcentaje, Formato00(nodo.Peso));
            edicion.PorcentajesDirecto(i) = nodo.Peso;
        }
    }
}

EntradaMatriz ClasificarEntradaMatriz(const std::string& texto) {
    if (texto.empty()) {
        return EntradaMatriz::Vacia;
    }
    try {
        const auto numero = LeerNumero(texto);
        if (!numero) {
            return EntradaMatriz::NoNumero;
        }
        return *numero <= 0 ? EntradaMatriz::NoPositiva : EntradaMatriz::Valida;
    } catch (const ErrorEjecucion&) {
        return EntradaMatriz::Desbordada;
    }
}

void GuardarValorSaaty(Matriz<ValorLibre>& matriz, int fila, int columna, const ValorLibre& valor,
                       RejillaPonderacion& rejilla) {
    const double inverso = Dividir(1, valor.Numero()); // a text that is no number stores nothing
    matriz(fila, columna) = valor;
    matriz(columna, fila) = inverso;
    rejilla.PonerTexto(fila, columna, Formato00(matriz(fila, columna)));
    rejilla.PonerTexto(columna, fila, Formato00(matriz(columna, fila)));
}

AspectoConsistencia RecalcularSaaty(Sesion& sesion, EdicionPesos& edicion,
                                    RejillaPonderacion& rejilla) {
    ActualizarPesos(sesion.MatrizSaaty, sesion.PesosEdicion, edicion.Consistencia, rejilla);
    return ColorConsistencia(edicion.Consistencia);
}

AspectoConsistencia IntroducirValorSaaty(Sesion& sesion, EdicionPesos& edicion, int fila,
                                         int columna, const ValorLibre& valor,
                                         RejillaPonderacion& rejilla) {
    GuardarValorSaaty(sesion.MatrizSaaty, fila, columna, valor, rejilla);
    return RecalcularSaaty(sesion, edicion, rejilla);
}

void BlanquearCeldaSaaty(Sesion& sesion, EdicionPesos& edicion, int fila, int columna,
                         RejillaPonderacion& rejilla) {
    rejilla.PonerTexto(fila, columna, "");
    rejilla.PonerTexto(columna, fila, "");
    ActualizarPesos(sesion.MatrizSaaty, sesion.PesosEdicion, edicion.Consistencia, rejilla);
}

bool PrimeraFilaCompleta(const Matriz<ValorLibre>& matriz) {
    for (int j = 1; j <= matriz.Columnas(); ++j) {
        if (matriz(1, j).EsVacio()) {
            return false;
        }
    }
    return true;
}

void PrepararConsistenciaPerfecta(Sesion& sesion, const RejillaPonderacion& principal,
                                  RejillaPonderacion& dialogo, ValorLibre& resultado) {
    dialogo.Dimensionar(principal.Filas(), principal.Columnas());
    ConstruirMatrizConsistente(sesion.MatrizSaaty, sesion.MatrizConsistente);
    const int n = sesion.MatrizConsistente.Filas();
    const int columnaPeso = dialogo.Columnas() - 1;
    dialogo.PonerTexto(0, 0, CabeceraSaaty);
    for (int i = 1; i < dialogo.Filas(); ++i) {
        dialogo.PonerTexto(i, 0, principal.Texto(i, 0));
    }
    for (int j = 1; j < columnaPeso; ++j) {
        dialogo.PonerTexto(0, j, principal.Texto(0, j));
    }
    dialogo.PonerTexto(0, columnaPeso, CabeceraPesoConsistente);
    for (int i = 1; i <= n; ++i) {
        for (int j = 1; j <= n; ++j) {
            dialogo.PonerTexto(i, j, Formato00(sesion.MatrizConsistente(i, j)));
        }
        dialogo.PonerColorFondo(i, i, ColorAmarilloClaro);
        dialogo.PonerColorFondo(i, columnaPeso, ColorAmarilloClaro);
    }
    ActualizarPesos(sesion.MatrizConsistente, sesion.PesosConsistentes, resultado, dialogo);
}

void AdoptarConsistenciaPerfecta(Sesion& sesion, const RejillaPonderacion& dialogo,
                                 RejillaPonderacion& principal) {
    sesion.MatrizSaaty = sesion.MatrizConsistente;
    sesion.PesosEdicion = sesion.PesosConsistentes;
    for (int i = 0; i < dialogo.Filas(); ++i) {
        for (int j = 0; j < dialogo.Columnas(); ++j) {
            principal.PonerTexto(i, j, dialogo.Texto(i, j));
        }
    }
    sesion.modelo.Modificado = true;
}

void EscribirConjunto(Sesion& sesion, const EdicionPesos& edicion, MetodoCalculo visible) {
    const auto nodos = NodosConjunto(sesion.modelo, edicion.Direccion);
    const int n = Tamano(nodos);
    for (int i = 1; i <= n; ++i) {
        CabeceraNodo& nodo = Nodo(nodos, i);
        nodo.Saaty.Redimensionar(n);
        for (int j = 1; j <= n; ++j) {
            nodo.Saaty(j) = sesion.MatrizSaaty(i, j);
        }
        nodo.PesoAuxiliar = edicion.Consistencia;
    }
    for (int i = 1; i <= n; ++i) {
        Nodo(nodos, i).Directo = edicion.PuntuacionesDirecto(i);
    }
    for (int i = 1; i <= n; ++i) {
        CabeceraNodo& nodo = Nodo(nodos, i);
        const bool pareado = visible == CalculoSaaty;
        nodo.Peso = pareado ? sesion.PesosEdicion(i) : edicion.PorcentajesDirecto(i);
        nodo.Calculo = pareado ? CalculoSaaty : CalculoDirecto;
    }
}

} // namespace vadro
