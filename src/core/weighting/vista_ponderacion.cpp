#include "core/weighting/vista_ponderacion.h"

#include "core/core/formato_numero.h"

#include <algorithm>

namespace vadro {

namespace {

constexpr int kRequerimientos = 0;
constexpr int kCriterios = 1;
constexpr int kSubcriterios = 2;
constexpr int kIndicadores = 3;

// The nodes of an array that its count names and that are really stored.
template <typename Nodo> int Existentes(const Arreglo<Nodo>& nodos, const ValorLibre& cuenta) {
    return std::min(HayElementos(cuenta) ? cuenta.Cuenta() : 0, nodos.Tamano());
}

// Whether some stored criterion has subcriteria: the column of subcriteria is then shown.
bool ConSubcriterios(const Modelo& modelo) {
    const int nr = Existentes(modelo.Requerimientos, modelo.NumRequerimientos);
    for (int r = 1; r <= nr; ++r) {
        const NodoRequerimiento& req = modelo.Requerimientos(r);
        const int nc = Existentes(req.Criterios, req.NumCriterios);
        for (int c = 1; c <= nc; ++c) {
            if (Existentes(req.Criterios(c).Subcriterios, req.Criterios(c).NumSubcriterios) > 0) {
                return true;
            }
        }
    }
    return false;
}

int16_t Numero(int n) {
    return static_cast<int16_t>(n);
}

// The entry of a row's path that holds a level.
std::size_t Entrada(int nivel) {
    return static_cast<std::size_t>(nivel) + 1;
}

bool MismoCamino(const RutaFila& a, const RutaFila& b, int nivel) {
    for (int l = 0; l <= nivel; ++l) {
        if (a[Entrada(l)] != b[Entrada(l)]) {
            return false;
        }
    }
    return true;
}

class Constructor {
public:
    Constructor(const Modelo& modelo, VistaPonderacion& vista) : modelo_(modelo), vista_(vista) {}

    void Llenar() {
        const int nr = Existentes(modelo_.Requerimientos, modelo_.NumRequerimientos);
        for (int r = 1; r <= nr; ++r) {
            Requerimiento(r, modelo_.Requerimientos(r));
        }
    }

private:
    void Requerimiento(int r, const NodoRequerimiento& requerimiento) {
        const int nc = Existentes(requerimiento.Criterios, requerimiento.NumCriterios);
        if (nc == 0) {
            Fila({r, -1, -1, -1});
        }
        for (int c = 1; c <= nc; ++c) {
            Criterio(r, c, requerimiento.Criterios(c));
        }
    }

    void Criterio(int r, int c, const NodoCriterio& criterio) {
        const int ns = Existentes(criterio.Subcriterios, criterio.NumSubcriterios);
        for (int s = 1; s <= ns; ++s) {
            const NodoSubcriterio& sub = criterio.Subcriterios(s);
            Indicadores(r, c, s, Existentes(sub.Indicadores, sub.NumIndicadores));
        }
        if (ns == 0) {
            Indicadores(r, c, -1, Existentes(criterio.Indicadores, criterio.NumIndicadores));
        }
    }

    void Indicadores(int r, int c, int s, int ni) {
        if (ni == 0) {
            Fila({r, c, s, -1});
        }
        for (int i = 1; i <= ni; ++i) {
            Fila({r, c, s, i});
        }
    }

