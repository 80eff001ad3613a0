#include "core/files/modelo_archivo.h"
#include "core/reports/informe_modelo.h"
#include "core/shell/herramientas.h"
#include "modelos_informe.h"
#include "soporte/datos.h"
#include "soporte/prueba_sesion.h"

#include <gtest/gtest.h>

#include <sstream>

namespace vadro {
namespace {

using pruebas::ModeloCompleto;
using pruebas::ModeloSinNombreNiPesos;

TEST(GenerarInforme, AModelWithEveryKindOfFunction) {
    EXPECT_EQ(TextoPlano(GenerarInforme(ModeloCompleto())),
              pruebas::Datos("informe/completo.txt", TextoPlano(GenerarInforme(ModeloCompleto()))));
}

TEST(GenerarInforme, NoNameNoWeightsNoComponentsNoStages) {
    const std::string texto = TextoPlano(GenerarInforme(ModeloSinNombreNiPesos()));
    EXPECT_EQ(texto, pruebas::Datos("informe/sin_nombre_ni_pesos.txt", texto));
}

TEST(GenerarInforme, AnEmptyModelShowsEveryHeadingWithItsEmptyText) {
    const std::string texto = TextoPlano(GenerarInforme(Modelo()));
    EXPECT_EQ(texto, pruebas::Datos("informe/vacio.txt", texto));
    Modelo ceros;
    ceros.NumRequerimientos = 0;
    ceros.NumComponentes = 0;
    ceros.NumEtapas = 0;
    EXPECT_EQ(TextoPlano(GenerarInforme(ceros)), texto) << "a count of 0 is no count at all";
}

// Headings are bold lines without indent, everything else is plain in the report's font; every
// node has its icon and level (a criterion's subcriteria before its own indicators), and a
// function sits one level below its indicator.
TEST(GenerarInforme, TheLayoutOfEveryLine) {
    const std::string estructura = pruebas::Estructura(GenerarInforme(ModeloSinNombreNiPesos()));
    EXPECT_EQ(estructura, pruebas::Datos("informe/estructura_sin_nombre.txt", estructura));
}

TEST(ActualizarPaneles, EachPaneHoldsItsPartAsTheCompleteReportDoes) {
    const PanelesInforme paneles = ActualizarPaneles(ModeloCompleto());
    const std::string completo = TextoPlano(paneles.Completo);
    EXPECT_EQ(completo, TextoPlano(GenerarInforme(ModeloCompleto())));
    const std::pair<const Informe*, std::string> partes[] = {
        {&paneles.Propiedades, "Descripción del modelo\n"},
        {&paneles.Requerimientos, "Arbol de requerimientos\n"},
        {&paneles.Componentes, "Componentes\n"},
        {&paneles.Etapas, "Etapas del ciclo de vida\n"},
    };
    for (const auto& [panel, encabezado] : partes) {
        const std::string texto = TextoPlano(*panel);
        EXPECT_FALSE(texto.empty()) << encabezado;
        EXPECT_NE(completo.find(encabezado + texto), std::string::npos) << encabezado;
    }
    const PanelesInforme vacios = ActualizarPaneles(Modelo());
    for (const Informe* panel : {&vacios.Requerimientos, &vacios.Componentes, &vacios.Etapas}) {
        EXPECT_EQ(TextoPlano(*panel), "") << "an empty part leaves its pane empty";
    }
}

// The companion's report command; the shell's tests run the built program itself.
class InformeHerramientas : public pruebas::PruebaSesion {
protected:
    int Ejecutar(const std::vector<std::string>& argumentos) {
        std::istringstream entrada;
        salida.str("");
        error.str("");
        return EjecutarHerramientas(argumentos, entrada, salida, error);
    }
    std::ostringstream salida, error;
};

TEST_F(InformeHerramientas, PrintsTheReportOfASavedModelOrSaysWhatIsWrong) {
    Modelo modelo = ModeloCompleto();
    ASSERT_TRUE(GuardarModelo(modelo, Ruta("puente.vdm"), false));
    EXPECT_EQ(Ejecutar({"informe", Ruta("puente.vdm")}), 0) << error.str();
    EXPECT_EQ(salida.str(), pruebas::Datos("informe/completo.txt", salida.str()))
        << "a saved and loaded model reports as the records did";
    EXPECT_EQ(Ejecutar({"informe"}), 2);
    EXPECT_EQ(salida.str(), "");
    EXPECT_NE(error.str().find("La orden informe necesita un MODELO."), std::string::npos);
    EXPECT_EQ(Ejecutar({"informe", "no-esta.vdm"}), 2);
    EXPECT_NE(error.str().find("No se puede leer no-esta.vdm: No se encontró el archivo"),
              std::string::npos);
    Ejecutar({"--help"});
    EXPECT_NE(salida.str().find("  informe MODELO "), std::string::npos);
}

} // namespace
} // namespace vadro
