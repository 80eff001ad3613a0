#include "edicion_prueba.h"

#include "soporte/componentes_etapas.h"

#include <gtest/gtest.h>

namespace vadro {
namespace {

using namespace pruebas;

// The components window's logic opened on Bombas (Motor, Carcasa) and Tuberías (none).
class Componentes : public PruebaArbol<EdicionComponentes> {
protected:
    void Abrir() {
        PonerComponentes(sesion().modelo, {{"Bombas", {"Motor", "Carcasa"}}, {"Tuberías", {}}});
        ed.Abrir();
    }
    // The tree, each node as key, "=" and text; the selection and the key counter; "modified"
    // when the model was marked since the last state was read (the mark is then taken off);
    // the drop target, if any.
    std::string Estado() override {
        const bool modificado = std::exchange(sesion().modelo.Modificado, false);
        return Forma(ed.tvwArbol, [](const NodoArbol& n) { return n.Key() + "=" + n.Text(); }) +
               Seleccion() + (modificado ? " | modified" : "") + Destino();
    }
    // Works the steps of a data file, with the components tree's additions (on the node named
    // first, with the text named second) and write-backs.
    void Pasos(const std::string& datos, std::deque<Respuesta> respuestas = {}) {
        const auto texto = [](const Argumentos& a, const char* omision) {
            return a.size() > 1 ? a.at(1) : omision;
        };
        Recorrer(datos,
                 {{"AñadirComponente", Sobre([&](const Argumentos& a) {
                       ed.AñadirComponente(texto(a, "Componente"));
                   })},
                  {"AñadirSubcomponente", Sobre([&](const Argumentos& a) {
                       ed.AñadirSubcomponente(texto(a, "Subcomponente"));
                   })},
                  {"ActualizarCombos",
                   Hacer([this](const Argumentos& a) { ed.ActualizarCombos(N(a.at(0))); })},
                  {"LlamaLlenarComponentes",
                   [this](const Argumentos&) {
                       ed.LlamaLlenarComponentes();
                       return Escritos(sesion().modelo);
                   }},
                  {"GuardarArbol",
                   [this](const Argumentos&) {
                       const bool guardado = ed.GuardarArbol();
                       return SiNo(guardado) + " | " + Escritos(sesion().modelo);
                   }}},
                 std::move(respuestas));
    }
};

TEST(NivelesComponentes, TwoLettersGiveTheLevelAndOnlyOneLevelDownIsAllowed) {
    Arbol arbol;
    Tabular("arboles/niveles_componentes.txt",
            {{"Nivel", [&](const Argumentos& a) {
                  const NodoArbol* n = a.at(0).empty() ? nullptr
                                                       : arbol.Añadir(nullptr, Relacion::UltimoHijo,
                                                                      a.at(0), a.at(0), 0);
                  return std::to_string(NivelComponentesDe(n)) + ", a component below " +
                         SiNo(DestinoComponentesPermitido(1, n)) + ", an option below " +
                         SiNo(DestinoComponentesPermitido(2, n));
              }}});
}

// The load keys by position, selects the first component and is no edit.
TEST_F(Componentes, TheLoadKeysByPositionAndSelectsTheFirstComponent) {
    Abrir();
    Pasos("arboles/pasos/componentes_abrir.txt");
}

TEST_F(Componentes, EveryEditMarksTheModelAndNewKeysFollowTheCounter) {
    Abrir();
    Pasos("arboles/pasos/componentes_ediciones.txt");
}

// A No keeps a component with options, and the keys are renewed; the next sibling is
// selected. A component can always be added, even to an empty tree.
TEST_F(Componentes, RemovalAsksForAComponentWithOptionsAndRenumbers) {
    Abrir();
    Pasos("arboles/pasos/componentes_eliminar.txt", {Respuesta::No, Respuesta::Si});
}

// An option goes under a component only, the drop asks nothing, and keys stay through a move.
TEST_F(Componentes, APasteAndADropGoOnlyOneLevelDownAndTheDropAsksNothing) {
    Abrir();
    Pasos("arboles/pasos/componentes_pegar.txt");
}

// The menu by its target, before and after an option is copied.
TEST_F(Componentes, TheMenuShowsByTheTargetAndAPasteGoesOnlyOneLevelDown) {
    Abrir();
    Pasos("arboles/pasos/componentes_menu.txt");
}

// The down arrow removes the node shown, not the last; nothing is shown at level 2 for a
// component without options.
TEST_F(Componentes, TheCountersAddAndRemoveTheShownNodeAndTypingRenames) {
    Abrir();
    Pasos("arboles/pasos/componentes_contadores.txt");
}

// The write-back keys by position and replaces the old list; an empty tree leaves the step
// pending.
TEST_F(Componentes, WritingBackKeysByPositionAndReplacesTheOldList) {
    Abrir();
    Pasos("arboles/pasos/componentes_escritura.txt");
}

} // namespace
} // namespace vadro
