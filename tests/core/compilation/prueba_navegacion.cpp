// The way from a finding to its place: reading an error key, the destination of each key
// word, the step that brings the main window there, and the search of the node.

#include "core/compilation/compilacion.h"
#include "core/compilation/navegacion.h"
#include "core/trees/arbol.h"
#include "core/trees/arbol_modelo.h"
#include "core/trees/edicion_componentes.h"
#include "soporte/acta.h"
#include "soporte/datos.h"
#include "soporte/modelo_hallazgos.h"
#include "soporte/prueba_sesion.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace vadro {
namespace {

// The steps of a position, "I|3 C|- R|1", a missing number shown as "-".
std::string Ruta(const std::vector<TramoPosicion>& ruta) {
    std::string texto;
    for (const TramoPosicion& tramo : ruta) {
        texto += (texto.empty() ? "" : " ") + tramo.letras + "|" +
                 (tramo.numero ? std::to_string(*tramo.numero) : "-");
    }
    return texto;
}

const char* const kPalabras[] = {"FunVal", "ReqRep", "SinHij", "PesNul", "SinReq",
                                 "SinCmp", "SinEta", "CmpRep", "NoCons", "Desconocida"};
const char* const kLlegadas[] = {"Nada", "Abrir", "Seleccionar", "EditarEtiqueta", "EditarFuncion"};

// The windows that stand after the common closes and the step, had every window been open.
std::string TrasElPaso(const Transicion& t) {
    std::set<Hija> abiertas = {Hija::Ejes,    Hija::Requerimientos, Hija::Componentes,
                               Hija::Etapas,  Hija::Resumen,        Hija::Ponderacion,
                               Hija::Informe, Hija::Compilacion};
    for (Hija hija : VentanasCerradasAlNavegar()) {
        abiertas.erase(hija);
    }
    for (Hija hija : t.descargar) {
        abiertas.erase(hija);
    }
    abiertas.insert(t.cargar.begin(), t.cargar.end());
    std::string texto;
    for (Hija hija : abiertas) {
        texto += std::string(NombreHija(hija)) + " ";
    }
    return texto + "open, " + NombreHija(t.cargar.back()) + " on top";
}

// Each key of the data file as it is read (word, position, steps), where it leads (word,
// step, window, node search, arrival) and the step of the main window there. Keys name nodes
// at every depth with numbers of more than one digit, sets without a number or with the
// literal 0 of the indicator sets, and what no check writes: a seventh character that is no
// blank (dropped all the same), a key shorter than its word, a word in another case.
TEST(NavegacionDeClaves, EachKeyReadsAndLeadsWhereTheDataFileSays) {
    pruebas::Acta acta;
    for (const pruebas::Caso& caso : pruebas::Casos("compilacion/navegacion.txt")) {
        const std::string clave = caso.campos.at(0);
        const ClaveError leida = LeerClaveError(clave);
        const DestinoError d = DestinoDeError(clave);
        EXPECT_EQ(d.clave.posicion, leida.posicion) << clave;
        std::string fila = "'" + leida.palabra + "' '" + leida.posicion + "' " + Ruta(leida.ruta) +
                           "; " + kPalabras[static_cast<int>(d.palabra)] + " at " +
                           (d.paso ? NombrePosicion(*d.paso) : "no step") + " in " +
                           (d.ventana ? NombreHija(*d.ventana) : "no window") +
                           (d.buscarNodo ? ", node searched, " : ", ") +
                           kLlegadas[static_cast<int>(d.llegada)];
        if (const auto t = TransicionHaciaError(d)) {
            fila += "; to " + NombrePosicion(t->destino.value()) + ", " + TrasElPaso(*t);
            EXPECT_FALSE(t->preguntarPermisos || t->finalDeLinea) << clave;
            EXPECT_TRUE(t->aceptar.empty()) << "nothing is accepted on the way: " << clave;
        }
        acta.Fila(caso.texto, fila);
    }
    acta.Comparar("compilacion/navegacion.txt");
}

// Entries, back (command and button), continue (command and button), design group, import.
std::vector<std::optional<bool>> Mandos(const char* clave) {
    const Ajuste a = TransicionHaciaError(DestinoDeError(clave)).value().ajuste;
    return {a.entradasDiseno, a.cmdRetroceder, a.botonRetroceder, a.cmdContinuar,
            a.botonContinuar, a.grupoDiseno,   a.importar};
}

TEST(TransicionHaciaError, TheControlsFollowTheStepAsItsOwnWalkSetsThem) {
    using V = std::vector<std::optional<bool>>;
    EXPECT_EQ(Mandos("SinEta"), (V{true, false, false, true, true, true, true}))
        << "templates are imported at the design step";
    EXPECT_EQ(Mandos("PesNul R1"), (V{false, true, true, true, true, false, false}));
    EXPECT_EQ(VentanasCerradasAlNavegar(),
              (std::vector<Hija>{Hija::Requerimientos, Hija::Componentes, Hija::Etapas,
                                 Hija::Resumen, Hija::Ponderacion}));
}

TEST(NodoDeError, TheFirstNodeByIndexThatBearsTheKeyElseTheLastIndex) {
    Arbol arbol;
    EXPECT_EQ(NodoDeError(arbol, "R1"), nullptr) << "an empty tree has no node to act on";
    NodoArbol* m = arbol.Añadir(nullptr, Relacion::UltimoHijo, "M", "Modelo", 0);
    NodoArbol* r1 = arbol.Añadir(m, Relacion::UltimoHijo, "R1", "Coste", 0);
    NodoArbol* c1 = arbol.Añadir(r1, Relacion::UltimoHijo, "C1R1", "Obra", 0);
    // Created last, shown first: the last index is not the last node in view.
    NodoArbol* r0 = arbol.Añadir(r1, Relacion::Anterior, "R 9", "Nuevo", 0);
    EXPECT_EQ(NodoDeError(arbol, "R1"), r1);
    EXPECT_EQ(NodoDeError(arbol, "C1R1"), c1);
    EXPECT_EQ(NodoDeError(arbol, "M"), m);
    EXPECT_EQ(NodoDeError(arbol, "C2R1"), r0);
    EXPECT_EQ(NodoDeError(arbol, ""), r0);
    EXPECT_EQ(NodoDeError(arbol, "r1"), r0) << "keys are compared as they are";
    // Removing a node closes up the indices: the last is another node then.
    arbol.Quitar(r0);
    EXPECT_EQ(NodoDeError(arbol, "C2R1"), c1);
}

class NavegacionInforme : public pruebas::PruebaSesion {};

// Every key of a real report that asks for a node finds the node of that key in the tree its
// window loads from the same model; the options' keys, which no node bears, find the last.
// With the report of an empty model, the keys name every key word.
TEST_F(NavegacionInforme, EveryNodeKeyOfAReportReachesItsOwnNode) {
    sesion().modelo = pruebas::ModeloConHallazgos();
    std::vector<std::string> claves = ComprobarModelo(sesion().modelo).Claves();
    const InformeErrores vacio = ComprobarModelo(Modelo());
    claves.insert(claves.end(), vacio.Claves().begin(), vacio.Claves().end());
    Arbol requerimientos;
    LlenarArbol(requerimientos, sesion().modelo, false, false, false);
    EdicionComponentes componentes(sesion());
    componentes.Abrir();

    std::string alcanzados;
    std::set<PalabraError> palabras;
    for (const std::string& clave : claves) {
        const DestinoError destino = DestinoDeError(clave);
        if (!clave.empty()) {
            palabras.insert(destino.palabra);
        }
        if (!destino.buscarNodo) {
            continue;
        }
        const Arbol& arbol =
            destino.ventana == Hija::Componentes ? componentes.tvwArbol : requerimientos;
        const NodoArbol* nodo = NodoDeError(arbol, destino.clave.posicion);
        ASSERT_NE(nodo, nullptr) << clave;
        alcanzados += clave + " -> " + nodo->Key() + " " + nodo->Text() + "\n";
    }
    EXPECT_EQ(alcanzados, pruebas::Datos("compilacion/nodos_de_error.txt", alcanzados));
    EXPECT_EQ(palabras.size(), 9U);
    EXPECT_EQ(palabras.count(PalabraError::Desconocida), 0U);
}

} // namespace
} // namespace vadro
