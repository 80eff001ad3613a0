// Each check alone, on models made to give each of its findings: its whole section, lines and
// keys, and the rules behind the findings.

#include "core/compilation/comprobaciones.h"
#include "soporte/modelo_sano.h"

#include <gtest/gtest.h>

#include <functional>

namespace vadro {
namespace {

using pruebas::Criterio;
using pruebas::Esperado;
using pruebas::Indicador;
using pruebas::Requerimiento;
using pruebas::Subcriterio;

using Comprobacion = std::function<void(const Modelo&, InformeErrores&)>;

std::string Seccion(const Comprobacion& comprobacion, const Modelo& modelo) {
    InformeErrores informe;
    comprobacion(modelo, informe);
    return TextoInforme(informe, true);
}

TEST(ComprobacionesDeCuenta, AnEmptyZeroOrNegativeCountIsAFindingInsteadOfTheAllClear) {
    struct Caso {
        Comprobacion comprobacion;
        ValorLibre Modelo::*cuenta;
        std::string encabezado;
        std::string hallazgo;
    };
    const std::vector<Caso> casos = {
        {ComprobarExistenciaEtapas, &Modelo::NumEtapas, "COMPROBACION DEL CICLO DE VIDA",
         "     Aviso: no se han definido etapas del ciclo de vida | SinEta"},
        {ComprobarExistenciaComponentes, &Modelo::NumComponentes,
         "COMPROBACION DE EXISTENCIA DE COMPONENTES",
         "     Aviso: no se han definido componentes | SinCmp"},
        {ComprobarExistenciaRequerimientos, &Modelo::NumRequerimientos,
         "COMPROBACION DE EXISTENCIA DE REQUERIMIENTOS",
         "     Error: no se ha definido arbol de requerimientos | SinReq"}};
    for (const Caso& caso : casos) {
        for (const ValorLibre& cuenta :
             {ValorLibre(), ValorLibre(0), ValorLibre(-1), ValorLibre("0")}) {
            Modelo modelo;
            modelo.*caso.cuenta = cuenta;
            EXPECT_EQ(Seccion(caso.comprobacion, modelo),
                      Esperado(caso.encabezado + "\n" + caso.hallazgo + "\n\n"))
                << cuenta.Texto();
        }
        for (const ValorLibre& cuenta : {ValorLibre(1), ValorLibre(" 2 ")}) {
            Modelo modelo;
            modelo.*caso.cuenta = cuenta;
            EXPECT_EQ(Seccion(caso.comprobacion, modelo),
                      Esperado(caso.encabezado + "\n     <sin errores>\n\n"));
        }
    }
}

TEST(NombresRepetidos, ComponentsAndTheOptionsOfOneComponentPairUpWhateverTheirCase) {
    Modelo modelo;
    pruebas::PonerComponentes(modelo, {{"Bomba", {"Eje", "eje"}},
                                       {"Válvula", {"Eje"}},
                                       {"BOMBA", {}},
                                       {"VÁLVULA", {}},
                                       {"bomba", {"Junta", "Sello", "JUNTA"}}});
    EXPECT_EQ(Seccion(ComprobarNombresRepetidosComponentes, modelo), Esperado(R"(
COMPROBACION DE REPETICION DE NOMBRES EN COMPONENTES
** nivel de componentes **
     Error: los nodos C1 y C3 tienen el mismo nombre (Bomba) | CmpRep Co3
     Error: los nodos C1 y C5 tienen el mismo nombre (Bomba) | CmpRep Co5
     Error: los nodos C2 y C4 tienen el mismo nombre (Válvula) | CmpRep Co4
     Error: los nodos C3 y C5 tienen el mismo nombre (BOMBA) | CmpRep Co5
** nivel de opciones **
     Error: los nodos O1C1 y O2C1 tienen el mismo nombre (Eje) | CmpRep Op2Co1
     Error: los nodos O1C5 y O3C5 tienen el mismo nombre (Junta) | CmpRep Op3Co5

)"));
}

// Requirements "Agua", "AGUA", "agua"; under R1 two criteria of one name, the first with two
// subcriteria of one name, two indicators of one name under the first subcriterion and two
// under the criterion itself; the same names again under other parents.
Modelo ModeloNombresRepetidos() {
    Modelo modelo = pruebas::ModeloCon(
        {Requerimiento("Agua",
                       {Criterio("Calidad", {Indicador("pH"), Indicador("PH")},
                                 {Subcriterio("Turbidez", {Indicador("NTU"), Indicador("ntu")}),
                                  Subcriterio("TURBIDEZ", {})}),
                        Criterio("calidad", {Indicador("NTU"), Indicador("pH")})}),
         Requerimiento("AGUA", {Criterio("Calidad", {Indicador("Turbidez")})}),
         Requerimiento("agua", {})});
    return modelo;
}

TEST(NombresRepetidos, SiblingsPairUpAtEveryLevelAndTheKeyNamesTheSecondOfThePair) {
    EXPECT_EQ(Seccion(ComprobarNombresRepetidosRequerimientos, ModeloNombresRepetidos()),
              Esperado(R"(
COMPROBACION DE REPETICION DE NOMBRES EN REQUERIMIENTOS
** nivel de requerimientos **
     Error: los nodos R1 y R2 tienen el mismo nombre (Agua) | ReqRep R2
     Error: los nodos R1 y R3 tienen el mismo nombre (Agua) | ReqRep R3
     Error: los nodos R2 y R3 tienen el mismo nombre (AGUA) | ReqRep R3
** nivel de criterios **
     Error: los nodos C1R1 y C2R1 tienen el mismo nombre (Calidad) | ReqRep C2R1
** nivel de subcriterios **
     Error: los nodos S1C1R1 y S2C1R1 tienen el mismo nombre (Turbidez) | ReqRep S2C1R1
** nivel de indicadores **
     Error: los nodos I1S1C1R1 y I2S1C1R1 tienen el mismo nombre: NTU | ReqRep I2S1C1R1
     Error: los nodos I1C1R1 y I2C1R1 tienen el mismo nombre (pH) | ReqRep I2C1R1

)"));
}

TEST(NombresRepetidos, WithoutTheSubcriteriaLevelTheirIndicatorsAreStillCompared) {
    Modelo modelo = ModeloNombresRepetidos();
    modelo.ConSubcriterios = false;
    const std::string seccion = Seccion(ComprobarNombresRepetidosRequerimientos, modelo);
    EXPECT_EQ(seccion.find("subcriterios"), std::string::npos);
    EXPECT_EQ(seccion.find("S2C1R1"), std::string::npos);
    EXPECT_NE(seccion.find("I2S1C1R1 tienen el mismo nombre: NTU"), std::string::npos);
}

TEST(NombresRepetidos, NamesCompareInUpperCaseAccentsIncluded) {
    EXPECT_EQ(NombreComparable("Válvula de paso ñ"), "VÁLVULA DE PASO Ñ");
    EXPECT_EQ(NombreComparable("cœur"), "CŒUR");
    EXPECT_EQ(NombreComparable("ÿ"), "Ÿ");
    EXPECT_EQ(NombreComparable("ω"), "ω") << "a character the 8-bit page lacks stays";
    EXPECT_NE(NombreComparable("ω"), NombreComparable("Ω"));
    EXPECT_NE(NombreComparable("a"), NombreComparable("á"));
}

// ---- weights

TEST(PesosNulos, AnEmptyWeightIsAnErrorAtEveryLevelAndAZeroWeightPasses) {
    Modelo modelo = pruebas::ModeloCon(
        {Requerimiento("A", {Criterio("C", {Indicador("i")},
                                      {Subcriterio("S", {Indicador("i"), Indicador("j")})})}),
         Requerimiento("B", {Criterio("C", {Indicador("i")})})});
    modelo.Requerimientos(1).Peso = 0.0;
    modelo.Requerimientos(2).Peso = "";
    NodoCriterio& criterio = modelo.Requerimientos(1).Criterios(1);
    criterio.Peso = "";
    criterio.Subcriterios(1).Peso = "";
    criterio.Subcriterios(1).Indicadores(1).Peso = "";
    criterio.Subcriterios(1).Indicadores(2).Peso = 0.0;
    criterio.Indicadores(1).Peso = "";
    EXPECT_EQ(Seccion(ComprobarPesosNulos, modelo), Esperado(R"(
COMPROBACION DE PESOS NULOS
** nivel de requerimientos **
     Error: el nodo R2 tiene peso nulo | PesNul R2
** nivel de criterios **
     Error: el nodo C1R1 tiene peso nulo | PesNul C1R1
** nivel de subcriterios **
     Error: el nodo S1C1R1 tiene peso nulo | PesNul S1C1R1
** nivel de indicadores **
     Error: el nodo I1S1C1R1 tiene peso nulo | PesNul I1S1C1R1
     Error: el nodo I1C1R1 tiene peso nulo | PesNul I1C1R1

)"));
    modelo.ConSubcriterios = false;
    EXPECT_EQ(Seccion(ComprobarPesosNulos, modelo), Esperado(R"(
COMPROBACION DE PESOS NULOS
** nivel de requerimientos **
     Error: el nodo R2 tiene peso nulo | PesNul R2
** nivel de criterios **
     Error: el nodo C1R1 tiene peso nulo | PesNul C1R1
** nivel de indicadores **
     Error: el nodo I1S1C1R1 tiene peso nulo | PesNul I1S1C1R1
     Error: el nodo I1C1R1 tiene peso nulo | PesNul I1C1R1

)"));
}

// Only the first node of a set is looked at: the set's values are alike on all of them.
TEST(Consistencia, EmptyMatricesAreErrorsAndInconsistentPairwiseOnesWarnings) {
    Modelo modelo =
        pruebas::ModeloCon({Requerimiento("A", {Criterio("C", {Indicador("i")},
                                                         {Subcriterio("S", {Indicador("i")}),
                                                          Subcriterio("T", {Indicador("i")})})}),
                            Requerimiento("B", {Criterio("C", {Indicador("i"), Indicador("j")},
                                                         {Subcriterio("S", {Indicador("i")})})})});
    modelo.Requerimientos(1).Peso = "";
    modelo.Requerimientos(1).Criterios(1).PesoAuxiliar = 0.2;
    NodoCriterio& c1r1 = modelo.Requerimientos(1).Criterios(1);
    c1r1.Subcriterios(1).Peso = "";
    c1r1.Subcriterios(1).Indicadores(1).Peso = "";
    c1r1.Subcriterios(2).Indicadores(1).PesoAuxiliar = 0.1;
    c1r1.Indicadores(1).Peso = "";
    NodoCriterio& c1r2 = modelo.Requerimientos(2).Criterios(1);
    c1r2.Calculo = CalculoDirecto;
    c1r2.PesoAuxiliar = 5.0;
    c1r2.Subcriterios(1).PesoAuxiliar = 0.4;
    c1r2.Subcriterios(1).Indicadores(1).PesoAuxiliar = 0.3;
    c1r2.Indicadores(1).PesoAuxiliar = 0.1000001;
    c1r2.Indicadores(2).Peso = "";
    EXPECT_EQ(Seccion(ComprobarConsistencia, modelo), Esperado(R"(
COMPROBACION DE MATRICES NO CONSISTENTES
** nivel de requerimientos **
     Error: la matriz de pesos de los requerimientos está vacía | NoCons R
** nivel de criterios **
     Aviso: la matriz de criterios del requerimiento R1 no es consistente (consistencia > 0.1) | NoCons CR1
     <sin errores>
** nivel de subcriterios **
     Error: la matriz pesos de los subcriterios del criterio C1R1 está vacía | NoCons SC1R1
     Aviso: la matriz de subcriterios del criterio C1R2 no es consistente (consistencia > 0.1) | NoCons SC1R2
** nivel de indicadores **
     Error: la matriz de pesos de los indicadores del subcriterio S1C1R1 está vacía, , 1 | NoCons I0S1C1R1
     Error: la matriz de pesos de los indicadores del criterio C1R1 está vacía | NoCons I0C1R1
     Aviso: la matriz de indicadores del subcriterio S1C1R2 no es consistente (consistencia > 0.1) | NoCons I0S1C1R2
     Aviso: la matriz de indicadores del criterio C1R2 no es consistente (consistencia > 0.1) | NoCons I0C1R2

)"));
}

TEST(Consistencia, ARatioOverTheThresholdWarnsOnlyInPairwiseModeAndAnUnknownRatioPasses) {
    Modelo modelo = pruebas::ModeloCorrecto();
    modelo.Requerimientos(1).PesoAuxiliar = 0.11;
    modelo.Requerimientos(1).Criterios(1).PesoAuxiliar = "";
    modelo.Requerimientos(2).Criterios(1).Calculo = CalculoDirecto;
    modelo.Requerimientos(2).Criterios(1).PesoAuxiliar = 0.9;
    EXPECT_EQ(Seccion(ComprobarConsistencia, modelo), Esperado(R"(
COMPROBACION DE MATRICES NO CONSISTENTES
** nivel de requerimientos **
     Aviso: la matriz de requerimientos no es consistente (consistencia > 0.1) | NoCons R
     <sin errores>
** nivel de criterios **
     <sin errores>
** nivel de indicadores **
     <sin errores>

)"));
}

// ---- value functions

// The texts behind the label that one function gives, in order.
std::vector<std::string> Hallazgos(const FuncionValor& funcion) {
    const Modelo modelo =
        pruebas::ModeloCon({Requerimiento("A", {Criterio("C", {Indicador("i", funcion)})})});
    InformeErrores informe;
    ComprobarFuncionValor(modelo, informe);
    std::vector<std::string> textos;
    const std::string inicio = "     Error: el nodo I1C1R1";
    for (std::size_t k = 0; k < informe.Lineas().size(); ++k) {
        if (informe.Lineas()[k].starts_with(inicio)) {
            EXPECT_EQ(informe.Claves()[k], "FunVal I1C1R1");
            textos.push_back(informe.Lineas()[k].substr(inicio.size()));
        }
    }
    return textos;
}

using Retoque = std::function<void(FuncionValor&)>;

FuncionValor Con(FuncionValor funcion, const Retoque& retoque) {
    retoque(funcion);
    return funcion;
}

const std::string kSinUnidades =
    " tiene una funcion de valor sin unidades, incompleta o con valores incorrectos";
const std::string kIncompleta = " tiene una funcion de valor incompleta o con valores incorrectos";
const std::string kMinimo =
    " tiene una funcion de valor de tipo escalón con el mínimo diferente de 0";
const std::string kMaximo =
    " tiene una funcion de valor de tipo escalón con el máximo diferente de 1";
const std::string kPuntuacion = " tiene una funcion de valor de tipo 'puntuación' incompleta";

TEST(FuncionesDeValor, EachMissingOrWrongPartSpoilsAContinuousFunctionWithOneText) {
    const std::vector<Retoque> defectos = {
        [](FuncionValor& f) { f.Unidades = ""; }, [](FuncionValor& f) { f.C = ""; },
        [](FuncionValor& f) { f.C = 0.0; },       [](FuncionValor& f) { f.C = "0"; },
        [](FuncionValor& f) { f.K = ""; },        [](FuncionValor& f) { f.P = ""; },
        [](FuncionValor& f) { f.RMax = ""; },     [](FuncionValor& f) { f.RMin = ""; },
        [](FuncionValor& f) { f.RMin = 100.0; }};
    for (std::size_t k = 0; k < defectos.size(); ++k) {
        EXPECT_EQ(Hallazgos(Con(pruebas::Continua(), defectos[k])),
                  std::vector<std::string>{kSinUnidades})
            << "defect " << k;
    }
    const FuncionValor sana = Con(pruebas::Continua(), [](FuncionValor& f) {
        f.K = 0.0;
        f.P = 0.0;
        f.XMin = "";
        f.XMax = "";
    });
    EXPECT_TRUE(Hallazgos(sana).empty()) << "K or P of 0 pass; the limits are not examined";
}

FuncionValor Escalones(const std::vector<Escalon>& escalones) {
    FuncionValor f;
    f.Tipo = FuncionEscalon;
    f.Unidades = "h";
    f.RMin = 0.0;
    f.RMax = 10.0;
    f.Escalones.Redimensionar(static_cast<int>(escalones.size()));
    for (std::size_t k = 0; k < escalones.size(); ++k) {
        f.Escalones(static_cast<int>(k) + 1) = escalones[k];
    }
    return f;
}

TEST(FuncionesDeValor, AStepFunctionIsCheckedForItsLimitsThenForItsSteps) {
    using V = std::vector<std::string>;
    EXPECT_EQ(Hallazgos(Escalones({{"=0", "<5", 0.0}, {"=5", "=10", 1.0}})), V{});
    EXPECT_EQ(Hallazgos(Escalones({{"=0", "<5", 0.2}, {"=5", "=10", 0.9}})), (V{kMinimo, kMaximo}));
    EXPECT_EQ(Hallazgos(Escalones({{"=0", "<5", 1.0}, {"=5", "=10", 0.5}})), V{kMinimo});
    EXPECT_EQ(Hallazgos(Escalones({{"=0", "<5", 0.0}, {"=5", "=10", 1.5}})), V{kMaximo});
    EXPECT_EQ(Hallazgos(Escalones({{"=0", "<5", 0.5}, {"=5", "", 1.0}})), V{kIncompleta})
        << "an incomplete step ends the scan before the minimum is looked at";
    EXPECT_EQ(Hallazgos(Escalones({{}})), V{kIncompleta}) << "no intervals yet";
    EXPECT_EQ(Hallazgos(Con(Escalones({}), [](FuncionValor& f) { f.Escalones.Borrar(); })),
              V{kIncompleta});
    EXPECT_EQ(Hallazgos(Con(Escalones({{"=0", "<5", 0.3}, {"", "=10", 1.0}}),
                            [](FuncionValor& f) { f.Unidades = ""; })),
              (V{kSinUnidades, kIncompleta}));
    EXPECT_EQ(Hallazgos(Con(Escalones({{"=0", "<5", 0.2}, {"=5", "=10", 1.0}}),
                            [](FuncionValor& f) { f.RMin = f.RMax; })),
              (V{kSinUnidades, kMinimo}));
}

TEST(FuncionesDeValor, AScoringFunctionIsAContinuousOneAndEachIncompleteElementOneMoreLine) {
    const auto puntuacion = [](int32_t tipo, const std::string& nombre, ValorLibre minimo,
                               ValorLibre maximo, ValorLibre no, ValorLibre si) {
        return Puntuacion{tipo,          nombre,       std::move(minimo), std::move(maximo),
                          std::move(no), std::move(si)};
    };
    FuncionValor f = pruebas::Continua();
    f.Tipo = FuncionPuntuacion;
    const std::vector<Puntuacion> elementos = {
        puntuacion(PuntuacionBooleana, "Tiene licencia", "", "", 0.0, 1.0),
        puntuacion(PuntuacionBooleana, "", "", "", 0.0, 1.0),
        puntuacion(PuntuacionBooleana, "Avalada", 1.0, 2.0, 0.0, ""),
        puntuacion(PuntuacionNumerica, "Años", 0.0, 10.0, 0.0, 1.0),
        puntuacion(PuntuacionNumerica, "Plantilla", 0.0, "", 0.0, 1.0),
        puntuacion(PuntuacionNumerica, "Obras", "", 5.0, 0.0, 1.0)};
    f.Puntuaciones.Redimensionar(6);
    std::copy(elementos.begin(), elementos.end(), f.Puntuaciones.begin());
    const std::vector<std::string> cuatro(4, kPuntuacion);
    EXPECT_EQ(Hallazgos(f), cuatro);
    f.Unidades = "";
    std::vector<std::string> cinco = {kSinUnidades};
    cinco.insert(cinco.end(), cuatro.begin(), cuatro.end());
    EXPECT_EQ(Hallazgos(f), cinco);
}

TEST(FuncionesDeValor, OptionalIndicatorsAndUnknownKindsAreTakenAsTheyStand) {
    for (int32_t tipo : {static_cast<int32_t>(FuncionOptativos), 7, -1}) {
        FuncionValor f;
        f.Tipo = tipo;
        EXPECT_TRUE(Hallazgos(f).empty()) << tipo;
    }
    EXPECT_EQ(Hallazgos(FuncionValor{}),
              std::vector<std::string>{" no tiene funcion de valor asignada"});
}

TEST(FuncionesDeValor, TheSectionLabelsIndicatorsOfSubcriteriaFirstAndWarnsOfNothing) {
    FuncionValor escalones = Escalones({{"=0", "<5", 0.2}, {"=5", "=10", 0.9}});
    FuncionValor optativos;
    optativos.Tipo = FuncionOptativos;
    Modelo modelo = pruebas::ModeloCon(
        {Requerimiento("A", {Criterio("C", {Indicador("i", escalones), Indicador("j", optativos)},
                                      {Subcriterio("S", {Indicador("i", {})})})})});
    modelo.ConSubcriterios = false;
    EXPECT_EQ(Seccion(ComprobarFuncionValor, modelo), Esperado(R"(
COMPROBACION DE FUNCIONES DE VALOR
** nivel de indicadores **
     Error: el nodo I1S1C1R1 no tiene funcion de valor asignada | FunVal I1S1C1R1
     Error: el nodo I1C1R1 tiene una funcion de valor de tipo escalón con el mínimo diferente de 0 | FunVal I1C1R1
     Error: el nodo I1C1R1 tiene una funcion de valor de tipo escalón con el máximo diferente de 1 | FunVal I1C1R1

)"));
}

// ---- incomplete branches

// R1 with an empty count of criteria; R2 with one criterion that has nothing; R3 with a
// criterion of one subcriterion and one indicator, one of one indicator, and one of two
// subcriteria, the first empty and the second with one indicator.
Modelo ModeloRamas() {
    Modelo modelo = pruebas::ModeloCon(
        {Requerimiento("A", {}), Requerimiento("B", {Criterio("C", {})}),
         Requerimiento(
             "C",
             {Criterio("C", {Indicador("i")}, {Subcriterio("S", {Indicador("i"), Indicador("j")})}),
              Criterio("D", {Indicador("i")}),
              Criterio("E", {}, {Subcriterio("S", {}), Subcriterio("T", {Indicador("i")})})})});
    modelo.Requerimientos(1).NumCriterios = "";
    return modelo;
}

TEST(RamasIncompletas, ChildlessNodesAreErrorsAndOnlyChildrenWarnings) {
    EXPECT_EQ(Seccion(ComprobarArbolIncompleto, ModeloRamas()), Esperado(R"(
COMPROBACION DE RAMAS INCOMPLETAS
** nivel de requerimientos **
     Error: el nodo R1 no tiene criterios | SinHij R1
     Aviso: el nodo R2 solo tiene un criterio | SinHij R2
** nivel de criterios **
     Error: el nodo C1R2 no tiene subcriterios ni indicadores | SinHij C1R2
     Aviso: el nodo C1R3 solo tiene un subcriterio | SinHij C1R3
     Aviso: el nodo C2R3 solo tiene un indicador | SinHij C2R3
** nivel de subcriterios **
     Error: el nodo S1C3R3 no tiene indicadores | SinHij S1C3R3
     Aviso: el nodo S2C3R3 solo tiene un indicador | SinHij S2C3R3

)"));
}

TEST(RamasIncompletas, AModelWithoutTheSubcriteriaLevelSpeaksOfIndicatorsOnly) {
    Modelo modelo = ModeloRamas();
    modelo.ConSubcriterios = false;
    const std::string seccion = Seccion(ComprobarArbolIncompleto, modelo);
    EXPECT_NE(seccion.find("     Error: el nodo C1R2 no tiene indicadores\tSinHij C1R2\n"),
              std::string::npos);
    EXPECT_EQ(seccion.find("** nivel de subcriterios **"), std::string::npos);
    EXPECT_EQ(seccion.find("S1C3R3"), std::string::npos);
}

TEST(RamasIncompletas, TheSubcriteriaLevelNeedsARealSubcriterionAsWellAsTheSetting) {
    Modelo modelo = pruebas::ModeloCorrecto();
    modelo.ConSubcriterios = true;
    EXPECT_FALSE(ConNivelSubcriterios(modelo));
    for (const Comprobacion& comprobacion :
         {Comprobacion(ComprobarNombresRepetidosRequerimientos), Comprobacion(ComprobarPesosNulos),
          Comprobacion(ComprobarConsistencia), Comprobacion(ComprobarArbolIncompleto)}) {
        EXPECT_EQ(Seccion(comprobacion, modelo).find("subcriterios"), std::string::npos);
    }
}

} // namespace
} // namespace vadro
