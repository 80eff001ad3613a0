// The way from a finding to its place: reading an error key, the destination of each key
// word, the step that brings the main window there, and the search of the node.

#include "core/compilation/compilacion.h"
#include "core/compilation/navegacion.h"
#include "core/trees/arbol.h"
#include "core/trees/arbol_modelo.h"
#include "core/trees/edicion_componentes.h"
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

TEST(LeerClaveError, EveryFormOfTheReportSplitsIntoWordPositionAndSteps) {
    struct Caso {
        std::string clave, palabra, posicion, ruta;
    };
    const std::vector<Caso> casos = {
        // Whole keys: no blank, no position.
        {"SinEta", "SinEta", "", ""},
        {"SinCmp", "SinCmp", "", ""},
        {"SinReq", "SinReq", "", ""},
        // The components tree: a component, and an option keyed with letters the tree has not.
        {"CmpRep Co2", "CmpRep", "Co2", "Co|2"},
        {"CmpRep Op3Co1", "CmpRep", "Op3Co1", "Op|3 Co|1"},
        // Node labels at every depth, deepest first, numbers of more than one digit.
        {"ReqRep R12", "ReqRep", "R12", "R|12"},
        {"ReqRep C2R1", "ReqRep", "C2R1", "C|2 R|1"},
        {"ReqRep S3C1R2", "ReqRep", "S3C1R2", "S|3 C|1 R|2"},
        {"ReqRep I2S1C1R1", "ReqRep", "I2S1C1R1", "I|2 S|1 C|1 R|1"},
        {"ReqRep I10C1R1", "ReqRep", "I10C1R1", "I|10 C|1 R|1"},
        {"PesNul R1", "PesNul", "R1", "R|1"},
        {"PesNul I1S1C2R1", "PesNul", "I1S1C2R1", "I|1 S|1 C|2 R|1"},
        {"FunVal I3C2R1", "FunVal", "I3C2R1", "I|3 C|2 R|1"},
        {"SinHij S1C2R1", "SinHij", "S1C2R1", "S|1 C|2 R|1"},
        // Sets: no number after the first letter, and the literal 0 of the indicator sets.
        {"NoCons R", "NoCons", "R", "R|-"},
        {"NoCons CR1", "NoCons", "CR1", "C|- R|1"},
        {"NoCons SC2R1", "NoCons", "SC2R1", "S|- C|2 R|1"},
        {"NoCons I0S1C2R1", "NoCons", "I0S1C2R1", "I|0 S|1 C|2 R|1"},
        {"NoCons I0C3R2", "NoCons", "I0C3R2", "I|0 C|3 R|2"},
        // What no check writes: the seventh character is dropped whatever it is, and a key
        // shorter than the word keeps what it has.
        {"FunValI1C1R1", "FunVal", "1C1R1", "|1 C|1 R|1"},
        {"FunVal ", "FunVal", "", ""},
        {"Fun", "Fun", "", ""},
        {"", "", "", ""},
    };
    for (const Caso& c : casos) {
        SCOPED_TRACE(c.clave);
        const ClaveError leida = LeerClaveError(c.clave);
        EXPECT_EQ(leida.palabra, c.palabra);
        EXPECT_EQ(leida.posicion, c.posicion);
        EXPECT_EQ(Ruta(leida.ruta), c.ruta);
    }
}

