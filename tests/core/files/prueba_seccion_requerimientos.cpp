#include "core/core/archivos.h"
#include "core/core/error_ejecucion.h"
#include "core/files/proteccion.h"
#include "core/files/seccion_requerimientos.h"
#include "soporte/prueba_sesion.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <functional>

namespace vadro {
namespace {

using Lineas = std::vector<std::string>;

int NumeroDeError(const std::function<void()>& accion) {
    try {
        accion();
    } catch (const ErrorEjecucion& e) {
        return e.Numero();
    }
    return 0;
}

void Nodo(CabeceraNodo& nodo, const std::string& nombre, ValorLibre peso,
          std::vector<ValorLibre> saaty) {
    nodo.Nombre = nombre;
    nodo.Peso = std::move(peso);
    nodo.Saaty.Redimensionar(static_cast<int>(saaty.size()));
    for (int j = 1; j <= nodo.Saaty.Cota(); ++j) {
        nodo.Saaty(j) = saaty[static_cast<std::size_t>(j - 1)];
    }
}

// Two requirements weighted 60 % and 40 %, without criteria.
Modelo DosRequerimientos() {
    Modelo m;
    m.NumRequerimientos = 2;
    m.Requerimientos.Redimensionar(2);
    Nodo(m.Requerimientos(1), "Funcional", 60.0, {1.0, 1.5});
    Nodo(m.Requerimientos(2), "Econ\xC3\xB3mico", 40.0, {1.0 / 1.5, 1.0});
    m.Requerimientos(1).NumCriterios = 0;
    m.Requerimientos(2).NumCriterios = 0;
    return m;
}

// One requirement with one criterion that holds a direct indicator and a subcriterion with
// an indicator of its own.
Modelo CriterioMixto() {
    Modelo m;
    m.NumRequerimientos = 1;
    m.Requerimientos.Redimensionar(1);
    NodoRequerimiento& r = m.Requerimientos(1);
    Nodo(r, "R", 100.0, {1.0});
    r.NumCriterios = 1;
    r.Criterios.Redimensionar(1);
    NodoCriterio& c = r.Criterios(1);
    Nodo(c, "C", 100.0, {1.0});
    c.NumIndicadores = 1;
    c.Indicadores.Redimensionar(1);
    Nodo(c.Indicadores(1), "directo", 100.0, {1.0});
    c.NumSubcriterios = 1;
    c.Subcriterios.Redimensionar(1);
    NodoSubcriterio& s = c.Subcriterios(1);
    Nodo(s, "S", 100.0, {1.0});
    s.NumIndicadores = 1;
    s.Indicadores.Redimensionar(1);
    Nodo(s.Indicadores(1), "bajo S", ValorLibre(), {ValorLibre()});
    return m;
}

Lineas LineasDe(Modelo& m, const std::string& indice = {}) {
    ArchivoSalida salida;
    EXPECT_TRUE(GuardarRequerimientos(m, salida, indice));
    return salida.Lineas();
}

Lineas LineasDe(Modelo&& m, const std::string& indice = {}) {
    return LineasDe(m, indice);
}

// The key part of each line, for checking the order of the lines.
Lineas Claves(const Lineas& lineas) {
    Lineas claves;
    for (const auto& linea : lineas) {
        claves.push_back(linea.substr(0, linea.find(" =")));
    }
    return claves;
}

class SeccionRequerimientos : public pruebas::PruebaSesion {
protected:
    std::string ruta = Ruta("arbol.req");

    Modelo LeerPlano(const Lineas& lineas) {
        Escribir(ruta, UnirLineas(lineas));
        Modelo m;
        CargarRequerimientos(m, ruta);
        return m;
    }

