// Whole reports of whole models and the report's own rules.

#include "core/compilation/compilacion.h"
#include "core/shell/comandos_modelo.h"
#include "soporte/datos.h"
#include "soporte/errores.h"
#include "soporte/modelo_sano.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <regex>

namespace vadro {
namespace {

// One requirement of one criterion of one subcriterion of one indicator with neither weight
// nor function: every check but the first four has something to say, the subcriteria level
// included.
Modelo ModeloDeHijosUnicos() {
    Modelo modelo = pruebas::ModeloCon({pruebas::Requerimiento(
        "Agua",
        {pruebas::Criterio("Calidad", {},
                           {pruebas::Subcriterio("Turbidez", {pruebas::Indicador("NTU", {})})})})});
    modelo.Requerimientos(1).Criterios(1).Subcriterios(1).Indicadores(1).Peso = "";
    modelo.Requerimientos(1).Criterios(1).Subcriterios(1).PesoAuxiliar = 0.5;
    return modelo;
}

// The report with its keys ("line<TAB>key"), as the data files hold it.
TEST(Compilacion, WholeReportsOfWholeModels) {
    Modelo nuevo;
    InicializarModelo(nuevo);
    Modelo ceros;
    ceros.NumRequerimientos = ceros.NumComponentes = ceros.NumEtapas = 0;
    const std::vector<std::pair<std::string, Modelo>> casos = {
        {"vacio", Modelo()},
        {"vacio", nuevo},
        {"vacio", ceros},
        {"correcto", pruebas::ModeloCorrecto()},
        {"hijos_unicos", ModeloDeHijosUnicos()}};
    for (const auto& [nombre, modelo] : casos) {
        const std::string texto = TextoInforme(ComprobarModelo(modelo), true);
        EXPECT_EQ(texto, pruebas::Datos("compilacion/" + nombre + ".txt", texto)) << nombre;
    }
}

// Error and warning lines bear their icons and no other line does; without keys, the text is
// the report with keys less each tab and what follows it on its line.
TEST(Compilacion, TheIconsOfTheLinesAndTheTextWithoutKeys) {
    const InformeErrores informe = ComprobarModelo(ModeloDeHijosUnicos());
    ASSERT_EQ(informe.Iconos().size(), informe.Lineas().size());
    ASSERT_EQ(informe.Claves().size(), informe.Lineas().size());
    for (std::size_t i = 0; i < informe.Lineas().size(); ++i) {
        const std::string& linea = informe.Lineas()[i];
        const IconoLinea esperado = linea.starts_with("     Error:")   ? IconoLinea::Error
                                    : linea.starts_with("     Aviso:") ? IconoLinea::Aviso
                                                                       : IconoLinea::Ninguno;
        EXPECT_EQ(informe.Iconos()[i], esperado) << linea;
    }
    EXPECT_EQ(TextoInforme(informe, false),
              std::regex_replace(TextoInforme(informe, true), std::regex("\t[^\n]*"), ""));
}

TEST(Compilacion, TheCountersAreSixteenBitsAndOverflowPast32767) {
    InformeErrores informe;
    for (int k = 0; k < 32767; ++k) {
        informe.Agregar("     Error: x", "k");
    }
    informe.Agregar("     Aviso: y");
    informe.Agregar("      Error: one blank too many is no finding");
    EXPECT_EQ(informe.Errores(), 32767);
    EXPECT_EQ(informe.Avisos(), 1);
    EXPECT_EQ(pruebas::NumeroDeError([&] { informe.Agregar("     Error: z"); }), ErrDesbordamiento);
}

TEST(Compilacion, TheOpenWindowsStoreTheirWorkBeforeTheChecksAndTheModelStaysAsItWas) {
    Modelo modelo;
    const Modelo arbol = pruebas::ModeloCorrecto();
    const InformeErrores informe = Compilar(modelo, [&](Modelo& destino) { destino = arbol; });
    EXPECT_EQ(informe.Lineas(), ComprobarModelo(arbol).Lineas());
    EXPECT_EQ(modelo, arbol) << "the checks change nothing";
    EXPECT_EQ(Compilar(modelo).Claves(), informe.Claves()) << "no windows to store";
}

} // namespace
} // namespace vadro
