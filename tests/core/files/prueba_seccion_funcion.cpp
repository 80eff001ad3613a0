#include "core/core/archivos.h"
#include "core/core/error_ejecucion.h"
#include "core/files/proteccion.h"
#include "core/files/seccion_funcion.h"
#include "funciones_prueba.h"
#include "soporte/prueba_sesion.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <functional>

namespace vadro {
namespace {

using namespace pruebas;

using Lineas = std::vector<std::string>;

int NumeroDeError(const std::function<void()>& accion) {
    try {
        accion();
    } catch (const ErrorEjecucion& e) {
        return e.Numero();
    }
    return 0;
}

// The writer works on the record itself, so that a scripted message can repair it.
Lineas LineasDe(FuncionValor& f, const std::string& indice = {}) {
    ArchivoSalida salida;
    GuardarFuncionValor(f, salida, indice);
    return salida.Lineas();
}

Lineas LineasDe(FuncionValor&& f, const std::string& indice = {}) {
    return LineasDe(f, indice);
}

// A plain text file from 8-bit lines, the way a hand-made file would stand on disk.
std::string TextoPlano(const Lineas& lineas) {
    return UnirLineas(lineas);
}

class SeccionFuncion : public pruebas::PruebaSesion {
protected:
    std::string ruta = Ruta("funcion.fva");

    FuncionValor IdaYVuelta(FuncionValor f) {
        GuardarFuncionValor(f, ruta, false);
        FuncionValor leida;
        leida.Clave = f.Clave;
        CargarFuncionValor(leida, ruta);
        return leida;
    }

    FuncionValor LeerPlano(const Lineas& lineas, const std::string& clave) {
        Escribir(ruta, TextoPlano(lineas));
        FuncionValor f;
        f.Clave = clave;
        CargarFuncionValor(f, ruta);
        return f;
    }

