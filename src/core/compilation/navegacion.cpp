#include "core/compilation/navegacion.h"

#include "core/trees/arbol.h"

#include <array>
#include <cctype>
#include <stdexcept>
#include <string_view>
#include <utility>

namespace vadro {

namespace {

constexpr std::size_t kLargoPalabra = 6;
// The word, a blank, then the position.
constexpr std::size_t kInicioPosicion = kLargoPalabra + 1;

struct FilaDestino {
    std::string_view palabra;
    PalabraError valor;
    std::optional<Posicion> paso;
    std::optional<Hija> ventana;
    bool buscarNodo;
    Llegada llegada;
};

// The table of the key words, in the order of matching.
constexpr std::array<FilaDestino, 9> kDestinos = {{
    {"FunVal", PalabraError::FunVal, Posicion::Ejes, Hija::Requerimientos, true,
     Llegada::EditarFuncion},
    {"ReqRep", PalabraError::ReqRep, Posicion::Ejes, Hija::Requerimientos, true,
     Llegada::EditarEtiqueta},
    {"SinHij", PalabraError::SinHij, Posicion::Ejes, Hija::Requerimientos, true,
     Llegada::Seleccionar},
    // The position of a node without weight is read and left aside: the overview shows the
    // whole tree with the nodes that lack a weight in their own colour.
    {"PesNul", PalabraError::PesNul, Posicion::Ponderacion, Hija::Ponderacion, false,
     Llegada::Abrir},
    {"SinReq", PalabraError::SinReq, Posicion::Ejes, Hija::Requerimientos, false, Llegada::Abrir},
    {"SinCmp", PalabraError::SinCmp, Posicion::Ejes, Hija::Componentes, false, Llegada::Abrir},
    {"SinEta", PalabraError::SinEta, Posicion::Ejes, Hija::Etapas, false, Llegada::Abrir},
    {"CmpRep", PalabraError::CmpRep, Posicion::Ejes, Hija::Componentes, true,
     Llegada::EditarEtiqueta},
    // A matrix is put right in the weights, which the user reaches from the report's step.
    {"NoCons", PalabraError::NoCons, std::nullopt, std::nullopt, false, Llegada::Nada},
}};

bool EsCifra(char c) {
    return std::isdigit(static_cast<unsigned char>(c)) != 0;
}

} // namespace

std::vector<TramoPosicion> RutaDePosicion(const std::string& posicion) {
    std::vector<TramoPosicion> ruta;
    std::size_t i = 0;
    while (i < posicion.size()) {
        // A step opens with its level's letter, which small letters may follow ("Co", "Sc").
        TramoPosicion tramo;
        if (!EsCifra(posicion[i])) {
            tramo.letras += posicion[i++];
        }
        while (i < posicion.size() && std::islower(static_cast<unsigned char>(posicion[i]))) {
            tramo.letras += posicion[i++];
        }
        const std::size_t cifras = i;
        while (i < posicion.size() && EsCifra(posicion[i])) {
            ++i;
        }
        if (i > cifras) {
            // Report keys hold small counts; a run too long for a number keeps none.
            try {
                tramo.numero = std::stoi(posicion.substr(cifras, i - cifras));
            } catch (const std::out_of_range&) {
            }
        }
        ruta.push_back(std::move(tramo));
    }
    return ruta;
}

ClaveError LeerClaveError(const std::string& clave) {
    ClaveError leida;
    leida.palabra = clave.substr(0, kLargoPalabra);
    if (clave.size() > kInicioPosicion) {
        leida.posicion = clave.substr(kInicioPosicion);
    }
    leida.ruta = RutaDePosicion(leida.posicion);
    return leida;
}

DestinoError DestinoDeError(const std::string& clave) {
    DestinoError destino;
    destino.clave = LeerClaveError(clave);
    for (const FilaDestino& fila : kDestinos) {
        if (fila.palabra == destino.clave.palabra) {
            destino.palabra = fila.valor;
            destino.paso = fila.paso;
            destino.ventana = fila.ventana;
            destino.buscarNodo = fila.buscarNodo;
            destino.llegada = fila.llegada;
            break;
        }
    }
    return destino;
}

const std::vector<Hija>& VentanasCerradasAlNavegar() {
    static const std::vector<Hija> ventanas = {Hija::Requerimientos, Hija::Componentes,
                                               Hija::Etapas, Hija::Resumen, Hija::Ponderacion};
    return ventanas;
}

std::optional<Transicion> TransicionHaciaError(const DestinoError& destino) {
    if (!destino.paso || !destino.ventana) {
        return std::nullopt;
    }
    Transicion t;
    t.destino = destino.paso;
    switch (*destino.paso) {
    case Posicion::Ejes:
        // The design step as its own walk sets it, with templates importable again.
        t.ajuste = AjusteDiseno();
        t.ajuste.importar = true;
        t.descargar = {Hija::Informe};
        t.cargar = {Hija::Ejes, *destino.ventana};
        break;
    case Posicion::Ponderacion:
        t.ajuste = AjusteRevision();
        t.ajuste.importar = false;
        t.descargar = {Hija::Ejes, Hija::Informe};
        t.cargar = {*destino.ventana};
        break;
    case Posicion::Resumen:
    case Posicion::Informe:
    case Posicion::Ninguna:
        t.cargar = {*destino.ventana};
        break;
    }
    return t;
}

NodoArbol* NodoDeError(const Arbol& arbol, const std::string& posicion) {
    for (int i = 1; i <= arbol.Cuenta(); ++i) {
        if (arbol.Nodo(i)->Key() == posicion) {
            return arbol.Nodo(i);
        }
    }
    return arbol.Vacio() ? nullptr : arbol.Nodo(arbol.Cuenta());
}

} // namespace vadro
