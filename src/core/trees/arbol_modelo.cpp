#include "core/trees/arbol_modelo.h"

#include "core/core/formato_numero.h"

#include "core/trees/niveles.h"

#include <cmath>
#include <cstdio>
#include <optional>

namespace vadro {

namespace {

// Adds the nodes of a model under their parents, found by key.
class Relleno {
public:
    Relleno(Arbol& arbol, bool conClave, bool conPeso, bool conFuncion)
        : arbol_(arbol), conClave_(conClave), conPeso_(conPeso), conFuncion_(conFuncion) {}

    void Nodo(const std::string& clavePadre, const std::string& clave, const CabeceraNodo& registro,
              int nivel) {
        NodoArbol* padre = arbol_.NodoPorClave(clavePadre);
        NodoArbol* nodo =
            arbol_.Añadir(padre, Relacion::UltimoHijo, clave, Texto(clave, registro), nivel);
        arbol_.Expandir(nodo);
    }

    void Indicador(const std::string& clavePadre, const std::string& clave,
                   const NodoIndicador& indicador) {
        Nodo(clavePadre, clave, indicador, NivelIndicador);
        if (conFuncion_) {
            const FuncionValor& f = indicador.Funcion;
            NodoArbol* linea = arbol_.Añadir(
                arbol_.NodoPorClave(clave), Relacion::UltimoHijo, "val" + clave,
                "C = " + f.C.Texto() + "; K = " + f.K.Texto() + "; P = " + f.P.Texto(), 0);
            arbol_.Expandir(linea);
        }
    }

private:
    std::string Texto(const std::string& clave, const CabeceraNodo& registro) const {
        std::string texto = conClave_ ? "(" + clave + ") " : "";
        texto += registro.Nombre;
        if (conPeso_ && !registro.Peso.EsVacio()) {
            texto += " (" + Formato00(registro.Peso) + " %)";
        }
        return texto;
    }

    Arbol& arbol_;
    bool conClave_;
    bool conPeso_;
    bool conFuncion_;
};

std::string Numerada(const std::string& letra, int numero) {
    std::string texto = letra;
    texto += std::to_string(numero);
    return texto;
}

} // namespace

void LlenarArbol(Arbol& arbol, const Modelo& modelo, bool conClave, bool conPeso, bool conFuncion) {
    arbol.Vaciar();
    NodoArbol* raiz = arbol.Añadir(nullptr, Relacion::UltimoHijo, "M",
                                   TextoNivel(NivelModelo, modelo), ImagenNivel(NivelModelo));
    arbol.Expandir(raiz);
    if (modelo.NumRequerimientos.EsVacio()) {
        return;
    }
    Relleno relleno(arbol, conClave, conPeso, conFuncion);
    for (int r = 1; r <= modelo.NumRequerimientos.Cuenta(); ++r) {
        const NodoRequerimiento& requerimiento = modelo.Requerimientos(r);
        const std::string claveR = Numerada("R", r);
        relleno.Nodo("M", claveR, requerimiento, NivelRequerimiento);
        for (int c = 1; c <= requerimiento.NumCriterios.Cuenta(); ++c) {
            const NodoCriterio& criterio = requerimiento.Criterios(c);
            const std::string claveC = Numerada("C", c) + claveR;
            relleno.Nodo(claveR, claveC, criterio, NivelCriterio);
            for (int s = 1; s <= criterio.NumSubcriterios.Cuenta(); ++s) {
                const NodoSubcriterio& subcriterio = criterio.Subcriterios(s);
                const std::string claveS = Numerada("S", s) + claveC;
                relleno.Nodo(claveC, claveS, subcriterio, NivelSubcriterio);
                for (int i = 1; i <= subcriterio.NumIndicadores.Cuenta(); ++i) {
                    relleno.Indicador(claveS, Numerada("I", i) + claveS,
                                      subcriterio.Indicadores(i));
                }
            }
            for (int i = 1; i <= criterio.NumIndicadores.Cuenta(); ++i) {
                relleno.Indicador(claveC, Numerada("I", i) + claveC, criterio.Indicadores(i));
            }
        }
    }
}

void EliminarSubcriteriosDelNodo(Arbol& arbol, NodoArbol* nodo) {
    NodoArbol* actual = nodo->PrimerHijo();
    while (actual != nullptr) {
        switch (NivelNodo(actual)) {
        case NivelSubcriterio:
            // The loop looks at the first child and moves the last: the indicators arrive at
            // their new parent last first.
            while (actual->PrimerHijo() != nullptr &&
                   NivelNodo(actual->PrimerHijo()) == NivelIndicador) {
                arbol.Mover(actual->UltimoHijo(), actual->Padre());
            }
            arbol.Quitar(actual);
            actual = nodo->NumHijos() > 0 ? nodo->PrimerHijo() : nodo->Siguiente();
            break;
        case NivelIndicador:
            actual = nullptr; // the sibling after the last one: the scan ends here
            break;
        default:
            if (actual->NumHijos() > 0) {
                EliminarSubcriteriosDelNodo(arbol, actual);
            }
            actual = actual->Siguiente();
            break;
        }
    }
}

void EliminarSubcriterios(Modelo& modelo) {
    for (int r = 1; r <= modelo.NumRequerimientos.Cuenta(); ++r) {
        NodoRequerimiento& requerimiento = modelo.Requerimientos(r);
        for (int c = 1; c <= requerimiento.NumCriterios.Cuenta(); ++c) {
            NodoCriterio& criterio = requerimiento.Criterios(c);
            if (criterio.NumSubcriterios.Cuenta() <= 0) {
                continue;
            }
            criterio.NumIndicadores = 0;
            int n = 0;
            for (int s = 1; s <= criterio.NumSubcriterios.Cuenta(); ++s) {
                NodoSubcriterio& subcriterio = criterio.Subcriterios(s);
                const int propios = subcriterio.NumIndicadores.Cuenta();
                criterio.NumIndicadores = n + propios;
                for (int i = 1; i <= propios; ++i) {
                    ++n;
                    criterio.Indicadores.RedimensionarConservando(n);
                    criterio.Indicadores(n) = std::move(subcriterio.Indicadores(i));
                    criterio.Indicadores(n).Clave =
                        Numerada("I", n) + Numerada("C", c) + Numerada("R", r);
                }
                subcriterio.NumIndicadores = 0;
                subcriterio.Indicadores.Borrar();
            }
            criterio.NumSubcriterios = 0;
            criterio.Subcriterios.Borrar();
        }
    }
}

} // namespace vadro
