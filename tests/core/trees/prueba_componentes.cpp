#include "edicion_prueba.h"

#include "../core/tabla_funciones.h"
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
};

// Each key's level, and whether a component and an option may go under it. A key of no level
// counts as level 0, one above a component, as the rule reads; no such node stands in this
// tree. The empty place ('') takes a component only.
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

TEST_F(Componentes, TheLoadKeysByPositionAndSelectsTheFirstComponent) {
    Abrir();
    EXPECT_EQ(Claves(), "Co1[Sc1Co1,Sc2Co1];Co2");
    EXPECT_EQ(ed.ContadorClaves, 4);
    EXPECT_EQ(ed.tvwArbol.Seleccionado(), N("Co1"));
    EXPECT_EQ(ed.Selector(1).Nombres, (Lista{"Bombas", "Tuberías"}));
    EXPECT_EQ(ed.Selector(2).Nombres, (Lista{"Motor", "Carcasa"}));
    EXPECT_EQ(ed.TitulosMarcos,
              (std::array<std::string, 2>{"Componente 1", "Subcomponentes del comp. 1"}));
    EXPECT_FALSE(sesion().modelo.Modificado) << "opening is no edit";
}

TEST_F(Componentes, EveryEditMarksTheModelAndNewKeysFollowTheCounter) {
    Abrir();
    struct Paso {
        const char* seleccion;
        std::function<void(EdicionComponentes&)> edicion;
        const char* forma;
    };
    const Paso pasos[] = {
        {"Co2", [](auto& e) { e.AñadirComponente("Componente"); }, "Co1[Sc1Co1,Sc2Co1];Co2;Co 5"},
        {"Co2", [](auto& e) { e.AñadirSubcomponente("Subcomponente"); },
         "Co1[Sc1Co1,Sc2Co1];Co2[Sc 6];Co 5"},
        {"Sc1Co1", [](auto& e) { e.AñadirSubcomponente("Subcomponente"); },
         "Co1[Sc1Co1,Sc2Co1,Sc 7];Co2[Sc 6];Co 5"},
        {"Co 5", [](auto& e) { e.InsertarAntes(); }, "Co1[Sc1Co1,Sc2Co1,Sc 7];Co2[Sc 6];Co 8;Co 5"},
        {"Sc1Co1", [](auto& e) { e.InsertarDespues(); },
         "Co1[Sc1Co1,Sc 9,Sc2Co1,Sc 7];Co2[Sc 6];Co 8;Co 5"},
        {"Sc 9", [](auto& e) { e.Renombrar("Rotor"); },
         "Co1[Sc1Co1,Sc 9,Sc2Co1,Sc 7];Co2[Sc 6];Co 8;Co 5"},
    };
    for (const Paso& paso : pasos) {
        sesion().modelo.Modificado = false;
        Sel(paso.seleccion);
        paso.edicion(ed);
        EXPECT_EQ(Claves(), paso.forma);
        EXPECT_TRUE(sesion().modelo.Modificado) << paso.forma;
    }
    EXPECT_EQ(Textos(), "Bombas[Motor,Rotor,Carcasa,Subcomponente];Tuberías[Subcomponente];"
                        "Componente;Componente");
}

TEST_F(Componentes, RemovalAsksForAComponentWithOptionsAndRenumbers) {
    Abrir();
    Sel("Co1");
    Eliminar(Respuesta::No);
    EXPECT_EQ(Claves(), "Co 1[Sc 2,Sc 3];Co 4") << "a No keeps it, and the keys are renewed";
    EXPECT_EQ(ed.tvwArbol.Seleccionado(), N("Co 4")) << "the next sibling is selected";
    Sel("Co 1");
    Eliminar(Respuesta::Si);
    EXPECT_EQ(Claves(), "Co 1");
    EXPECT_EQ(ed.Selector(1).Nombres, Lista{"Tuberías"});
    Sel("Co 1");
    ed.Eliminar();
    EXPECT_TRUE(ed.tvwArbol.Vacio());
    EXPECT_EQ(ed.TitulosMarcos, (std::array<std::string, 2>{"Componentes", "Subcomponentes"}));
    EXPECT_FALSE(ed.Selector(1).ListaHabilitada);
    EXPECT_TRUE(ed.Selector(1).ContadorHabilitado) << "a component can always be added";
}

