#include "../core/tabla_funciones.h"

#include "core/trees/edicion_etapas.h"
#include "soporte/acta.h"
#include "soporte/componentes_etapas.h"
#include "soporte/prueba_sesion.h"

#include <gtest/gtest.h>

namespace vadro {
namespace {

using namespace pruebas;
using Lista = std::vector<std::string>;

class Etapas : public PruebaSesion {
protected:
    EdicionEtapas ed{SesionActual()};
    void Abrir(const Lista& etapas) {
        PonerEtapas(sesion().modelo, etapas);
        ed.Abrir();
    }
    // The three buttons as "E", "S", "B" when enabled and "-" when not.
    std::string Botones() const {
        return std::string(ed.EliminarHabilitado ? "E" : "-") + (ed.SubirHabilitado ? "S" : "-") +
               (ed.BajarHabilitado ? "B" : "-");
    }
};

// A new stage against the list " etapa", "Diseño", "obra civil".
TEST(EtapaRepetida, TheComparisonTrimsBlanksAndIgnoresCase) {
    const Lista lista = {" etapa", "Diseño", "obra civil"};
    Tabular("arboles/etapa_repetida.txt", {{"EtapaRepetida", [&](const Argumentos& a) {
                                                return SiNo(EtapaRepetida(lista, a.at(0)));
                                            }}});
}

TEST_F(Etapas, TheButtonsFollowTheSelection) {
    Abrir({"Diseño", "Obra", "Uso"});
    EXPECT_EQ(ed.lstEtapas, (Lista{"Diseño", "Obra", "Uso"}));
    EXPECT_EQ(Botones(), "---") << "nothing selected on opening";
    const std::pair<int, const char*> casos[] = {{0, "E-B"}, {1, "ESB"}, {2, "ES-"}, {-1, "---"}};
    for (const auto& [posicion, botones] : casos) {
        ed.Seleccionar(posicion);
        EXPECT_EQ(Botones(), botones) << posicion;
    }
    Abrir({"Única"});
    ed.Seleccionar(0);
    EXPECT_EQ(Botones(), "E--") << "a single entry never enables the arrows";
}

TEST_F(Etapas, MovesRemovalsAndAdditionsEditTheListAndMarkTheModel) {
    Abrir({"Diseño", "Obra", "Uso"});
    ed.Seleccionar(2);
    ed.Subir();
    EXPECT_EQ(ed.lstEtapas, (Lista{"Diseño", "Uso", "Obra"}));
    EXPECT_EQ(ed.Posicion, 1);
    ed.Subir();
    EXPECT_EQ(ed.Posicion, 0);
    EXPECT_EQ(Botones(), "E-B");
    EXPECT_TRUE(sesion().modelo.Modificado);
    ed.Bajar();
    ed.Bajar();
    EXPECT_EQ(ed.lstEtapas, (Lista{"Diseño", "Obra", "Uso"}));
    EXPECT_EQ(Botones(), "ES-");
    ed.Eliminar();
    EXPECT_EQ(ed.lstEtapas, (Lista{"Diseño", "Obra"}));
    EXPECT_EQ(Botones(), "---") << "after removal nothing is selected";
    EXPECT_FALSE(ed.AceptarNuevaEtapa("")) << "an empty name does nothing";
    mensajes.Esperar("VADRO PROGRAMADOR: error", "No es posible repetir etapas del ciclo de vida.");
    EXPECT_FALSE(ed.AceptarNuevaEtapa(" OBRA"));
    EXPECT_TRUE(ed.AceptarNuevaEtapa(" Demolición"));
    EXPECT_EQ(ed.lstEtapas, (Lista{"Diseño", "Obra", " Demolición"})) << "stored as typed";
}

TEST_F(Etapas, WritingBackSizesTheModelsList) {
    Abrir({"Diseño", "Obra"});
    ed.AgregarEtapa("Uso");
    ed.LlamaLlenarEtapas();
    EXPECT_EQ(sesion().modelo.NumEtapas.Cuenta(), 3);
    EXPECT_EQ(sesion().modelo.Etapas(3), "Uso");
    ed.lstEtapas.clear();
    ed.LlamaLlenarEtapas();
    EXPECT_EQ(sesion().modelo.NumEtapas.Texto(), "0");
    EXPECT_EQ(sesion().modelo.Etapas.Cota(), 1) << "one empty element stays";
    EXPECT_EQ(sesion().modelo.Etapas(1), "");
}

TEST_F(Etapas, ClosingAsksOnlyWhenNotAccepted) {
    Acta acta;
    acta.respuestas = {Respuesta::No, Respuesta::Si};
    for (const bool aceptado : {true, false}) {
        const std::string como = aceptado ? ", accepted" : "";
        acta.Fila("close the requirements" + como,
                  PuedeCerrarRequerimientos(aceptado) ? "closes" : "stays");
        acta.Fila("close the components" + como,
                  PuedeCerrarComponentes(aceptado) ? "closes" : "stays");
    }
    acta.Comparar("arboles/cerrar_disenos.txt");
}

} // namespace
} // namespace vadro
