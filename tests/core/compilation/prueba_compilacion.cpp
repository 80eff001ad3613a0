// Whole reports of whole models, the outcome that follows them, and the report's own rules.

#include "core/compilation/compilacion.h"
#include "core/shell/comandos_modelo.h"
#include "soporte/errores.h"
#include "soporte/modelo_sano.h"
#include "soporte/prueba_sesion.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>

namespace vadro {
namespace {

using pruebas::Esperado;

// The first sections of a model with stages, components and requirements, nothing to say.
constexpr const char* kModeloSinHallazgos = R"(
COMPROBACION DEL CICLO DE VIDA
     <sin errores>

COMPROBACION DE EXISTENCIA DE COMPONENTES
     <sin errores>

COMPROBACION DE REPETICION DE NOMBRES EN COMPONENTES
** nivel de componentes **
     <sin errores>
** nivel de opciones **
     <sin errores>

COMPROBACION DE EXISTENCIA DE REQUERIMIENTOS
     <sin errores>

)";

// The sections of a model with a requirements tree and nothing to say about it, the
// subcriteria level left out.
constexpr const char* kArbolSinHallazgos = R"(
COMPROBACION DE REPETICION DE NOMBRES EN REQUERIMIENTOS
** nivel de requerimientos **
     <sin errores>
** nivel de criterios **
     <sin errores>
** nivel de indicadores **
     <sin errores>

COMPROBACION DE PESOS NULOS
** nivel de requerimientos **
     <sin errores>
** nivel de criterios **
     <sin errores>
** nivel de indicadores **
     <sin errores>

COMPROBACION DE MATRICES NO CONSISTENTES
** nivel de requerimientos **
     <sin errores>
** nivel de criterios **
     <sin errores>
** nivel de indicadores **
     <sin errores>

COMPROBACION DE FUNCIONES DE VALOR
** nivel de indicadores **
     <sin errores>

COMPROBACION DE RAMAS INCOMPLETAS
** nivel de requerimientos **
     <sin errores>
** nivel de criterios **
     <sin errores>

)";

TEST(Compilacion, AnEmptyModelWarnsOfStagesAndComponentsAndLacksItsTree) {
    const std::string esperado = Esperado(R"(
AVISOS TOTALES: 2
ERRORES TOTALES: 1

COMPROBACION DEL CICLO DE VIDA
     Aviso: no se han definido etapas del ciclo de vida | SinEta

COMPROBACION DE EXISTENCIA DE COMPONENTES
     Aviso: no se han definido componentes | SinCmp

COMPROBACION DE REPETICION DE NOMBRES EN COMPONENTES
** nivel de componentes **
     <sin errores>
** nivel de opciones **
     <sin errores>

COMPROBACION DE EXISTENCIA DE REQUERIMIENTOS
     Error: no se ha definido arbol de requerimientos | SinReq

)") + Esperado(kArbolSinHallazgos);
    Modelo nuevo;
    InicializarModelo(nuevo);
    Modelo ceros;
    ceros.NumRequerimientos = ceros.NumComponentes = ceros.NumEtapas = 0;
    for (const Modelo& modelo : {Modelo(), nuevo, ceros}) {
        const InformeErrores informe = ComprobarModelo(modelo);
        EXPECT_EQ(TextoInforme(informe, true), esperado);
        EXPECT_EQ(informe.Errores(), 1);
        EXPECT_EQ(informe.Avisos(), 2);
        EXPECT_EQ(Desenlace(informe), DesenlaceCompilacion::Incorrecta);
    }
}

TEST(Compilacion, ASoundModelHasNothingToSay) {
    const std::string esperado = Esperado(R"(
AVISOS TOTALES: 0
ERRORES TOTALES: 0

)") + Esperado(kModeloSinHallazgos) +
                                 Esperado(kArbolSinHallazgos);
    const InformeErrores informe = ComprobarModelo(pruebas::ModeloCorrecto());
    EXPECT_EQ(TextoInforme(informe, true), esperado);
    EXPECT_EQ(Desenlace(informe), DesenlaceCompilacion::Correcta);
}

// One requirement of one criterion of one subcriterion of one indicator with neither weight
// nor function: every check but the first four has something to say, the subcriteria level
// included.
TEST(Compilacion, AModelOfSingleChildrenWithoutWeightsOrFunctions) {
    Modelo modelo = pruebas::ModeloCon({pruebas::Requerimiento(
        "Agua",
        {pruebas::Criterio("Calidad", {},
                           {pruebas::Subcriterio("Turbidez", {pruebas::Indicador("NTU", {})})})})});
    modelo.Requerimientos(1).Criterios(1).Subcriterios(1).Indicadores(1).Peso = "";
    modelo.Requerimientos(1).Criterios(1).Subcriterios(1).PesoAuxiliar = 0.5;
    const std::string esperado = Esperado(R"(
AVISOS TOTALES: 4
ERRORES TOTALES: 3

)") + Esperado(kModeloSinHallazgos) +
                                 Esperado(R"(
COMPROBACION DE REPETICION DE NOMBRES EN REQUERIMIENTOS
** nivel de requerimientos **
     <sin errores>
** nivel de criterios **
     <sin errores>
** nivel de subcriterios **
     <sin errores>
** nivel de indicadores **
     <sin errores>

COMPROBACION DE PESOS NULOS
** nivel de requerimientos **
     <sin errores>
** nivel de criterios **
     <sin errores>
** nivel de subcriterios **
     <sin errores>
** nivel de indicadores **
     Error: el nodo I1S1C1R1 tiene peso nulo | PesNul I1S1C1R1

COMPROBACION DE MATRICES NO CONSISTENTES
** nivel de requerimientos **
     <sin errores>
** nivel de criterios **
     <sin errores>
** nivel de subcriterios **
     Aviso: la matriz de subcriterios del criterio C1R1 no es consistente (consistencia > 0.1) | NoCons SC1R1
     <sin errores>
** nivel de indicadores **
     Error: la matriz de pesos de los indicadores del subcriterio S1C1R1 está vacía, , 1 | NoCons I0S1C1R1

COMPROBACION DE FUNCIONES DE VALOR
** nivel de indicadores **
     Error: el nodo I1S1C1R1 no tiene funcion de valor asignada | FunVal I1S1C1R1

COMPROBACION DE RAMAS INCOMPLETAS
** nivel de requerimientos **
     Aviso: el nodo R1 solo tiene un criterio | SinHij R1
     <sin errores>
** nivel de criterios **
     Aviso: el nodo C1R1 solo tiene un subcriterio | SinHij C1R1
     <sin errores>
** nivel de subcriterios **
     Aviso: el nodo S1C1R1 solo tiene un indicador | SinHij S1C1R1
     <sin errores>

)");
    EXPECT_EQ(TextoInforme(ComprobarModelo(modelo), true), esperado);
}