TEST_F(Componentes, APasteAndADropGoOnlyOneLevelDownAndTheDropAsksNothing) {
    Abrir();
    Sel("Sc2Co1");
    ed.Copiar();
    ed.SoltarRaton(N("Co2"));
    ed.Pegar();
    EXPECT_EQ(Claves(), "Co 1[Sc 2,Sc 3];Co 4[Sc 5]");
    EXPECT_EQ(Textos(), "Bombas[Motor,Carcasa];Tuberías[Carcasa]");

    sesion().modelo.Modificado = false;
    Arrastrar("Sc 2", "Sc 3");
    EXPECT_EQ(ed.tvwArbol.ResaltadoDestino(), nullptr);
    ed.ArrastrarSobre(N("Co 4"));
    EXPECT_EQ(ed.tvwArbol.ResaltadoDestino(), N("Co 4"));
    ed.Soltar();
    EXPECT_EQ(Claves(), "Co 1[Sc 3];Co 4[Sc 5,Sc 2]") << "keys stay through a move";
    EXPECT_TRUE(sesion().modelo.Modificado);
    EXPECT_EQ(ed.tvwArbol.ResaltadoDestino(), nullptr);
}

// The entries of the menu that show, "~" before a paste that is off, and the deletion's caption
// (set even when the entry is hidden).
std::string Entradas(const MenuArbolComponentes& m) {
    std::string texto;
    for (const auto& [visible, nombre] : {std::pair{m.InsertarVisible, "Insertar"},
                                          {m.EliminarVisible, "Eliminar"},
                                          {m.AñadirCompVisible, "AñadirComp"},
                                          {m.AñadirScVisible, "AñadirSc"},
                                          {m.CopiarVisible, "Copiar"},
                                          {m.RenombrarVisible, "Renombrar"}}) {
        texto += visible ? std::string(nombre) + " " : "";
    }
    texto += m.PegarVisible ? (m.PegarHabilitado ? "Pegar" : "~Pegar") : "";
    return texto + ", '" + m.EliminarTitulo + "'";
}

TEST_F(Componentes, TheMenuShowsByTheTargetAndAPasteGoesOnlyOneLevelDown) {
    Abrir();
    Acta acta;
    const auto menu = [&](const std::string& cuando, const char* clave) {
        acta.Fila(cuando + "'" + clave + "'",
                  Entradas(ed.MenuContextual(*clave ? N(clave) : nullptr)));
    };
    for (const char* clave : {"", "Co1", "Sc1Co1"}) {
        menu("", clave);
    }
    Sel("Sc2Co1");
    ed.Copiar();
    for (const char* clave : {"Co2", "Sc1Co1", ""}) {
        menu("an option copied, ", clave);
    }
    acta.Comparar("arboles/menu_componentes.txt");
}

TEST_F(Componentes, TheCountersAddAndRemoveTheShownNodeAndTypingRenames) {
    Abrir();
    Sel("Sc2Co1");
    ed.ActualizarCombos(N("Sc2Co1"));
    ed.BajarContador(2);
    EXPECT_EQ(Textos(), "Bombas[Motor];Tuberías") << "the one shown goes, not the last";
    ed.SubirContador(1);
    EXPECT_EQ(Textos(), "Bombas[Motor];Tuberías;Componente");
    EXPECT_EQ(ed.Selector(1).Etiqueta, "3");
    ed.EscribirEnLista(1, "Válvulas");
    EXPECT_EQ(Textos(), "Bombas[Motor];Tuberías;Válvulas");
    sesion().modelo.Modificado = false;
    ed.BajarContador(2); // nothing shown at level 2 for a component without options
    EXPECT_FALSE(sesion().modelo.Modificado);
}

TEST_F(Componentes, WritingBackKeysByPositionAndReplacesTheOldList) {
    Abrir();
    Sel("Co2");
    ed.AñadirSubcomponente("Acero");
    Sel("Sc1Co1");
    ed.Eliminar();
    ed.LlamaLlenarComponentes();
    const Modelo& m = sesion().modelo;
    ASSERT_EQ(m.NumComponentes.Cuenta(), 2);
    EXPECT_EQ(m.Componentes(1).Clave, "Co1");
    EXPECT_EQ(m.Componentes(1).NumSubcomponentes, 1);
    EXPECT_EQ(m.Componentes(1).Subcomponentes(1).Nombre, "Carcasa");
    EXPECT_EQ(m.Componentes(2).Subcomponentes(1).Clave, "Sc1Co2");
    EXPECT_EQ(m.Componentes(2).Subcomponentes(1).Nombre, "Acero");

    ed.tvwArbol.Vaciar();
    EXPECT_FALSE(ed.GuardarArbol()) << "an empty tree leaves the step pending";
    EXPECT_EQ(sesion().modelo.NumComponentes.Cuenta(), 0);
}

} // namespace
} // namespace vadro