    void Fila(std::array<int, 4> camino) {
        RutaFila ruta{};
        ruta[kEntradaFila] = Numero(vista_.NumFilas() + 1);
        for (int l = 0; l < 4; ++l) {
            ruta[Entrada(l)] = Numero(camino[static_cast<std::size_t>(l)]);
        }
        vista_.Rutas.push_back(ruta);
        std::vector<CeldaVista> celdas(static_cast<std::size_t>(vista_.NumColumnas()));
        vista_.Filas.push_back(std::move(celdas));
        const int fila = vista_.NumFilas() - 1;
        for (int columna = 0; columna < vista_.NumColumnas(); ++columna) {
            Pintar(modelo_, vista_, fila, columna);
        }
    }

public:
    static void Pintar(const Modelo& modelo, VistaPonderacion& vista, int fila, int columna) {
        CeldaVista& celda =
            vista.Filas[static_cast<std::size_t>(fila)][static_cast<std::size_t>(columna)];
        const CabeceraNodo* nodo = NodoDeCelda(modelo, vista, fila, columna);
        celda.Texto = nodo ? TextoNodoPonderacion(*nodo) : "";
        celda.Fondo = nodo ? ColorNodoPonderacion(*nodo) : ColorBlanco;
    }

private:
    const Modelo& modelo_;
    VistaPonderacion& vista_;
};

} // namespace

std::string TextoNodoPonderacion(const CabeceraNodo& nodo) {
    std::string texto = "(" + nodo.Clave + ") " + nodo.Nombre;
    if (!nodo.Peso.EsVacio()) {
        texto += "\nPeso: " + Formato00(nodo.Peso) + " %";
    }
    return texto;
}

ColorRGB ColorNodoPonderacion(const CabeceraNodo& nodo) {
    return nodo.Peso.EsVacio() ? ColorRojoClaro : ColorBlanco;
}

const CeldaVista& VistaPonderacion::Celda(int fila, int columna) const {
    return Filas.at(static_cast<std::size_t>(fila)).at(static_cast<std::size_t>(columna));
}

int VistaPonderacion::Nivel(int columna) const {
    if (!ConSubcriterios && columna == kSubcriterios) {
        return kIndicadores;
    }
    return columna;
}

int VistaPonderacion::Extension(int fila, int columna) const {
    const int nivel = Nivel(columna);
    const RutaFila& ruta = Rutas.at(static_cast<std::size_t>(fila));
    if (ruta[Entrada(nivel)] == kSinNivel) {
        return 1;
    }
    int ultima = fila;
    while (ultima + 1 < NumFilas() &&
           MismoCamino(Rutas[static_cast<std::size_t>(ultima + 1)], ruta, nivel)) {
        ++ultima;
    }
    return ultima - fila + 1;
}

VistaPonderacion ConstruirVistaPonderacion(const Modelo& modelo) {
    VistaPonderacion vista;
    vista.ConSubcriterios = ConSubcriterios(modelo);
    vista.Cabeceras = {"Requerimientos", "Criterios"};
    if (vista.ConSubcriterios) {
        vista.Cabeceras.emplace_back("Subcriterios");
    }
    vista.Cabeceras.emplace_back("Indicadores");
    Constructor(modelo, vista).Llenar();
    return vista;
}

const CabeceraNodo* NodoDeCelda(const Modelo& modelo, const VistaPonderacion& vista, int fila,
                                int columna) {
    const int nivel = vista.Nivel(columna);
    const RutaFila& ruta = vista.Rutas.at(static_cast<std::size_t>(fila));
    if (ruta[Entrada(nivel)] == kSinNivel) {
        return nullptr;
    }
    const NodoRequerimiento& r = modelo.Requerimientos(ruta[Entrada(kRequerimientos)]);
    if (nivel == kRequerimientos) {
        return &r;
    }
    const NodoCriterio& c = r.Criterios(ruta[Entrada(kCriterios)]);
    if (nivel == kCriterios) {
        return &c;
    }
    const int16_t s = ruta[Entrada(kSubcriterios)];
    if (nivel == kSubcriterios) {
        return &c.Subcriterios(s);
    }
    const int16_t i = ruta[Entrada(kIndicadores)];
    return s == kSinNivel ? &c.Indicadores(i) : &c.Subcriterios(s).Indicadores(i);
}

namespace {

bool Vacia(const VistaPonderacion& vista, int fila, int columna) {
    return vista.Rutas.at(static_cast<std::size_t>(fila))[Entrada(vista.Nivel(columna))] ==
           kSinNivel;
}

// The column a click counts for: an empty subcriteria cell stands for the next filled cell of
// its row (a criterion with indicators straight under it); none for an empty cell.
std::optional<int> ColumnaEfectiva(const VistaPonderacion& vista, int fila, int columna) {
    if (vista.ConSubcriterios && columna == kSubcriterios && Vacia(vista, fila, columna)) {
        ++columna;
    }
    if (Vacia(vista, fila, columna)) {
        return std::nullopt;
    }
    return columna;
}

} // namespace

std::optional<SeleccionConjunto> SeleccionarConjunto(const VistaPonderacion& vista, int fila,
                                                     int columna) {
    auto seleccion = ConjuntoDeCelda(vista, fila, columna);
    if (!seleccion) {
        MsgBox("Esta rama del árbol no está completa. Solucione el problema en la ventana de "
               "diseño del árbol de requerimientos.",
               Botones::Aceptar, Icono::Informacion, "VADRO PROGRAMADOR: Ponderación");
    }
    return seleccion;
}

std::optional<SeleccionConjunto> ConjuntoDeCelda(const VistaPonderacion& vista, int fila,
                                                 int columna) {
    const auto efectiva = ColumnaEfectiva(vista, fila, columna);
    if (!efectiva) {
        return std::nullopt;
    }
    if (*efectiva == 0) {
        return SeleccionConjunto{0, 0, vista.NumFilas() - 1};
    }
    int izquierda = *efectiva - 1;
    while (Vacia(vista, fila, izquierda)) {
        --izquierda;
    }
    // The parent's merged cell bounds the set: find its first row, then its extent.
    const int nivel = vista.Nivel(izquierda);
    const RutaFila& ruta = vista.Rutas[static_cast<std::size_t>(fila)];
    int primera = fila;
    while (primera > 0 &&
           MismoCamino(vista.Rutas[static_cast<std::size_t>(primera - 1)], ruta, nivel)) {
        --primera;
    }
    return SeleccionConjunto{*efectiva, primera, primera + vista.Extension(primera, izquierda) - 1};
}

void RepintarConjunto(const Modelo& modelo, VistaPonderacion& vista,
                      const SeleccionConjunto& seleccion) {
    for (int fila = seleccion.Primera; fila <= seleccion.Ultima; ++fila) {
        const CabeceraNodo* nodo = NodoDeCelda(modelo, vista, fila, seleccion.Columna);
        vista.Filas[static_cast<std::size_t>(fila)][static_cast<std::size_t>(seleccion.Columna)]
            .Fondo = nodo ? ColorNodoPonderacion(*nodo) : ColorBlanco;
    }
}

void ReconstruirConjunto(const Modelo& modelo, VistaPonderacion& vista,
                         const SeleccionConjunto& seleccion) {
    for (int fila = seleccion.Primera; fila <= seleccion.Ultima; ++fila) {
        Constructor::Pintar(modelo, vista, fila, seleccion.Columna);
    }
}

std::optional<DireccionConjunto> DireccionDeCelda(const VistaPonderacion& vista, int fila,
                                                  int columna) {
    const auto efectiva = ColumnaEfectiva(vista, fila, columna);
    if (!efectiva) {
        return std::nullopt;
    }
    const RutaFila& ruta = vista.Rutas.at(static_cast<std::size_t>(fila));
    const auto indice = [&ruta](int nivel) { return ValorLibre(ruta[Entrada(nivel)]); };
    switch (vista.Nivel(*efectiva)) {
    case kRequerimientos:
        return DireccionConjunto{};
    case kCriterios:
        return DireccionConjunto{indice(kRequerimientos), {}, {}};
    case kSubcriterios:
        return DireccionConjunto{indice(kRequerimientos), indice(kCriterios), {}};
    default:
        break;
    }
    if (ruta[Entrada(kSubcriterios)] == kSinNivel) {
        return DireccionConjunto{indice(kRequerimientos), indice(kCriterios), {}};
    }
    return DireccionConjunto{indice(kRequerimientos), indice(kCriterios), indice(kSubcriterios)};
}

std::string TextoPesoGlobal(const Modelo& modelo, const VistaPonderacion& vista, int fila,
                            int columna) {
    if (Vacia(vista, fila, columna)) {
        return "";
    }
    double parte = 1;
    for (int c = 0; c <= columna; ++c) {
        if (Vacia(vista, fila, c)) {
            continue; // a criterion's own indicators skip the subcriteria column
        }
        const ValorLibre& peso = NodoDeCelda(modelo, vista, fila, c)->Peso;
        const auto numero =
            peso.EsNumero() ? std::optional<double>(peso.Numero()) : LeerNumero(peso.Texto());
        if (!numero) {
            return "";
        }
        parte *= *numero / 100;
    }
    return "Peso global: " + Formato00(parte * 100) + " %";
}

bool ModeloPonderable(const Modelo& modelo) {
    return HayElementos(modelo.NumRequerimientos);
}

Transicion PreguntarModeloVacio() {
    const Respuesta respuesta =
        MsgBox("Imposible ponderar. El modelo está vacío.\nDesea volver a la pantalla de diseño "
               "del árbol de requerimientos?",
               Botones::SiNo, Icono::Critico, "VADRO PROGRAMADOR: Ponderación");
    Transicion t;
    t.descargar = {Hija::Ponderacion};
    if (respuesta == Respuesta::Si) {
        t.ajuste = AjusteDiseno();
        t.cargar = {Hija::Ejes};
        t.destino = Posicion::Ejes;
    } else {
        t.ajuste = AjusteRevision();
        t.cargar = {Hija::Informe};
        t.destino = Posicion::Informe;
    }
    return t;
}

} // namespace vadro
