#include "edicion_prueba.h"

#include "core/trees/edicion_etapas.h"
#include "soporte/componentes_etapas.h"

#include <gtest/gtest.h>

#include <utility>

namespace vadro {
namespace {

using namespace pruebas;

class Etapas : public PruebaSesion {
protected:
    EdicionEtapas ed{SesionActual()};

    // The list, the selected position, the three buttons as "E", "S", "B" when enabled and "-"
    // when not, and "modified" when the model was marked since the last state was read (the
    // mark is then taken off).
    std::string Estado() {
        std::string texto;
        for (const std::string& etapa : ed.lstEtapas) {
            texto += "'" + etapa + "' ";
        }
        const bool modificado = std::exchange(sesion().modelo.Modificado, false);
        return texto + "| selected " + std::to_string(ed.Posicion) + " | " +
               (ed.EliminarHabilitado ? "E" : "-") + (ed.SubirHabilitado ? "S" : "-") +
               (ed.BajarHabilitado ? "B" : "-") + (modificado ? " | modified" : "");
    }
    // Works the steps of a data file on the stages window's logic ("Abrir" with the stages of
    // the model), each giving the state after it, and the stage rules.
    void Pasos(const std::string& datos, std::deque<Respuesta> respuestas = {}) {
        const auto hacer = [this](std::function<void(const Argumentos&)> operacion) -> Funcion {
            return [this, operacion](const Argumentos& a) {
                operacion(a);
                return Estado();
            };
        };
        const auto cerrar = [](bool (*puede)(bool)) -> Funcion {
            return [puede](const Argumentos& a) {
                return std::string(puede(a.at(0) == "accepted") ? "closes" : "stays");
            };
        };
        Tabular(datos,
                {{"Abrir", hacer([this](const Argumentos& a) {
                      PonerEtapas(sesion().modelo, a);
                      ed.Abrir();
                  })},
                 {"Seleccionar",
                  hacer([this](const Argumentos& a) { ed.Seleccionar(std::stoi(a.at(0))); })},
                 {"Subir", hacer([this](const Argumentos&) { ed.Subir(); })},
                 {"Bajar", hacer([this](const Argumentos&) { ed.Bajar(); })},
                 {"Eliminar", hacer([this](const Argumentos&) { ed.Eliminar(); })},
                 {"AgregarEtapa", hacer([this](const Argumentos& a) { ed.AgregarEtapa(a.at(0)); })},
                 {"Vaciar", hacer([this](const Argumentos&) { ed.lstEtapas.clear(); })},
                 {"AceptarNuevaEtapa",
                  [this](const Argumentos& a) {
                      const bool aceptada = ed.AceptarNuevaEtapa(a.at(0));
                      return (aceptada ? "accepted | " : "refused | ") + Estado();
                  }},
                 {"LlamaLlenarEtapas",
                  [this](const Argumentos&) {
                      ed.LlamaLlenarEtapas();
                      return Elementos(sesion().modelo.NumEtapas, sesion().modelo.Etapas,
                                       [](const std::string& e) { return "'" + e + "'"; });
                  }},
                 {"EtapaRepetida",
                  [](const Argumentos& a) {
                      return SiNo(EtapaRepetida({" etapa", "Diseño", "obra civil"}, a.at(0)));
                  }},
                 {"PuedeCerrarRequerimientos", cerrar(PuedeCerrarRequerimientos)},
                 {"PuedeCerrarComponentes", cerrar(PuedeCerrarComponentes)}},
                std::move(respuestas));
    }
};

// A new stage against the list " etapa", "Diseño", "obra civil".
TEST_F(Etapas, TheComparisonTrimsBlanksAndIgnoresCase) {
    Pasos("arboles/etapa_repetida.txt");
}

// Nothing is selected on opening; a single entry never enables the arrows.
TEST_F(Etapas, TheButtonsFollowTheSelection) {
    Pasos("arboles/pasos/etapas_botones.txt");
}

// After a removal nothing is selected. An empty name does nothing, a repeated one is told, and
// a new one is stored as typed.
TEST_F(Etapas, MovesRemovalsAndAdditionsEditTheListAndMarkTheModel) {
    Pasos("arboles/pasos/etapas_ediciones.txt");
}

// An empty list leaves one empty element.
TEST_F(Etapas, WritingBackSizesTheModelsList) {
    Pasos("arboles/pasos/etapas_escritura.txt");
}

TEST_F(Etapas, ClosingAsksOnlyWhenNotAccepted) {
    Pasos("arboles/cerrar_disenos.txt", {Respuesta::No, Respuesta::Si});
}

} // namespace
} // namespace vadro