TEST(Compilacion, ErrorAndWarningLinesBearTheirIconsAndNoOtherLineDoes) {
    const InformeErrores informe = ComprobarModelo(Modelo());
    ASSERT_EQ(informe.Iconos().size(), informe.Lineas().size());
    ASSERT_EQ(informe.Claves().size(), informe.Lineas().size());
    for (std::size_t i = 0; i < informe.Lineas().size(); ++i) {
        const std::string& linea = informe.Lineas()[i];
        const IconoLinea esperado = linea.starts_with("     Error:")   ? IconoLinea::Error
                                    : linea.starts_with("     Aviso:") ? IconoLinea::Aviso
                                                                       : IconoLinea::Ninguno;
        EXPECT_EQ(informe.Iconos()[i], esperado) << linea;
    }
}

TEST(Compilacion, TheTextOfTheReportHasOneLinePerReportLineAndTheKeysOnlyWhenAsked) {
    const InformeErrores informe = ComprobarModelo(Modelo());
    const std::string sinClaves = TextoInforme(informe, false);
    EXPECT_TRUE(sinClaves.starts_with("AVISOS TOTALES: 2\nERRORES TOTALES: 1\n\nCOMPROB"));
    EXPECT_NE(sinClaves.find("\n     Aviso: no se han definido componentes\n"), std::string::npos);
    EXPECT_EQ(sinClaves.find('\t'), std::string::npos);
    EXPECT_EQ(std::count(sinClaves.begin(), sinClaves.end(), '\n'),
              static_cast<std::ptrdiff_t>(informe.Lineas().size()));
    const std::string conClaves = TextoInforme(informe, true);
    EXPECT_TRUE(conClaves.starts_with("AVISOS TOTALES: 2\t\nERRORES TOTALES: 1\t\n\t\n"));
    EXPECT_NE(conClaves.find("\n     Aviso: no se han definido componentes\tSinCmp\n"),
              std::string::npos);
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

class DesenlaceDeCompilacion : public pruebas::PruebaSesion {
protected:
    const std::string kIncorrecta = "VADRO PROGRAMADOR: compilación incorrecta";
    const std::string kCorrecta = "VADRO PROGRAMADOR: compilación correcta";
    const std::string kConErrores =
        "El modelo contiene errores.\n"
        "Corríjalos para poder crear el archivo utilizable por el módulo VADRO USUARIO.";
    const std::string kPregunta =
        "El modelo no contiene errores.\n"
        "Desea crear el archivo compilado (*.vdc) utilizable por el módulo VADRO USUARIO?";
};

TEST_F(DesenlaceDeCompilacion, ErrorsAreToldInAnInformationBoxAndNoFileIsOffered) {
    mensajes.Esperar(kIncorrecta, kConErrores);
    EXPECT_FALSE(PreguntarCrearCompilado(ComprobarModelo(Modelo())));
    EXPECT_EQ(mensajes.Vistos().at(0).icono, Icono::Informacion);
    EXPECT_EQ(mensajes.Vistos().at(0).botones, Botones::Aceptar);
}

TEST_F(DesenlaceDeCompilacion, ACorrectModelIsAskedForTheCompiledFileWarningsOrNot) {
    Modelo conAvisos = pruebas::ModeloCorrecto();
    conAvisos.NumEtapas = "";
    const InformeErrores avisos = ComprobarModelo(conAvisos);
    EXPECT_EQ(Desenlace(avisos), DesenlaceCompilacion::CorrectaConAvisos);
    mensajes.Esperar(kCorrecta, kPregunta, Respuesta::Si);
    EXPECT_TRUE(PreguntarCrearCompilado(avisos));
    mensajes.Esperar(kCorrecta, kPregunta, Respuesta::No);
    EXPECT_FALSE(PreguntarCrearCompilado(ComprobarModelo(pruebas::ModeloCorrecto())));
    EXPECT_EQ(mensajes.Vistos().at(0).botones, Botones::SiNo);
    EXPECT_EQ(mensajes.Vistos().at(0).icono, Icono::Pregunta);
}

} // namespace
} // namespace vadro
