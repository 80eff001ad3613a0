#include "edicion_prueba.h"

#include <gtest/gtest.h>

namespace vadro {
namespace {

using namespace pruebas;
using Selectores = PruebaEdicion;
using Lista = std::vector<std::string>;

Modelo Base() {
    return ModeloCon(
        {Requerimiento("A", {Criterio("C1", {Indicador("i1"), Indicador("i2"), Indicador("i3")}),
                             Criterio("C2", {})}),
         Requerimiento("B", {})});
}

// The enabled states of counters and lists, one digit each, "|" between the two groups.
std::string Habilitados(const EdicionRequerimientos& ed) {
    std::string contadores, listas;
    for (int i = 1; i <= 4; ++i) {
        contadores += ed.Selector(i).ContadorHabilitado ? "1" : "0";
        listas += ed.Selector(i).ListaHabilitada ? "1" : "0";
    }
    return contadores + "|" + listas + (ed.FuncionHabilitada ? "|f" : "");
}

TEST_F(Selectores, TheRootShowsNothingAndItsUpArrowAddsARequirement) {
    Abrir(Modelo{});
    EXPECT_EQ(Habilitados(ed), "1000|0000");
    for (int i = 1; i <= 4; ++i) {
        EXPECT_EQ(ed.Selector(i).Etiqueta, "0");
    }
    ed.SubirContador(2);
    EXPECT_EQ(ed.tvwArbol.Cuenta(), 1) << "a counter that is off does nothing";
    ed.SubirContador(1);
    EXPECT_EQ(Textos(), "Modelo [Requerimiento]");
    EXPECT_EQ(ed.Selector(1).Nombres, Lista{"Requerimiento"});
    EXPECT_EQ(ed.Selector(1).Etiqueta, "1");
    EXPECT_TRUE(ed.Selector(1).ListaHabilitada);
    ed.SoltarRaton(N("M"));
    EXPECT_EQ(Habilitados(ed), "1000|1000") << "a root with children unlocks nothing but list 1";
    EXPECT_EQ(ed.Selector(1).Contador, 0);
}

TEST_F(Selectores, ARequirementWithoutCriteriaOffersNoIndicator) {
    Abrir(Base());
    ed.SoltarRaton(N("R2"));
    EXPECT_EQ(Habilitados(ed), "1100|1000");
    EXPECT_EQ(ed.TitulosMarcos,
              (std::array<std::string, 4>{"Requerimiento 2", "Criterios del requerimiento 2",
                                          "Subcriterios", "Indicadores"}));
    ed.SoltarRaton(N("R1"));
    EXPECT_EQ(ed.Selector(2).Nombres, (Lista{"C1", "C2"})) << "filled from the first child";
    EXPECT_EQ(ed.Selector(2).Seleccion, 1);
}

TEST_F(Selectores, AnIndicatorFillsItsPathUpwardsAndEnablesTheFunction) {
    Abrir(Base());
    ed.SoltarRaton(N("I2C1R1"));
    EXPECT_EQ(ed.Selector(4).Nombres, (Lista{"i1", "i2", "i3"}));
    EXPECT_EQ(ed.Selector(4).Claves, (Lista{"I1C1R1", "I2C1R1", "I3C1R1"}));
    EXPECT_EQ(ed.Selector(4).Seleccion, 2);
    EXPECT_EQ(ed.Selector(4).ClaveElegida(), "I2C1R1");
    EXPECT_EQ(ed.Selector(2).Nombres, (Lista{"C1", "C2"}));
    EXPECT_EQ(ed.Selector(1).Etiqueta, "2");
    EXPECT_TRUE(ed.Selector(3).Bloqueada);
    EXPECT_FALSE(ed.Selector(4).Bloqueada);
    EXPECT_EQ(Habilitados(ed), "1101|1101|f");
    EXPECT_EQ(ed.Descripcion, "d:i2");
    EXPECT_EQ(ed.TitulosMarcos[2], "Subcriterios del criterio 1");
    EXPECT_EQ(ed.TitulosMarcos[3], "Indicadores del criterio 1");
}

TEST_F(Selectores, SubcriteriaFollowThePermissionAndTheCaptionsFollowThem) {
    Modelo m = Base();
    m.ConSubcriterios = true;
    Abrir(m);
    ed.SoltarRaton(N("C2R1"));
    EXPECT_EQ(Habilitados(ed), "1111|1100");
    ed.AñadirSubcriterio("Subcriterio");
    ed.AñadirIndicador("Indicador");
    EXPECT_EQ(Habilitados(ed), "1111|1111|f") << "an indicator of a subcriterion";
    ed.SoltarRaton(N("C2R1"));
    EXPECT_EQ(Habilitados(ed), "1110|1110");
    EXPECT_EQ(ed.TitulosMarcos,
              (std::array<std::string, 4>{"Requerimiento 1", "Criterios del requerimiento 1",
                                          "Subcriterios del criterio 2",
                                          "Indicadores del subcriterio 1"}));
    ed.SoltarRaton(N("C1R1"));
    EXPECT_EQ(Habilitados(ed), "1101|1101");
    EXPECT_EQ(ed.TitulosMarcos[3], "Indicadores del criterio 1");
}

TEST_F(Selectores, AMisplacedCriterionFillsSelectorTwoFromInsideACriterion) {
    Abrir(Base());
    ed.SoltarRaton(N("C1R1"));
    ed.AñadirSubcriterio("Subcriterio");
    ed.SoltarRaton(N("I1C1R1"));
    ed.AñadirCriterio("Criterio");
    EXPECT_EQ(ed.Selector(2).Nombres, (Lista{"Subcriterio", "Criterio", "C1", "C2"}));
    EXPECT_EQ(ed.Selector(2).Contador, 4);
    EXPECT_EQ(ed.Selector(2).Seleccion, 3) << "the enclosing criterion's entry is chosen last";
    EXPECT_EQ(ed.Selector(1).Nombres, (Lista{"A", "B"}));
}

TEST_F(Selectores, TheDownArrowRemovesTheNodeShownAndNothingAtZero) {
    Abrir(Base());
    ed.BajarContador(1);
    EXPECT_EQ(ed.tvwArbol.Cuenta(), 8);
    ed.SoltarRaton(N("I2C1R1"));
    ed.BajarContador(4);
    EXPECT_EQ(Textos(), "Modelo [A[C1[i1,i3],C2],B]");
    EXPECT_EQ(ed.tvwArbol.Seleccionado()->Text(), "i1");
    EXPECT_EQ(ed.Selector(4).Etiqueta, "2");
    // A paste renumbers the loaded keys, but the selectors still hold them.
    Abrir(Base());
    ed.SoltarRaton(N("I2C1R1"));
    Sel("C2R1");
    ed.Copiar();
    ed.Pegar();
    EXPECT_EQ(NumeroDeError([&] { ed.BajarContador(4); }), ErrIndiceArbol);
}

TEST_F(Selectores, OnlyAListTheUserOpenedActsOnAClick) {
    Abrir(Base());
    ed.SoltarRaton(N("I2C1R1"));
    ed.ElegirEnLista(2, 2);
    EXPECT_EQ(ed.tvwArbol.Seleccionado(), N("I2C1R1"));
    ed.AbrirLista(2);
    ed.ElegirEnLista(2, 2);
    EXPECT_EQ(ed.tvwArbol.Seleccionado(), N("C2R1"));
    EXPECT_EQ(ed.Selector(2).Marca, "Auto");
    EXPECT_EQ(ed.UltimasPosiciones[1], 2);
    EXPECT_EQ(ed.Selector(4).Seleccion, 2) << "the click selects, it does not refill";
    // A list opened and closed without a choice acts on the program's next choice.
    ed.AbrirLista(1);
    ed.SoltarRaton(N("I3C1R1"));
    EXPECT_EQ(ed.tvwArbol.Seleccionado(), N("R1"));
    EXPECT_EQ(ed.Selector(1).Marca, "Auto");
}

TEST_F(Selectores, TypingInAListRenamesTheNodeOfItsKey) {
    Abrir(Base());
    ed.SoltarRaton(N("I3C1R1"));
    ed.EscribirEnLista(4, "Caudal");
    EXPECT_EQ(N("I3C1R1")->Text(), "Caudal");
    ed.EscribirEnLista(2, "Hidráulica");
    EXPECT_EQ(N("C1R1")->Text(), "Hidráulica");
    EXPECT_EQ(ed.tvwArbol.Seleccionado(), N("C1R1"));
    ed.EscribirEnLista(3, "nada");
    EXPECT_EQ(ed.Selector(3).Texto, "") << "a locked list takes no typing";
}

} // namespace
} // namespace vadro
