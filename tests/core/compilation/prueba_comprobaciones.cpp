// Each check alone, on models made to give each of its findings: its whole section, lines and
// keys, and the rules behind the findings.

#include "core/compilation/comprobaciones.h"
#include "soporte/datos.h"
#include "soporte/modelo_sano.h"

#include <gtest/gtest.h>

#include <functional>

namespace vadro {
namespace {

using pruebas::Criterio;
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
         "     Aviso: no se han definido etapas del ciclo de vida\tSinEta"},
        {ComprobarExistenciaComponentes, &Modelo::NumComponentes,
         "COMPROBACION DE EXISTENCIA DE COMPONENTES",
         "     Aviso: no se han definido componentes\tSinCmp"},
        {ComprobarExistenciaRequerimientos, &Modelo::NumRequerimientos,
         "COMPROBACION DE EXISTENCIA DE REQUERIMIENTOS",
         "     Error: no se ha definido arbol de requerimientos\tSinReq"}};
    for (const Caso& caso : casos) {
        for (const auto& [cuenta, hay] :
             std::vector<std::pair<ValorLibre, bool>>{{ValorLibre(), false},
                                                      {ValorLibre(0), false},
                                                      {ValorLibre(-1), false},
                                                      {ValorLibre("0"), false},
                                                      {ValorLibre(1), true},
                                                      {ValorLibre(" 2 "), true}}) {
            Modelo modelo;
            modelo.*caso.cuenta = cuenta;
            const std::string cuerpo = hay ? "     <sin errores>\t" : caso.hallazgo;
            EXPECT_EQ(Seccion(caso.comprobacion, modelo),
                      caso.encabezado + "\t\n" + cuerpo + "\n\t\n")
                << cuenta.Texto();
        }
    }
}

// Components and options that share names whatever their case.
Modelo ModeloComponentesRepetidos() {
    Modelo modelo;
    pruebas::PonerComponentes(modelo, {{"Bomba", {"Eje", "eje"}},
                                       {"Válvula", {"Eje"}},
                                       {"BOMBA", {}},
                                       {"VÁLVULA", {}},
                                       {"bomba", {"Junta", "Sello", "JUNTA"}}});
    return modelo;
}

// Requirements "Agua", "AGUA", "agua"; under R1 two criteria of one name, the first with two
// subcriteria of one name, two indicators of one name under the first subcriterion and two
// under the criterion itself; the same names again under other parents.
Modelo ModeloNombresRepetidos() {
    return pruebas::ModeloCon(
        {Requerimiento("Agua",
                       {Criterio("Calidad", {Indicador("pH"), Indicador("PH")},
                                 {Subcriterio("Turbidez", {Indicador("NTU"), Indicador("ntu")}),
                                  Subcriterio("TURBIDEZ", {})}),
                        Criterio("calidad", {Indicador("NTU"), Indicador("pH")})}),
         Requerimiento("AGUA", {Criterio("Calidad", {Indicador("Turbidez")})}),
         Requerimiento("agua", {})});
}

// Empty weights at every level beside weights of zero, which pass.
Modelo ModeloPesosNulos() {
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
    return modelo;
}

// Empty and inconsistent matrices of every kind of set; the set's values stand on its first
// node only, so the later nodes' values must not count. The criteria of R2 are weighted
// directly, which no ratio makes inconsistent.
Modelo ModeloConsistencia() {
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
    return modelo;
}

// A ratio just over the threshold, one never computed, and a direct set with a high one.
Modelo ModeloUmbral() {
    Modelo modelo = pruebas::ModeloCorrecto();
    modelo.Requerimientos(1).PesoAuxiliar = 0.11;
    modelo.Requerimientos(1).Criterios(1).PesoAuxiliar = "";
    modelo.Requerimientos(2).Criterios(1).Calculo = CalculoDirecto;
    modelo.Requerimientos(2).Criterios(1).PesoAuxiliar = 0.9;
    return modelo;
}