    int ErrorAlLeer(const Lineas& lineas) {
        return NumeroDeError([&] { (void)LeerPlano(lineas); });
    }
};

// ---- The lines as written

TEST_F(SeccionRequerimientos, TheExampleLinesComeOutByteForByte) {
    const Lineas lineas = LineasDe(DosRequerimientos());
    const Lineas esperadas = {
        "*****REQUERIMIENTOS*****", "REQ_NUMR =  2 ",
        "REQ_R1_NOM = Funcional",   "REQ_R1_DSC = ",
        "REQ_R1_PSO =  60000000 ",  "REQ_R1_STY1 =  1000000 ",
        "REQ_R1_STY2 =  1500000 ",  "REQ_R1_DIR = ",
        "REQ_R1_CAL =  0 ",         "REQ_R1_NUMC =  0 ",
    };
    ASSERT_GE(lineas.size(), esperadas.size());
    EXPECT_EQ(Lineas(lineas.begin(), lineas.begin() + 10), esperadas);
    EXPECT_EQ(lineas[10], "REQ_R2_NOM = Econ\xF3mico");
    EXPECT_EQ(lineas[12], "REQ_R2_PSO =  40000000 ");
    EXPECT_EQ(lineas[13], "REQ_R2_STY1 =  666666 ") << "two thirds, cut towards minus infinity";
    EXPECT_EQ(lineas.size(), 18u);
}

TEST_F(SeccionRequerimientos, AWrittenTemplateHoldsTheSameLinesScrambled) {
    Modelo m = DosRequerimientos();
    GuardarRequerimientos(m, ruta, false);
    const std::string bytes = Contenido(ruta);
    EXPECT_NE(bytes.substr(0, 5), "*****");
    EXPECT_EQ(LineasPlanas(bytes), LineasDe(DosRequerimientos()));
}

TEST_F(SeccionRequerimientos, AnEmptyOrZeroCountEndsTheSection) {
    for (const ValorLibre& cuenta : {ValorLibre(), ValorLibre(0), ValorLibre("0")}) {
        Modelo m = DosRequerimientos();
        m.NumRequerimientos = cuenta;
        EXPECT_EQ(LineasDe(m), (Lineas{"*****REQUERIMIENTOS*****", "REQ_NUMR = 0"}));
    }
}

TEST_F(SeccionRequerimientos, TheTreeIsWrittenDepthFirstWithSubcriteriaAfterTheIndicators) {
    const Lineas claves = Claves(LineasDe(CriterioMixto()));
    const auto posicion = [&](const std::string& clave) {
        return std::find(claves.begin(), claves.end(), clave) - claves.begin();
    };
    const std::vector<std::string> orden = {
        "REQ_NUMR",        "REQ_R1_NOM",       "REQ_R1_NUMC",      "REQ_C1R1_NOM",
        "REQ_C1R1_CAL",    "REQ_C1R1_NUMI",    "REQ_I1C1R1_NOM",   "REQ_I1C1R1_CAL",
        "FUN_I1C1R1_IND",  "FUN_I1C1R1_TIP",   "REQ_C1R1_NUMS",    "REQ_S1C1R1_NOM",
        "REQ_S1C1R1_NUMI", "REQ_I1S1C1R1_NOM", "FUN_I1S1C1R1_TIP",
    };
    for (std::size_t n = 1; n < orden.size(); ++n) {
        ASSERT_LT(posicion(orden[n]), std::ssize(claves)) << orden[n];
        EXPECT_LT(posicion(orden[n - 1]), posicion(orden[n])) << orden[n];
    }
    EXPECT_EQ(claves.back(), "FUN_I1S1C1R1_TIP");
    const Lineas cabeza(claves.begin() + 9, claves.begin() + 15);
    EXPECT_EQ(cabeza, (Lineas{"REQ_C1R1_NOM", "REQ_C1R1_DSC", "REQ_C1R1_PSO", "REQ_C1R1_STY1",
                              "REQ_C1R1_DIR", "REQ_C1R1_CAL"}));
}

TEST_F(SeccionRequerimientos, KeysComeFromTheLoopCountersNotFromTheRecords) {
    Modelo m = CriterioMixto();
    m.Requerimientos(1).Clave = "R1C2I3";
    m.Requerimientos(1).Criterios(1).Subcriterios(1).Indicadores(1).Funcion.Clave = "viejo";
    const Lineas lineas = LineasDe(m);
    EXPECT_EQ(m.Requerimientos(1).Criterios(1).Subcriterios(1).Indicadores(1).Funcion.Clave,
              "I1S1C1R1");
    EXPECT_EQ(m.Requerimientos(1).Criterios(1).Indicadores(1).Funcion.Clave, "I1C1R1");
    EXPECT_EQ(std::count(lineas.begin(), lineas.end(), "*****FUNCION VALOR I1S1C1R1*****"), 1);
    EXPECT_EQ(m.Requerimientos(1).Clave, "R1C2I3") << "the node's own key is left alone";
}

TEST_F(SeccionRequerimientos, TheCountsGovernNotTheArrays) {
    Modelo m = CriterioMixto();
    NodoCriterio& c = m.Requerimientos(1).Criterios(1);
    c.NumSubcriterios = ValorLibre();
    c.Indicadores.RedimensionarConservando(3);
    const Lineas lineas = LineasDe(m);
    EXPECT_EQ(lineas.back(), "REQ_C1R1_NUMS = ") << "an empty count ends its line at ' = '";
    const auto conTexto = [&](const std::string& texto) {
        return std::count_if(lineas.begin(), lineas.end(),
                             [&](const std::string& l) { return l.find(texto) != l.npos; });
    };
    EXPECT_EQ(conTexto("I2C1R1"), 0) << "the array is larger than its count";
    EXPECT_EQ(conTexto("S1C1R1"), 0) << "the array is there but its count is empty";
    EXPECT_EQ(conTexto("REQ_I1C1R1_STY"), 1) << "one sibling, one matrix entry";

    c.NumSubcriterios = 2;
    ArchivoSalida salida;
    mensajes.Esperar("VADRO: Error ", "Error al guardar el árbol de requerimientos.");
    EXPECT_FALSE(GuardarRequerimientos(m, salida)) << "a count beyond the array fails";
}

TEST_F(SeccionRequerimientos, WeightsAreScaledWithTheFloorRule) {
    Modelo m = DosRequerimientos();
    m.Requerimientos(1).Peso = -0.0000015;
    m.Requerimientos(1).Directo = 0.0;
    m.Requerimientos(2).Peso = ValorLibre();
    m.Requerimientos(2).Directo = 12.3456789;
    const Lineas lineas = LineasDe(m);
    EXPECT_EQ(lineas[4], "REQ_R1_PSO = -2 ");
    EXPECT_EQ(lineas[7], "REQ_R1_DIR =  0 ") << "zero is a defined weight";
    EXPECT_EQ(lineas[12], "REQ_R2_PSO = ") << "an undefined weight writes nothing";
    EXPECT_EQ(lineas[15], "REQ_R2_DIR =  12345678 ");
}

TEST_F(SeccionRequerimientos, ACalculationOtherThanDirectIsWrittenAsZeroAndStaysZero) {
    Modelo m = DosRequerimientos();
    m.Requerimientos(1).Calculo = 3;
    m.Requerimientos(2).Calculo = CalculoDirecto;
    const Lineas lineas = LineasDe(m);
    EXPECT_EQ(lineas[8], "REQ_R1_CAL =  0 ");
    EXPECT_EQ(lineas[16], "REQ_R2_CAL =  1 ");
    EXPECT_EQ(m.Requerimientos(1).Calculo, CalculoSaaty) << "the record is changed too";
    EXPECT_EQ(m.Requerimientos(2).Calculo, CalculoDirecto);
}

TEST_F(SeccionRequerimientos, TheIndexPrefixesEveryLine) {
    const Lineas lineas = LineasDe(CriterioMixto(), "X");
    for (const auto& linea : lineas) {
        EXPECT_EQ(linea.front(), 'X') << linea;
    }
    EXPECT_EQ(lineas.front(), "X*****REQUERIMIENTOS*****");
    Modelo m = CriterioMixto();
    GuardarRequerimientos(m, ruta, false, "X");
    Modelo leido;
    CargarRequerimientos(leido, ruta, "X");
    EXPECT_EQ(leido.Requerimientos(1).Criterios(1).Subcriterios(1).Indicadores(1).Nombre, "bajo S");
}

// ---- Write failures

TEST_F(SeccionRequerimientos, AFailureEndsTheSectionWithOneMessageAndNoNumber) {
    Modelo m = DosRequerimientos();
    m.Requerimientos(2).Saaty.Borrar();
    mensajes.Esperar("VADRO: Error ", "Error al guardar el árbol de requerimientos.");
    ArchivoSalida salida;
    EXPECT_FALSE(GuardarRequerimientos(m, salida));
    EXPECT_EQ(salida.Lineas().back(), "REQ_R2_PSO =  40000000 ") << "as far as it got";
}

TEST_F(SeccionRequerimientos, AFailedSectionLeavesItsFileAsFarAsItGot) {
    Modelo m = DosRequerimientos();
    m.Requerimientos(1).Peso = "sesenta";
    mensajes.Esperar("VADRO: Error ", "Error al guardar el árbol de requerimientos.");
    GuardarRequerimientos(m, ruta, false);
    EXPECT_EQ(LineasPlanas(Contenido(ruta)).back(), "REQ_R1_DSC = ");
}

TEST_F(SeccionRequerimientos, AFileThatCannotBeWrittenShowsTheSameMessage) {
    Modelo m = DosRequerimientos();
    mensajes.Esperar("VADRO: Error ", "Error al guardar el árbol de requerimientos.");
    GuardarRequerimientos(m, UnirRuta(Ruta("no-existe"), "a.req"), false);
}

TEST_F(SeccionRequerimientos, AFunctionsFailureIsHandledByTheFunctionAndTheTreeGoesOn) {
    Modelo m = CriterioMixto();
    FuncionValor& f = m.Requerimientos(1).Criterios(1).Indicadores(1).Funcion;
    f.Tipo = FuncionEscalon;
    mensajes.Esperar("VADRO: Error ",
                     "Error 9 al guardar la función de valor.\n\r" + DescripcionError(9),
                     Respuesta::Aceptar, [&] { f.Escalones.Redimensionar(0); });
    const Lineas lineas = LineasDe(m);
    EXPECT_EQ(lineas.back(), "FUN_I1S1C1R1_TIP = ninguna");
}

// ---- Reading

TEST_F(SeccionRequerimientos, ReadingMirrorsWriting) {
    Modelo m = CriterioMixto();
    m.Requerimientos(1).Criterios(1).Indicadores(1).Descripcion = "una descripción";
    m.Requerimientos(1).Criterios(1).Directo = 0.0;
    m.Requerimientos(1).Criterios(1).Calculo = CalculoDirecto;
    GuardarRequerimientos(m, ruta, false);
    Modelo leido;
    CargarRequerimientos(leido, ruta);

    Modelo esperado = m;
    NodoRequerimiento& r = esperado.Requerimientos(1);
    r.Clave = "R1";
    r.Criterios(1).Clave = "C1R1";
    r.Criterios(1).Indicadores(1).Clave = "I1C1R1";
    r.Criterios(1).Subcriterios(1).Clave = "S1C1R1";
    r.Criterios(1).Subcriterios(1).Indicadores(1).Clave = "I1S1C1R1";
    esperado.ConSubcriterios = true;
    EXPECT_EQ(leido, esperado);
    EXPECT_FALSE(std::filesystem::exists(Ruta("arbol.$$$")));
}

TEST_F(SeccionRequerimientos, LoadingResetsAndSetsTheSubcriteriaFlag) {
    Modelo m = DosRequerimientos();
    GuardarRequerimientos(m, ruta, false);
    Modelo leido;
    leido.ConSubcriterios = true;
    CargarRequerimientos(leido, ruta);
    EXPECT_FALSE(leido.ConSubcriterios);

    Modelo mixto = CriterioMixto();
    GuardarRequerimientos(mixto, ruta, false);
    CargarRequerimientos(leido, ruta);
    EXPECT_TRUE(leido.ConSubcriterios);
}

TEST_F(SeccionRequerimientos, AMissingOrZeroCountLeavesTheArrayAlone) {
    Modelo m = DosRequerimientos();
    Escribir(ruta, UnirLineas({"*****REQUERIMIENTOS*****", "OTRA = 1"}));
    CargarRequerimientos(m, ruta);
    EXPECT_TRUE(m.NumRequerimientos.EsVacio());
    EXPECT_EQ(m.Requerimientos.Tamano(), 2);
    EXPECT_EQ(m.Requerimientos(1).Nombre, "Funcional");

    Escribir(ruta, UnirLineas({"*****REQUERIMIENTOS*****", "REQ_NUMR = 0", "FIN = "}));
    CargarRequerimientos(m, ruta);
    EXPECT_EQ(m.NumRequerimientos, ValorLibre(0));
    EXPECT_EQ(m.Requerimientos.Tamano(), 2);
}

TEST_F(SeccionRequerimientos, HandMadeValuesReadAsThePartsOfTheFormatSay) {
    const Modelo m = LeerPlano({
        "*****REQUERIMIENTOS*****",
        "REQ_NUMR = 1",
        "REQ_R1_NOM = a",
        "REQ_R1_PSO = 0",
        "REQ_R1_STY1 = ",
        "REQ_R1_CAL = 3",
        "REQ_R1_NUMC =  2.5 ",
        "REQ_C1R1_NOM = c1",
        "REQ_C2R1_NOM = c2",
        "REQ_C2R1_CAL = ",
        "REQ_C2R1_NUMS = -1",
        "FIN = ",
    });
    const NodoRequerimiento& r = m.Requerimientos(1);
    EXPECT_EQ(m.NumRequerimientos, ValorLibre(1));
    EXPECT_EQ(r.Peso, ValorLibre(0.0)) << "zero is defined";
    EXPECT_TRUE(r.Directo.EsVacio());
    ASSERT_EQ(r.Saaty.Tamano(), 1);
    EXPECT_TRUE(r.Saaty(1).EsVacio());
    EXPECT_EQ(r.Calculo, 3) << "kept as read; only writing turns it into 0";
    EXPECT_EQ(r.NumCriterios, ValorLibre(2.5));
    ASSERT_EQ(r.Criterios.Tamano(), 2) << "2.5 rounds to the even 2";
    EXPECT_EQ(r.Criterios(2).Nombre, "c2");
    EXPECT_EQ(r.Criterios(2).Calculo, CalculoSaaty);
    EXPECT_EQ(r.Criterios(2).Saaty.Tamano(), 2);
    EXPECT_TRUE(r.Criterios(1).NumIndicadores.EsVacio());
    EXPECT_FALSE(r.Criterios(1).Indicadores.Presente());
    EXPECT_EQ(r.Criterios(2).NumSubcriterios, ValorLibre(-1));
    EXPECT_FALSE(r.Criterios(2).Subcriterios.Presente());
    EXPECT_FALSE(m.ConSubcriterios);
}

TEST_F(SeccionRequerimientos, ALongerKeyAnswersForAMissingOne) {
    // "REQ_R1_STY1" is found inside "REQ_R1_STY10" when only the latter follows.
    Lineas lineas = {"*****REQUERIMIENTOS*****", "REQ_NUMR =  10 ", "REQ_R1_NOM = a"};
    lineas.push_back("REQ_R1_STY10 =  7000000 ");
    lineas.push_back("FIN = ");
    const Modelo m = LeerPlano(lineas);
    EXPECT_EQ(m.Requerimientos(1).Saaty(1), ValorLibre(7.0));
}

// ---- Bad input

TEST_F(SeccionRequerimientos, NumbersThatAreTextGoUpAsTypeMismatch) {
    EXPECT_EQ(ErrorAlLeer({"*****", "REQ_NUMR = dos"}), ErrTipos);
    EXPECT_EQ(ErrorAlLeer({"*****", "REQ_NUMR = 1", "REQ_R1_NUMC = x", "FIN = "}), ErrTipos);
    EXPECT_EQ(ErrorAlLeer({"*****", "REQ_NUMR = 1", "REQ_R1_PSO = mucho", "FIN = "}), ErrTipos);
    EXPECT_EQ(ErrorAlLeer({"*****", "REQ_NUMR = 1", "REQ_R1_CAL = saaty", "FIN = "}), ErrTipos);
    EXPECT_EQ(ErrorAlLeer({"*****", "REQ_NUMR = 1", "REQ_R1_STY1 = uno", "FIN = "}), ErrTipos);
    EXPECT_FALSE(std::filesystem::exists(Ruta("arbol.$$$")));
}

TEST_F(SeccionRequerimientos, ACountBeyondTheCountersOverflowsAndAllocatesNothing) {
    Modelo m = DosRequerimientos();
    Escribir(ruta, UnirLineas({"*****", "REQ_NUMR =  32768 ", "FIN = "}));
    EXPECT_EQ(NumeroDeError([&] { CargarRequerimientos(m, ruta); }), ErrDesbordamiento);
    EXPECT_EQ(m.Requerimientos.Tamano(), 2);
    EXPECT_EQ(m.Requerimientos(1).Nombre, "Funcional");
    EXPECT_EQ(ErrorAlLeer({"*****", "REQ_NUMR = 1", "REQ_R1_NUMC = 99999", "FIN = "}),
              ErrDesbordamiento);
    EXPECT_EQ(ErrorAlLeer({"*****", "REQ_NUMR = 1", "REQ_R1_CAL = 3E+10", "FIN = "}),
              ErrDesbordamiento);
}

TEST_F(SeccionRequerimientos, ACountFarBeyondTheFileGivesUpQuicklyWithOutOfMemory) {
    const auto inicio = std::chrono::steady_clock::now();
    EXPECT_EQ(ErrorAlLeer({"*****", "REQ_NUMR =  32767 ", "FIN = "}), ErrMemoria);
    EXPECT_LT(std::chrono::steady_clock::now() - inicio, std::chrono::seconds(20));
    // A count the margin allows still loads as empty records.
    const Modelo m = LeerPlano({"*****", "REQ_NUMR =  200 ", "REQ_R200_NOM = fin", "FIN = "});
    ASSERT_EQ(m.Requerimientos.Tamano(), 200);
    EXPECT_EQ(m.Requerimientos(200).Nombre, "fin");
    EXPECT_EQ(m.Requerimientos(200).Saaty.Tamano(), 200);
}

TEST_F(SeccionRequerimientos, EveryTruncationOfAFileLoadsOrFailsCleanly) {
    Modelo m = CriterioMixto();
    m.Requerimientos(1).Criterios(1).Indicadores(1).Funcion.Tipo = FuncionEscalon;
    m.Requerimientos(1).Criterios(1).Indicadores(1).Funcion.Escalones.Redimensionar(2);
    const Lineas lineas = LineasDe(m);
    for (std::size_t corte = 1; corte <= lineas.size(); ++corte) {
        Lineas parte(lineas.begin(), lineas.begin() + static_cast<long>(corte));
        // The cut may also fall inside the last line.
        parte.back() = parte.back().substr(0, parte.back().size() / 2 + 1);
        const int error = ErrorAlLeer(parte);
        EXPECT_TRUE(error == 0 || error == ErrTipos) << corte << ": " << error;
    }
}

} // namespace
} // namespace vadro