TEST(DestinoDeError, EachKeyWordHasItsStepWindowSearchAndArrival) {
    using enum Llegada;
    struct Caso {
        std::string clave;
        PalabraError palabra;
        std::optional<Posicion> paso;
        std::optional<Hija> ventana;
        bool buscarNodo;
        Llegada llegada;
    };
    const auto ejes = Posicion::Ejes;
    const std::vector<Caso> casos = {
        {"FunVal I1C2R1", PalabraError::FunVal, ejes, Hija::Requerimientos, true, EditarFuncion},
        {"FunVal I2S1C2R2", PalabraError::FunVal, ejes, Hija::Requerimientos, true, EditarFuncion},
        {"ReqRep R2", PalabraError::ReqRep, ejes, Hija::Requerimientos, true, EditarEtiqueta},
        {"ReqRep I2S1C1R1", PalabraError::ReqRep, ejes, Hija::Requerimientos, true, EditarEtiqueta},
        {"SinHij C1R2", PalabraError::SinHij, ejes, Hija::Requerimientos, true, Seleccionar},
        {"PesNul S1C1R1", PalabraError::PesNul, Posicion::Ponderacion, Hija::Ponderacion, false,
         Abrir},
        {"SinReq", PalabraError::SinReq, ejes, Hija::Requerimientos, false, Abrir},
        {"SinCmp", PalabraError::SinCmp, ejes, Hija::Componentes, false, Abrir},
        {"SinEta", PalabraError::SinEta, ejes, Hija::Etapas, false, Abrir},
        {"CmpRep Co2", PalabraError::CmpRep, ejes, Hija::Componentes, true, EditarEtiqueta},
        {"CmpRep Op2Co1", PalabraError::CmpRep, ejes, Hija::Componentes, true, EditarEtiqueta},
        {"NoCons R", PalabraError::NoCons, std::nullopt, std::nullopt, false, Nada},
        {"NoCons I0S1C2R1", PalabraError::NoCons, std::nullopt, std::nullopt, false, Nada},
        // The word is the first six characters, compared as they are written.
        {"FunVal", PalabraError::FunVal, ejes, Hija::Requerimientos, true, EditarFuncion},
        {"SinEtapas", PalabraError::SinEta, ejes, Hija::Etapas, false, Abrir},
        {"funval I1C1R1", PalabraError::Desconocida, std::nullopt, std::nullopt, false, Nada},
        {"FunVa", PalabraError::Desconocida, std::nullopt, std::nullopt, false, Nada},
        {"Otra R1", PalabraError::Desconocida, std::nullopt, std::nullopt, false, Nada},
    };
    for (const Caso& c : casos) {
        SCOPED_TRACE(c.clave);
        const DestinoError d = DestinoDeError(c.clave);
        EXPECT_EQ(d.palabra, c.palabra);
        EXPECT_EQ(d.paso, c.paso);
        EXPECT_EQ(d.ventana, c.ventana);
        EXPECT_EQ(d.buscarNodo, c.buscarNodo);
        EXPECT_EQ(d.llegada, c.llegada);
        EXPECT_EQ(d.clave.posicion, LeerClaveError(c.clave).posicion);
    }
}

// The windows that stand after the common closes and the step, had every window been open.
std::set<Hija> TrasElPaso(const DestinoError& destino) {
    std::set<Hija> abiertas = {Hija::Ejes,    Hija::Requerimientos, Hija::Componentes,
                               Hija::Etapas,  Hija::Resumen,        Hija::Ponderacion,
                               Hija::Informe, Hija::Compilacion};
    for (Hija hija : VentanasCerradasAlNavegar()) {
        abiertas.erase(hija);
    }
    if (const auto t = TransicionHaciaError(destino)) {
        for (Hija hija : t->descargar) {
            abiertas.erase(hija);
        }
        abiertas.insert(t->cargar.begin(), t->cargar.end());
    }
    return abiertas;
}

TEST(TransicionHaciaError, TheMainWindowEndsOnTheStepWithItsWindowAndTheReportBehind) {
    using enum Hija;
    struct Caso {
        std::string clave;
        std::set<Hija> abiertas;
        std::optional<Posicion> destino;
        Hija ultima; // the window loaded last, on top
    };
    const std::vector<Caso> casos = {
        {"FunVal I1C1R1", {Ejes, Requerimientos, Compilacion}, Posicion::Ejes, Requerimientos},
        {"ReqRep R2", {Ejes, Requerimientos, Compilacion}, Posicion::Ejes, Requerimientos},
        {"SinHij R1", {Ejes, Requerimientos, Compilacion}, Posicion::Ejes, Requerimientos},
        {"SinReq", {Ejes, Requerimientos, Compilacion}, Posicion::Ejes, Requerimientos},
        {"SinCmp", {Ejes, Componentes, Compilacion}, Posicion::Ejes, Componentes},
        {"CmpRep Co2", {Ejes, Componentes, Compilacion}, Posicion::Ejes, Componentes},
        {"SinEta", {Ejes, Etapas, Compilacion}, Posicion::Ejes, Etapas},
        {"PesNul R1", {Ponderacion, Compilacion}, Posicion::Ponderacion, Ponderacion},
    };
    for (const Caso& c : casos) {
        SCOPED_TRACE(c.clave);
        const DestinoError destino = DestinoDeError(c.clave);
        EXPECT_EQ(TrasElPaso(destino), c.abiertas);
        const auto t = TransicionHaciaError(destino);
        ASSERT_TRUE(t.has_value());
        EXPECT_EQ(t->destino, c.destino);
        EXPECT_EQ(t->cargar.back(), c.ultima);
        EXPECT_FALSE(t->preguntarPermisos);
        EXPECT_FALSE(t->finalDeLinea);
        EXPECT_TRUE(t->aceptar.empty()) << "nothing is accepted on the way";
    }
}