// Functions under a subcriterion come first; a step function gives two lines, an optional
// indicators function none; the model does not use subcriteria, their indicators still count.
Modelo ModeloFunciones() {
    FuncionValor escalones = pruebas::DeEscalones<FuncionValor>();
    escalones.Escalones(1).Valor = 0.2;
    escalones.Escalones(3).Valor = 0.9;
    Modelo modelo = pruebas::ModeloCon({Requerimiento(
        "A", {Criterio("C", {Indicador("i", escalones), Indicador("j", pruebas::DeOptativos("x"))},
                       {Subcriterio("S", {Indicador("i", {})})})})});
    modelo.ConSubcriterios = false;
    return modelo;
}

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

Modelo SinNivelSubcriterios(Modelo modelo) {
    modelo.ConSubcriterios = false;
    return modelo;
}

// Each check's whole section, lines and keys, as the data files hold it.
TEST(Comprobaciones, TheSectionsOfModelsMadeForTheirFindings) {
    struct Caso {
        std::string nombre;
        Comprobacion comprobacion;
        Modelo modelo;
    };
    const std::vector<Caso> casos = {
        {"componentes_repetidos", ComprobarNombresRepetidosComponentes,
         ModeloComponentesRepetidos()},
        {"nombres_repetidos", ComprobarNombresRepetidosRequerimientos, ModeloNombresRepetidos()},
        {"nombres_repetidos_sin_subcriterios", ComprobarNombresRepetidosRequerimientos,
         SinNivelSubcriterios(ModeloNombresRepetidos())},
        {"pesos_nulos", ComprobarPesosNulos, ModeloPesosNulos()},
        {"pesos_nulos_sin_subcriterios", ComprobarPesosNulos,
         SinNivelSubcriterios(ModeloPesosNulos())},
        {"consistencia", ComprobarConsistencia, ModeloConsistencia()},
        {"consistencia_umbral", ComprobarConsistencia, ModeloUmbral()},
        {"funciones", ComprobarFuncionValor, ModeloFunciones()},
        {"ramas", ComprobarArbolIncompleto, ModeloRamas()},
        {"ramas_sin_subcriterios", ComprobarArbolIncompleto, SinNivelSubcriterios(ModeloRamas())},
    };
    for (const Caso& caso : casos) {
        const std::string seccion = Seccion(caso.comprobacion, caso.modelo);
        EXPECT_EQ(seccion, pruebas::Datos("comprobaciones/" + caso.nombre + ".txt", seccion))
            << caso.nombre;
    }
}

TEST(NombresRepetidos, NamesCompareInUpperCaseAccentsIncluded) {
    EXPECT_EQ(NombreComparable("Válvula de paso ñ"), "VÁLVULA DE PASO Ñ");
    EXPECT_EQ(NombreComparable("cœur"), "CŒUR");
    EXPECT_EQ(NombreComparable("ÿ"), "Ÿ");
    EXPECT_EQ(NombreComparable("ω"), "ω") << "a character the 8-bit page lacks stays";
    EXPECT_NE(NombreComparable("ω"), NombreComparable("Ω"));
    EXPECT_NE(NombreComparable("a"), NombreComparable("á"));
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
    FuncionValor f = pruebas::Continua();
    f.Tipo = FuncionPuntuacion;
    f.Puntuaciones.Redimensionar(6);
    f.Puntuaciones(1) = {PuntuacionBooleana, "Tiene licencia", "", "", 0.0, 1.0};
    f.Puntuaciones(2) = {PuntuacionBooleana, "", "", "", 0.0, 1.0};
    f.Puntuaciones(3) = {PuntuacionBooleana, "Avalada", 1.0, 2.0, 0.0, ""};
    f.Puntuaciones(4) = {PuntuacionNumerica, "Años", 0.0, 10.0, 0.0, 1.0};
    f.Puntuaciones(5) = {PuntuacionNumerica, "Plantilla", 0.0, "", 0.0, 1.0};
    f.Puntuaciones(6) = {PuntuacionNumerica, "Obras", "", 5.0, 0.0, 1.0};
    std::vector<std::string> lineas(4, kPuntuacion);
    EXPECT_EQ(Hallazgos(f), lineas);
    f.Unidades = "";
    lineas.insert(lineas.begin(), kSinUnidades);
    EXPECT_EQ(Hallazgos(f), lineas);
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
