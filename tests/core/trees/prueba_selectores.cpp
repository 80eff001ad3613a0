#include "edicion_prueba.h"

#include <gtest/gtest.h>

namespace vadro {
namespace {

using namespace pruebas;
using Selectores = PruebaEdicion;
using Titulos = std::array<std::string, 4>;

// The enabled states of counters and lists, one digit each, and "f" for the function button.
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
    ed.SubirContador(2);
    EXPECT_EQ(ed.tvwArbol.Cuenta(), 1) << "a counter that is off does nothing";
    ed.SubirContador(1);
    EXPECT_EQ(Textos(), "Modelo [Requerimiento]");
    EXPECT_EQ(ed.Selector(1).Nombres, Lista{"Requerimiento"});
    EXPECT_EQ(ed.Selector(1).Etiqueta, "1");
    ed.SoltarRaton(N("M"));
    EXPECT_EQ(Habilitados(ed), "1000|1000");
    EXPECT_EQ(ed.Selector(1).Contador, 0) << "the root fills no selector";
    EXPECT_EQ(ed.Selector(1).Etiqueta, "0");
}

TEST_F(Selectores, EnabledStatesListsAndCaptionsFollowTheLevelAndThePermission) {
    Abrir(true, true);
    ed.SoltarRaton(N("R2"));
    EXPECT_EQ(Habilitados(ed), "1100|1000") << "no indicator for a requirement without criteria";
    EXPECT_EQ(ed.TitulosMarcos, (Titulos{"Requerimiento 2", "Criterios del requerimiento 2",
                                         "Subcriterios", "Indicadores"}));
    ed.SoltarRaton(N("I2C1R1"));
    EXPECT_EQ(ed.Selector(4).Claves, (Lista{"I1C1R1", "I2C1R1", "I3C1R1"}));
    EXPECT_EQ(ed.Selector(4).ClaveElegida(), "I2C1R1");
    EXPECT_EQ(ed.Selector(2).Nombres, (Lista{"C1", "C2"}));
    EXPECT_EQ(ed.Selector(1).Etiqueta, "2");
    EXPECT_TRUE(ed.Selector(3).Bloqueada);
    EXPECT_FALSE(ed.Selector(4).Bloqueada);
    EXPECT_EQ(Habilitados(ed), "1101|1101|f");
    EXPECT_EQ(ed.Descripcion, "d:i2");
    EXPECT_EQ(ed.TitulosMarcos[2] + "|" + ed.TitulosMarcos[3],
              "Subcriterios del criterio 1|Indicadores del criterio 1");
    ed.SoltarRaton(N("C2R1"));
    EXPECT_EQ(Habilitados(ed), "1110|1110");
    EXPECT_EQ(ed.TitulosMarcos[2] + "|" + ed.TitulosMarcos[3],
              "Subcriterios del criterio 2|Indicadores del subcriterio 1");
    ed.SoltarRaton(N("S1C2R1"));
    ed.AñadirIndicador("Indicador");
    EXPECT_EQ(Habilitados(ed), "1111|1111|f");
    sesion().modelo.ConSubcriterios = false;
    ed.SoltarRaton(N("C2R1"));
    EXPECT_EQ(Habilitados(ed), "1100|1100");
    ed.SoltarRaton(N("C1R1"));
    EXPECT_EQ(Habilitados(ed), "1101|1101");
    EXPECT_EQ(ed.TitulosMarcos[3], "Indicadores del criterio 1");
}

TEST_F(Selectores, TheDownArrowRemovesTheNodeShownAndNothingAtZero) {
    Abrir();
    ed.BajarContador(1);
    EXPECT_EQ(ed.tvwArbol.Cuenta(), 8);
    ed.SoltarRaton(N("I2C1R1"));
    ed.BajarContador(4);
    EXPECT_EQ(Textos(), "Modelo [A[C1[i1,i3],C2],B]");
    EXPECT_EQ(ed.tvwArbol.Seleccionado()->Text() + ed.Selector(4).Etiqueta, "i12");
    // A paste renumbers the loaded keys, but the selectors still hold them.
    Abrir();
    ed.SoltarRaton(N("I2C1R1"));
    Sel("C2R1");
    ed.Copiar();
    ed.Pegar();
    EXPECT_EQ(NumeroDeError([&] { ed.BajarContador(4); }), ErrIndiceArbol);
}

TEST_F(Selectores, OnlyAListTheUserOpenedActsOnAClickAndTypingRenames) {
    Abrir();
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
    // Typing in an unlocked list renames the node of its key.
    ed.EscribirEnLista(2, "Hidráulica");
    EXPECT_EQ(N("C1R1")->Text(), "Hidráulica");
    EXPECT_EQ(ed.tvwArbol.Seleccionado(), N("C1R1"));
    ed.EscribirEnLista(3, "nada");
    EXPECT_EQ(ed.Selector(3).Texto, "") << "a locked list takes no typing";
}

} // namespace
} // namespace vadro