TEST(TransicionHaciaError, TheControlsFollowTheStepAsItsOwnWalkSetsThem) {
    const auto ejes = TransicionHaciaError(DestinoDeError("SinEta"));
    ASSERT_TRUE(ejes);
    EXPECT_EQ(ejes->ajuste.entradasDiseno, true);
    EXPECT_EQ(ejes->ajuste.cmdRetroceder, false);
    EXPECT_EQ(ejes->ajuste.botonRetroceder, false);
    EXPECT_EQ(ejes->ajuste.cmdContinuar, true);
    EXPECT_EQ(ejes->ajuste.botonContinuar, true);
    EXPECT_EQ(ejes->ajuste.grupoDiseno, true);
    EXPECT_EQ(ejes->ajuste.importar, true) << "templates are imported at the design step";

    const auto pesos = TransicionHaciaError(DestinoDeError("PesNul R1"));
    ASSERT_TRUE(pesos);
    EXPECT_EQ(pesos->ajuste.entradasDiseno, false);
    EXPECT_EQ(pesos->ajuste.cmdRetroceder, true);
    EXPECT_EQ(pesos->ajuste.botonRetroceder, true);
    EXPECT_EQ(pesos->ajuste.cmdContinuar, true);
    EXPECT_EQ(pesos->ajuste.grupoDiseno, false);
    EXPECT_EQ(pesos->ajuste.importar, false);

    for (const char* clave : {"NoCons R", "NoCons I0C1R1", "Otra R1"}) {
        EXPECT_FALSE(TransicionHaciaError(DestinoDeError(clave))) << clave;
    }
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
TEST_F(NavegacionInforme, EveryNodeKeyOfAReportReachesItsOwnNode) {
    sesion().modelo = pruebas::ModeloConHallazgos();
    const InformeErrores informe = ComprobarModelo(sesion().modelo);
    Arbol requerimientos;
    LlenarArbol(requerimientos, sesion().modelo, false, false, false);
    EdicionComponentes componentes(sesion());
    componentes.Abrir();

    std::vector<std::string> alcanzados;
    for (const std::string& clave : informe.Claves()) {
        const DestinoError destino = DestinoDeError(clave);
        if (!destino.buscarNodo) {
            continue;
        }
        const Arbol& arbol =
            destino.ventana == Hija::Componentes ? componentes.tvwArbol : requerimientos;
        const NodoArbol* nodo = NodoDeError(arbol, destino.clave.posicion);
        ASSERT_NE(nodo, nullptr) << clave;
        alcanzados.push_back(clave + " -> " + nodo->Key() + " " + nodo->Text());
    }
    EXPECT_EQ(alcanzados, (std::vector<std::string>{
                              "CmpRep Co2 -> Co2 ESTRUCTURA",
                              "CmpRep Op2Co1 -> Co2 ESTRUCTURA",
                              "ReqRep I2S1C2R2 -> I2S1C2R2 RUIDO",
                              "FunVal I1C2R1 -> I1C2R1 Energía",
                              "FunVal I2S1C2R2 -> I2S1C2R2 RUIDO",
                              "SinHij C1R2 -> C1R2 Empleo",
                              "SinHij C2R2 -> C2R2 Seguridad",
                          }));
}

TEST_F(NavegacionInforme, TheTwoReportsCoverEveryKeyWord) {
    std::set<PalabraError> palabras;
    const Modelo vacio;
    for (const InformeErrores& informe :
         {ComprobarModelo(pruebas::ModeloConHallazgos()), ComprobarModelo(vacio)}) {
        for (const std::string& clave : informe.Claves()) {
            if (!clave.empty()) {
                palabras.insert(DestinoDeError(clave).palabra);
            }
        }
    }
    EXPECT_EQ(palabras.size(), 9U);
    EXPECT_EQ(palabras.count(PalabraError::Desconocida), 0U);
}

} // namespace
} // namespace vadro