    static std::string TextoFallo(int numero, const std::string& tema) {
        return "Error " + std::to_string(numero) + " al guardar " + tema + ".\n\r" +
               DescripcionError(numero);
    }
};

// ---- The lines as written

TEST_F(SeccionFuncion, AContinuousFunctionSplitsItsLimitsIntoNumberAndSign) {
    const Lineas esperadas = {
        "*****FUNCION VALOR I1C1R1*****",
        "FUN_I1C1R1_IND = I1C1R1",
        "FUN_I1C1R1_UNI = m",
        "FUN_I1C1R1_XMN =  0 ",
        "FUN_I1C1R1_XMNS = <",
        "FUN_I1C1R1_XMX =  100000000 ",
        "FUN_I1C1R1_XMXS = igual",
        "FUN_I1C1R1_RMN =  0 ",
        "FUN_I1C1R1_RMX =  100000000 ",
        "FUN_I1C1R1_TIP = fContinua",
        "FUN_I1C1R1_C =  50000000 ",
        "FUN_I1C1R1_K =  500000 ",
        "FUN_I1C1R1_P =  2000000 ",
    };
    EXPECT_EQ(LineasDe(Continua()), esperadas);
}

TEST_F(SeccionFuncion, AnUndefinedLimitWritesNoSignLine) {
    FuncionValor f;
    f.Clave = "I9C1R1";
    const Lineas esperadas = {
        "*****FUNCION VALOR I9C1R1*****",
        "FUN_I9C1R1_IND = I9C1R1",
        "FUN_I9C1R1_UNI = ",
        "FUN_I9C1R1_XMN = ",
        "FUN_I9C1R1_XMX = ",
        "FUN_I9C1R1_RMN = ",
        "FUN_I9C1R1_RMX = ",
        "FUN_I9C1R1_TIP = ninguna",
    };
    EXPECT_EQ(LineasDe(f), esperadas);
    f.Tipo = 7;
    const Lineas sinTipo = LineasDe(f);
    EXPECT_EQ(sinTipo, Lineas(esperadas.begin(), esperadas.end() - 1))
        << "a kind outside 0 to 4 writes no type line";
}

TEST_F(SeccionFuncion, AStepWritesBothSignLinesAlways) {
    FuncionValor f = DeEscalones();
    f.Escalones(3).ValorFinal = ValorLibre();
    const Lineas lineas = LineasDe(f);
    const Lineas cola(lineas.begin() + 9, lineas.end());
    const Lineas esperadas = {
        "FUN_I2C1R1_TIP = fEscalon",         "FUN_I2C1R1_ESC_NUM =  3 ",
        "FUN_I2C1R1_ESC1_VINI =  0 ",        "FUN_I2C1R1_ESC1_SINI = igual",
        "FUN_I2C1R1_ESC1_VFIN =  30000000 ", "FUN_I2C1R1_ESC1_SFIN = <",
        "FUN_I2C1R1_ESC1_VAL =  0 ",         "FUN_I2C1R1_ESC2_VINI =  30000000 ",
        "FUN_I2C1R1_ESC2_SINI = igual",      "FUN_I2C1R1_ESC2_VFIN =  60000000 ",
        "FUN_I2C1R1_ESC2_SFIN = igual",      "FUN_I2C1R1_ESC2_VAL =  500000 ",
        "FUN_I2C1R1_ESC3_VINI =  60000000 ", "FUN_I2C1R1_ESC3_SINI = >",
        "FUN_I2C1R1_ESC3_VFIN = ",           "FUN_I2C1R1_ESC3_SFIN = ",
        "FUN_I2C1R1_ESC3_VAL =  1000000 ",
    };
    EXPECT_EQ(cola, esperadas);
}

TEST_F(SeccionFuncion, AScoringFunctionWritesItsShapeAndItsElements) {
    const Lineas lineas = LineasDe(DePuntuacion());
    const Lineas cola(lineas.begin() + 7, lineas.end());
    const Lineas esperadas = {
        "FUN_I3C1R1_TIP = fPuntuacion",     "FUN_I3C1R1_C =  5000000 ",
        "FUN_I3C1R1_K =  250000 ",          "FUN_I3C1R1_P =  1000000 ",
        "FUN_I3C1R1_PTN_NUM =  2 ",         "FUN_I3C1R1_PTN1_NOM = \xBFTiene licencia?",
        "FUN_I3C1R1_PTN1_TIP = pBooleana",  "FUN_I3C1R1_PTN1_VLN =  0 ",
        "FUN_I3C1R1_PTN1_VLS =  2000000 ",  "FUN_I3C1R1_PTN2_NOM = A\xF1os",
        "FUN_I3C1R1_PTN2_TIP = pNumerica",  "FUN_I3C1R1_PTN2_MIN =  1000000 ",
        "FUN_I3C1R1_PTN2_MAX =  20000000 ", "FUN_I3C1R1_PTN2_VLN =  500000 ",
        "FUN_I3C1R1_PTN2_VLS =  8000000 ",
    };
    EXPECT_EQ(cola, esperadas);
}

TEST_F(SeccionFuncion, OptionsFollowTheirNameUnderTheirOwnKeyWithoutMarker) {
    FuncionValor f = DeOptativos();
    f.Optativos(1).Funcion.Clave = "viejo";
    ArchivoSalida salida;
    GuardarFuncionValor(f, salida);
    EXPECT_EQ(f.Optativos(1).Funcion.Clave, "O1I1S1C1R1");
    EXPECT_EQ(f.Optativos(2).Funcion.Clave, "O2I1S1C1R1");
    const Lineas& lineas = salida.Lineas();
    const Lineas inicio(lineas.begin() + 7, lineas.begin() + 13);
    const Lineas esperadas = {
        "FUN_I1S1C1R1_TIP = fOptativos",   "FUN_I1S1C1R1_OPT_NUM =  2 ",
        "FUN_I1S1C1R1_OPT_SEL =  1 ",      "FUN_I1S1C1R1_OPT1_NOM = Caudal",
        "FUN_O1I1S1C1R1_IND = O1I1S1C1R1", "FUN_O1I1S1C1R1_UNI = l/s",
    };
    EXPECT_EQ(inicio, esperadas);
    EXPECT_EQ(std::count_if(lineas.begin(), lineas.end(),
                            [](const std::string& l) { return l.rfind("*****", 0) == 0; }),
              1)
        << "only the indicator's own block has a marker";
    const auto nombre2 =
        std::find(lineas.begin(), lineas.end(), "FUN_I1S1C1R1_OPT2_NOM = Presi\xF3n");
    ASSERT_NE(nombre2, lineas.end());
    EXPECT_EQ(*(nombre2 + 1), "FUN_O2I1S1C1R1_IND = O2I1S1C1R1");
    EXPECT_EQ(lineas.back(), "FUN_O2I1S1C1R1_ESC1_VAL =  1000000 ");
}

TEST_F(SeccionFuncion, AnOptionOfAnotherKindWritesNoTypeLine) {
    FuncionValor f = DeOptativos();
    f.Optativos(2).Funcion.Tipo = FuncionPuntuacion;
    const Lineas lineas = LineasDe(f);
    EXPECT_EQ(lineas.back(), "FUN_O2I1S1C1R1_RMX = ");
}

TEST_F(SeccionFuncion, TheIndexPrefixesTheMarkerAndEveryKey) {
    const Lineas lineas = LineasDe(DeOptativos(), "M2");
    EXPECT_EQ(lineas.front(), "M2*****FUNCION VALOR I1S1C1R1*****");
    for (std::size_t n = 1; n < lineas.size(); ++n) {
        EXPECT_EQ(lineas[n].rfind("M2FUN_", 0), 0u) << lineas[n];
    }
}

// ---- Reading back

TEST_F(SeccionFuncion, EveryKindComesBackFromATemplateFile) {
    for (const FuncionValor& f : {Continua(), DeEscalones(), DePuntuacion(), DeOptativos()}) {
        FuncionValor esperada = f;
        if (f.Tipo == FuncionOptativos) {
            esperada.Optativos(1).Funcion.Clave = "O1" + f.Clave;
            esperada.Optativos(2).Funcion.Clave = "O2" + f.Clave;
        }
        EXPECT_EQ(IdaYVuelta(f), esperada) << f.Clave;
    }
    EXPECT_NE(Contenido(ruta).substr(0, 5), "*****") << "a template on its own is scrambled";
    EXPECT_FALSE(std::filesystem::exists(Ruta("funcion.$$$")));
}

TEST_F(SeccionFuncion, TheTemplateOfAnOptionalIndicatorHasNoMarker) {
    FuncionOptativo o = DeOptativos().Optativos(2).Funcion;
    o.Clave = "O2I1C1R1";
    GuardarFuncionOptativo(o, ruta, true);
    const Lineas lineas = DividirLineas(Contenido(ruta));
    EXPECT_EQ(lineas.front(), "FUN_O2I1C1R1_IND = O2I1C1R1") << "appended as plain text";
    ArchivoEntrada archivo(lineas);
    FuncionOptativo leida;
    leida.Clave = o.Clave;
    CargarFuncionOptativo(leida, archivo);
    EXPECT_TRUE(archivo.FinArchivo()) << "the reader stops behind the last line of the block";
    EXPECT_EQ(leida, o);
}

TEST_F(SeccionFuncion, MissingSignsReadAsOpenLimits) {
    const FuncionValor f =
        LeerPlano({"*****FUNCION VALOR K*****", "FUN_K_IND = K", "FUN_K_XMN =  5000000 ",
                   "FUN_K_XMX =  9000000 ", "FUN_K_TIP = ninguna"},
                  "K");
    EXPECT_EQ(f.XMin, ValorLibre("<5"));
    EXPECT_EQ(f.XMax, ValorLibre(">9"));
    const FuncionValor vacios =
        LeerPlano({"*****", "FUN_K_IND = K", "FUN_K_XMN =  5000000 ",
                   "FUN_K_XMNS = ", "FUN_K_XMX = -9000000 ", "FUN_K_XMXS = "},
                  "K");
    EXPECT_EQ(vacios.XMin, ValorLibre("<5"));
    EXPECT_EQ(vacios.XMax, ValorLibre(">-9"));
    const FuncionValor explicito =
        LeerPlano({"*****", "FUN_K_IND = K", "FUN_K_XMN =  5000000 ", "FUN_K_XMNS = <"}, "K");
    EXPECT_EQ(explicito.XMin, f.XMin);
}

TEST_F(SeccionFuncion, TheSignWordIgualStandsForEquals) {
    const FuncionValor f =
        LeerPlano({"*****", "FUN_K_IND = K", "FUN_K_XMN =  1500000 ", "FUN_K_XMNS = igual",
                   "FUN_K_XMX =  2500000 ", "FUN_K_XMXS = igual"},
                  "K");
    EXPECT_EQ(f.XMin, ValorLibre("=1.5"));
    EXPECT_EQ(f.XMax, ValorLibre("=2.5"));
}

TEST_F(SeccionFuncion, AStepWithoutSignsKeepsANumberWithoutSymbol) {
    const FuncionValor f = LeerPlano({"*****", "FUN_K_IND = K", "FUN_K_XMN =  0 ", "FUN_K_XMNS = <",
                                      "FUN_K_XMX = ", "FUN_K_TIP = fEscalon", "FUN_K_ESC_NUM =  1 ",
                                      "FUN_K_ESC1_VINI =  25000000 ", "FUN_K_ESC1_SINI = ",
                                      "FUN_K_ESC1_VFIN =  40000000 ", "FUN_K_ESC1_VAL =  1000000 "},
                                     "K");
    ASSERT_EQ(f.Escalones.Tamano(), 1);
    EXPECT_EQ(f.Escalones(1).ValorInicial, ValorLibre("25"));
    EXPECT_EQ(f.Escalones(1).ValorFinal, ValorLibre("40")) << "a missing sign line too";
    EXPECT_EQ(f.XMin, ValorLibre("<5")) << "the first digit was taken for the symbol";
}

TEST_F(SeccionFuncion, LoadingAStepFunctionMakesTheLimitsFollowTheSteps) {
    FuncionValor f = DeEscalones();
    f.XMin = "=20";
    f.XMax = "<70";
    f.Escalones(1).ValorInicial = "<0";
    f.Escalones(3).ValorFinal = "=90";
    const FuncionValor leida = IdaYVuelta(f);
    EXPECT_TRUE(leida.XMin.EsVacio()) << "a first step open at its start clears the limit";
    EXPECT_EQ(leida.XMax, ValorLibre(">90"));
    FuncionOptativo o = DeOptativos().Optativos(2).Funcion;
    o.Clave = "O1K";
    o.XMin = "<7";
    GuardarFuncionOptativo(o, ruta, false);
    FuncionOptativo leido;
    leido.Clave = "O1K";
    CargarFuncionOptativo(leido, ruta);
    EXPECT_EQ(leido.XMin, ValorLibre("=1")) << "an open first step gives a closed limit";
}

TEST_F(SeccionFuncion, AScoringFunctionWithoutElementsKeepsItsListAbsent) {
    for (const char* cuenta : {"", " 0 ", "-1 ", " .5 "}) {
        const FuncionValor f =
            LeerPlano({"*****", "FUN_K_IND = K", "FUN_K_TIP = fPuntuacion", "FUN_K_C =  1000000 ",
                       std::string("FUN_K_PTN_NUM = ") + cuenta},
                      "K");
        EXPECT_EQ(f.Tipo, FuncionPuntuacion) << cuenta;
        EXPECT_EQ(f.C, ValorLibre(1.0));
        EXPECT_FALSE(f.Puntuaciones.Presente()) << cuenta;
    }
}

TEST_F(SeccionFuncion, AnElementThatIsNotBooleanIsNumeric) {
    const FuncionValor f =
        LeerPlano({"*****", "FUN_K_IND = K", "FUN_K_TIP = fPuntuacion", "FUN_K_PTN_NUM =  1 ",
                   "FUN_K_PTN1_NOM = x", "FUN_K_PTN1_TIP = otra", "FUN_K_PTN1_MIN =  1000000 ",
                   "FUN_K_PTN1_MAX =  2000000 ", "FUN_K_PTN1_VLN = ", "FUN_K_PTN1_VLS =  3000000 "},
                  "K");
    ASSERT_EQ(f.Puntuaciones.Tamano(), 1);
    const Puntuacion esperada{PuntuacionNumerica, "x", 1.0, 2.0, {}, 3.0};
    EXPECT_EQ(f.Puntuaciones(1), esperada);
}

TEST_F(SeccionFuncion, TheKeyReadFromTheFileFormsTheFollowingKeys) {
    const FuncionValor otra = LeerPlano(
        {"*****", "FUN_A_IND = B", "FUN_A_UNI = de A", "FUN_B_UNI = de B", "FUN_B_TIP = "}, "A");
    EXPECT_EQ(otra.Clave, "B");
    EXPECT_EQ(otra.Unidades, "de B");
    const FuncionValor sinClave = LeerPlano(
        {"*****", "FUN_A_UNI = de A", "FUN__UNI = vac\xEDo", "FUN__TIP = fContinua"}, "A");
    EXPECT_EQ(sinClave.Clave, "");
    EXPECT_EQ(sinClave.Unidades, "vacío");
    EXPECT_EQ(sinClave.Tipo, FuncionContinua);
}

TEST_F(SeccionFuncion, AnUnknownKindReadsAsNone) {
    FuncionValor f = LeerPlano({"*****", "FUN_K_IND = K", "FUN_K_TIP = fOtra"}, "K");
    EXPECT_EQ(f.Tipo, FuncionNinguna);
    FuncionOptativo o;
    o.Clave = "K";
    Escribir(ruta, TextoPlano({"*****", "FUN_K_IND = K", "FUN_K_TIP = fPuntuacion"}));
    CargarFuncionOptativo(o, ruta);
    EXPECT_EQ(o.Tipo, FuncionNinguna) << "an option is only none, continuous or step";
}

TEST_F(SeccionFuncion, StepAndOptionCountsTakeTheirIntegerPart) {
    const FuncionValor f = LeerPlano({"*****", "FUN_K_IND = K", "FUN_K_TIP = fEscalon",
                                      "FUN_K_ESC_NUM = 2.7", "FUN_K_ESC1_VAL =  1000000 "},
                                     "K");
    EXPECT_EQ(f.Escalones.Tamano(), 2);
    EXPECT_EQ(f.Escalones(1).Valor, ValorLibre(1.0));
    EXPECT_TRUE(f.Escalones(2).Valor.EsVacio());
    const FuncionValor o =
        LeerPlano({"*****", "FUN_K_IND = K", "FUN_K_TIP = fOptativos", "FUN_K_OPT_NUM = 1.9",
                   "FUN_K_OPT1_NOM = uno", "FUN_O1K_IND = O1K", "FUN_O1K_UNI = kg",
                   "FUN_O1K_TIP = fContinua"},
                  "K");
    ASSERT_EQ(o.Optativos.Tamano(), 1);
    EXPECT_EQ(o.Optativos(1).Nombre, "uno");
    EXPECT_EQ(o.Optativos(1).Funcion.Clave, "O1K");
    EXPECT_EQ(o.Optativos(1).Funcion.Unidades, "kg");
    EXPECT_EQ(o.OptativoSeleccionado, 0) << "a missing selection count is 0";
}

// ---- Failures

TEST_F(SeccionFuncion, AFailedStatementIsRetriedUntilItsCauseIsGone) {
    FuncionValor f = DeEscalones();
    const FuncionValor completa = f;
    f.Escalones.Borrar();
    mensajes.Esperar("VADRO: Error ", TextoFallo(ErrSubindice, "la función de valor"),
                     Respuesta::Aceptar, [&] { f.Escalones = completa.Escalones; });
    GuardarFuncionValor(f, ruta, false);
    FuncionValor leida;
    leida.Clave = f.Clave;
    CargarFuncionValor(leida, ruta);
    EXPECT_EQ(leida, completa);
}

TEST_F(SeccionFuncion, APersistentFailureRepeatsTheMessage) {
    FuncionValor f = Continua();
    f.RMax = "mucho";
    const std::string texto = TextoFallo(ErrTipos, "la función de valor");
    mensajes.Esperar("VADRO: Error ", texto)
        .Esperar("VADRO: Error ", texto)
        .Esperar("VADRO: Error ", texto, Respuesta::Aceptar, [&] { f.RMax = 80.0; });
    const Lineas lineas = LineasDe(f);
    EXPECT_EQ(lineas.size(), 13u) << "each line once";
    EXPECT_EQ(lineas[8], "FUN_I1C1R1_RMX =  80000000 ");
}

TEST_F(SeccionFuncion, AnOptionsFailureNamesTheOptionalIndicator) {
    FuncionValor f = DeOptativos();
    f.Optativos(2).Funcion.Escalones.Borrar();
    mensajes.Esperar(
        "VADRO: Error ", TextoFallo(ErrSubindice, "la función de valor de indicador optativo"),
        Respuesta::Aceptar, [&] { f.Optativos(2).Funcion.Escalones.Redimensionar(0); });
    const Lineas lineas = LineasDe(f);
    EXPECT_EQ(lineas.back(), "FUN_O2I1S1C1R1_ESC_NUM =  0 ");
}

TEST_F(SeccionFuncion, AFileThatCannotBeWrittenIsTriedAgain) {
    const std::string carpeta = Ruta("nueva");
    const std::string destino = UnirRuta(carpeta, "f.fva");
    FuncionValor f = Continua();
    mensajes.Esperar("VADRO: Error ", TextoFallo(ErrRutaNoEncontrada, "la función de valor"),
                     Respuesta::Aceptar, [&] { std::filesystem::create_directory(carpeta); });
    GuardarFuncionValor(f, destino, false);
    EXPECT_EQ(LineasPlanas(Contenido(destino)), LineasDe(Continua()));
}

TEST_F(SeccionFuncion, ReadingFailuresGoUpToTheCaller) {
    const auto errorDe = [&](const Lineas& lineas) {
        return NumeroDeError([&] { (void)LeerPlano(lineas, "K"); });
    };
    EXPECT_EQ(errorDe({"*****", "FUN_K_IND = K", "FUN_K_RMN = cero"}), ErrTipos);
    EXPECT_EQ(errorDe({"*****", "FUN_K_IND = K", "FUN_K_TIP = fEscalon", "FUN_K_ESC_NUM = dos"}),
              ErrTipos);
    EXPECT_EQ(
        errorDe({"*****", "FUN_K_IND = K", "FUN_K_TIP = fEscalon", "FUN_K_ESC_NUM =  40000 "}),
        ErrDesbordamiento);
    EXPECT_EQ(errorDe({"*****", "FUN_K_IND = K", "FUN_K_TIP = fOptativos", "FUN_K_OPT_NUM =  -2 "}),
              ErrSubindice);
    EXPECT_EQ(errorDe({"*****", "FUN_K_IND = K", "FUN_K_TIP = fOptativos", "FUN_K_OPT_NUM =  1 ",
                       "FUN_K_OPT_SEL = todos"}),
              ErrTipos);
    EXPECT_EQ(NumeroDeError([&] {
                  FuncionValor f;
                  CargarFuncionValor(f, Ruta("no-existe.fva"));
              }),
              ErrArchivoNoEncontrado);
    EXPECT_FALSE(std::filesystem::exists(Ruta("funcion.$$$")))
        << "the temporary file goes also after a failure";
}

TEST_F(SeccionFuncion, AnOverflowingCountAllocatesNothing) {
    Escribir(ruta, TextoPlano({"*****", "FUN_K_IND = K", "FUN_K_TIP = fEscalon",
                               "FUN_K_ESC_NUM =  32768 "}));
    FuncionValor f;
    f.Clave = "K";
    f.Escalones.Redimensionar(1);
    f.Escalones(1).Valor = 0.5;
    EXPECT_EQ(NumeroDeError([&] { CargarFuncionValor(f, ruta); }), ErrDesbordamiento);
    ASSERT_EQ(f.Escalones.Tamano(), 1);
    EXPECT_EQ(f.Escalones(1).Valor, ValorLibre(0.5));
}

} // namespace
} // namespace vadro
