// Each check alone, on models made to give each of its findings: its whole section, lines and
// keys, and the rules behind the findings.

#include "core/compilation/comprobaciones.h"
#include "soporte/acta.h"
#include "soporte/datos.h"
#include "soporte/modelo_sano.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <type_traits>

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

// A value of a data file: "x" the text x (in single quotes too when it holds blanks), '' the
// empty text, anything else a number when it reads as one and a text when it does not.
ValorLibre Valor(const std::string& campo) {
    if (campo.starts_with('"')) {
        return ValorLibre(campo.substr(1, campo.size() - 2));
    }
    const std::optional<double> numero = LeerNumero(campo);
    return numero && !campo.empty() ? ValorLibre(*numero) : ValorLibre(campo);
}

// A count empty, zero or negative, as a number or as a text, is a finding instead of the
// all-clear.
TEST(ComprobacionesDeCuenta, AnEmptyZeroOrNegativeCountIsAFindingInsteadOfTheAllClear) {
    const std::map<std::string, std::pair<Comprobacion, ValorLibre Modelo::*>> comprobaciones = {
        {"stages", {ComprobarExistenciaEtapas, &Modelo::NumEtapas}},
        {"components", {ComprobarExistenciaComponentes, &Modelo::NumComponentes}},
        {"requirements", {ComprobarExistenciaRequerimientos, &Modelo::NumRequerimientos}}};
    pruebas::Acta acta;
    for (const pruebas::Caso& caso : pruebas::Casos("comprobaciones/cuentas.txt")) {
        const auto& [comprobacion, cuenta] = comprobaciones.at(caso.campos.at(0));
        Modelo modelo;
        modelo.*cuenta = Valor(caso.campos.at(1));
        acta.Fila(caso.texto, Seccion(comprobacion, modelo));
    }
    acta.Comparar("comprobaciones/cuentas.txt");
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

// ---- value functions

template <typename T> void Agregar(Arreglo<T>& arreglo, std::type_identity_t<T> elemento) {
    arreglo.RedimensionarConservando(arreglo.Tamano() + 1);
    arreglo(arreglo.Tamano()) = std::move(elemento);
}

// A function changed by fields of a row of the data file: fields set ("C 0", "Unidades ''",
// "Tipo 7") and elements added ("step =0 <5 0"; "score 1 Años 0 10 0 1": kind, name, bounds
// and their scores).
FuncionValor Con(FuncionValor f, const std::vector<std::string>& campos) {
    const std::map<std::string, ValorLibre FuncionComun::*> valores = {
        {"XMin", &FuncionComun::XMin}, {"XMax", &FuncionComun::XMax}, {"RMin", &FuncionComun::RMin},
        {"RMax", &FuncionComun::RMax}, {"C", &FuncionComun::C},       {"K", &FuncionComun::K},
        {"P", &FuncionComun::P}};
    for (std::size_t k = 0; k < campos.size(); k += 2) {
        const auto valor = [&](std::size_t i) { return Valor(campos.at(k + i)); };
        if (campos[k] == "Unidades") {
            f.Unidades = campos.at(k + 1);
        } else if (campos[k] == "Tipo") {
            f.Tipo = std::stoi(campos.at(k + 1));
        } else if (campos[k] == "step") {
            Agregar(f.Escalones, {valor(1), valor(2), valor(3)});
            k += 2;
        } else if (campos[k] == "score") {
            const int tipo = std::stoi(campos.at(k + 1));
            Agregar(f.Puntuaciones,
                    {tipo, campos.at(k + 2), valor(3), valor(4), valor(5), valor(6)});
            k += 5;
        } else {
            f.*valores.at(campos[k]) = valor(1);
        }
    }
    return f;
}

// The texts behind the label that the function of a row gives, in order. Its base is
// "continuous", a sound continuous function; "scoring", the same of the scoring kind;
// "steps", a step function with units and results from 0 to 10 but no steps yet; or "none".
std::string Hallazgos(const std::vector<std::string>& campos) {
    const std::string& base = campos.at(0);
    FuncionValor funcion = base == "none" ? FuncionValor{} : pruebas::Continua();
    funcion.Tipo = base == "scoring" ? FuncionPuntuacion : funcion.Tipo;
    if (base == "steps") {
        funcion = Con({}, {"Tipo", std::to_string(FuncionEscalon), "Unidades", "h", "RMin", "0",
                           "RMax", "10"});
    }
    funcion = Con(funcion, {campos.begin() + 1, campos.end()});
    const Modelo modelo =
        pruebas::ModeloCon({Requerimiento("A", {Criterio("C", {Indicador("i", funcion)})})});
    InformeErrores informe;
    ComprobarFuncionValor(modelo, informe);
    std::string textos;
    const std::string error = "     Error: ";
    for (std::size_t k = 0; k < informe.Lineas().size(); ++k) {
        if (informe.Lineas()[k].starts_with(error + "el nodo I1C1R1")) {
            EXPECT_EQ(informe.Claves()[k], "FunVal I1C1R1");
            textos += (textos.empty() ? "" : " | ") + informe.Lineas()[k].substr(error.size());
        }
    }
    return textos.empty() ? "(none)" : textos;
}

// Each part of a continuous function spoils it with one text (K or P of 0 pass, the limits are
// not examined); a step function is checked for its limits, then for its steps, an incomplete
// step ending the scan before the minimum is looked at; a scoring function is a continuous one
// and each incomplete element one more line; optional indicators and unknown kinds are taken
// as they stand.
TEST(FuncionesDeValor, EachFunctionGivesTheTextsOfTheDataFile) {
    pruebas::Acta acta;
    for (const pruebas::Caso& caso : pruebas::Casos("comprobaciones/funciones_valor.txt")) {
        acta.Fila(caso.texto, Hallazgos(caso.campos));
    }
    acta.Comparar("comprobaciones/funciones_valor.txt");
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
