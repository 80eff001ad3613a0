#include "core/core/archivos.h"
#include "core/core/error_ejecucion.h"
#include "core/files/proteccion.h"
#include "core/files/seccion_funcion.h"
#include "soporte/errores.h"
#include "soporte/modelo_sano.h"
#include "soporte/prueba_sesion.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

namespace vadro {
namespace {

using namespace pruebas;
using Lineas = std::vector<std::string>;

// The writer works on the record itself, so that a scripted message can repair it.
Lineas LineasDe(FuncionValor& f) {
    ArchivoSalida salida;
    GuardarFuncionValor(f, salida);
    return salida.Lineas();
}
Lineas LineasDe(FuncionValor&& f) {
    return LineasDe(f);
}

bool Tiene(const Lineas& lineas, const std::string& linea) {
    return std::find(lineas.begin(), lineas.end(), linea) != lineas.end();
}

std::string Fallo(int numero, const std::string& tema = "la función de valor") {
    return "Error " + std::to_string(numero) + " al guardar " + tema + ".\n\r" +
           DescripcionError(numero);
}

class SeccionFuncion : public PruebaSesion {
protected:
    std::string ruta = Ruta("funcion.fva");

    FuncionValor Leer(Lineas lineas, const std::string& clave = "K") {
        lineas.insert(lineas.begin(), "*****");
        lineas.push_back("FIN = ");
        Escribir(ruta, UnirLineas(lineas));
        FuncionValor f;
        f.Clave = clave;
        CargarFuncionValor(f, ruta);
        return f;
    }
};

// The lines of every kind stand in the data file of a whole model; here what it lacks.
TEST_F(SeccionFuncion, NoneUnknownAndUndefinedPartsWriteWhatTheyAre) {
    FuncionValor ninguna;
    ninguna.Clave = "K";
    EXPECT_EQ(LineasDe(ninguna),
              (Lineas{"*****FUNCION VALOR K*****", "FUN_K_IND = K", "FUN_K_UNI = ", "FUN_K_XMN = ",
                      "FUN_K_XMX = ", "FUN_K_RMN = ", "FUN_K_RMX = ", "FUN_K_TIP = ninguna"}));
    ninguna.Tipo = 7;
    EXPECT_EQ(LineasDe(ninguna).back(), "FUN_K_RMX = ") << "an unknown kind writes no type";
    FuncionValor escalon = DeEscalones<FuncionValor>();
    escalon.Escalones(3).ValorFinal = ValorLibre();
    const Lineas pasos = LineasDe(escalon);
    EXPECT_TRUE(Tiene(pasos, "FUN__ESC3_VFIN = ") && Tiene(pasos, "FUN__ESC3_SFIN = "))
        << "both sign lines always";
    FuncionValor opciones = DeOptativos("I2");
    opciones.Optativos(2).Funcion.Clave = "viejo";
    EXPECT_TRUE(Tiene(LineasDe(opciones), "FUN_O2I2_IND = O2I2"));
    EXPECT_EQ(opciones.Optativos(2).Funcion.Clave, "O2I2") << "the writer sets the option's key";
}

TEST_F(SeccionFuncion, EveryKindComesBackFromATemplateFile) {
    for (FuncionValor f :
         {Continua(), DeEscalones<FuncionValor>(), DePuntuacion(), DeOptativos("I2C1R1")}) {
        GuardarFuncionValor(f, ruta, false);
        FuncionValor leida;
        leida.Clave = f.Clave;
        CargarFuncionValor(leida, ruta);
        EXPECT_EQ(leida, f) << f.Tipo;
    }
    EXPECT_NE(Contenido(ruta).substr(0, 5), "*****") << "a template on its own is scrambled";
    EXPECT_FALSE(std::filesystem::exists(Ruta("funcion.$$$")));
}

TEST_F(SeccionFuncion, TheReaderFillsWhatTheFileLeavesOut) {
    const FuncionValor f =
        Leer({"FUN_K_IND = K", "FUN_K_XMN =  5000000 ", "FUN_K_XMX = -9000000 ", "FUN_K_XMXS = "});
    EXPECT_EQ(f.XMin, ValorLibre("<5")) << "a missing sign is an open limit";
    EXPECT_EQ(f.XMax, ValorLibre(">-9")) << "and so is an empty one";
    const FuncionValor pasos =
        Leer({"FUN_K_IND = K", "FUN_K_XMN =  0 ", "FUN_K_XMNS = igual", "FUN_K_TIP = fEscalon",
              "FUN_K_ESC_NUM = 1.7", "FUN_K_ESC1_VINI =  25000000 ", "FUN_K_ESC1_SINI = "});
    ASSERT_EQ(pasos.Escalones.Tamano(), 1) << "the integer part of the count";
    EXPECT_EQ(pasos.Escalones(1).ValorInicial, ValorLibre("25")) << "a bare number";
    EXPECT_EQ(pasos.XMin, ValorLibre("=5")) << "whose first digit was taken for the symbol";
    for (const char* cuenta : {"", "0", "-1"}) {
        const FuncionValor p = Leer(
            {"FUN_K_IND = K", "FUN_K_TIP = fPuntuacion", std::string("FUN_K_PTN_NUM = ") + cuenta});
        EXPECT_TRUE(p.Tipo == FuncionPuntuacion && !p.Puntuaciones.Presente()) << cuenta;
    }
    EXPECT_EQ(Leer({"FUN_A_IND = B", "FUN_A_UNI = A", "FUN_B_UNI = B"}, "A").Unidades, "B")
        << "keys follow the key read from the file";
}

TEST_F(SeccionFuncion, AFailedStatementIsShownAndRetriedUntilItsCauseIsGone) {
    FuncionValor f = DeEscalones<FuncionValor>();
    const FuncionValor completa = f;
    f.RMax = "mucho";
    const std::string destino = UnirRuta(Ruta("nueva"), "f.fva");
    mensajes.Esperar("VADRO: Error ", Fallo(ErrTipos), Respuesta::Reintentar)
        .Esperar("VADRO: Error ", Fallo(ErrTipos), Respuesta::Reintentar,
                 [&] { f.RMax = completa.RMax; })
        .Esperar("VADRO: Error ", Fallo(ErrRutaNoEncontrada), Respuesta::Reintentar,
                 [&] { std::filesystem::create_directory(Ruta("nueva")); });
    GuardarFuncionValor(f, destino, false);
    EXPECT_EQ(LineasPlanas(Contenido(destino)), LineasDe(FuncionValor(completa)));
    EXPECT_EQ(mensajes.Vistos().at(0).botones, Botones::ReintentarCancelar);
}

TEST_F(SeccionFuncion, CancelInTheRetryBoxAbandonsTheWholeSave) {
    const std::string destino = Ruta("f.fva");
    Escribir(destino, "antes");
    FuncionValor opciones = DeOptativos("K");
    opciones.Optativos(2).Funcion.RMin = "nada";
    mensajes.Esperar("VADRO: Error ", Fallo(ErrTipos, "la función de valor de indicador optativo"),
                     Respuesta::Cancelar);
    EXPECT_EQ(NumeroDeError([&] { GuardarFuncionValor(opciones, destino, false); }), ErrCancelar);
    EXPECT_EQ(Contenido(destino), "antes");
}

// A function read from a file whose count was missing or not positive has no array; it is
// written with a count of 0 and reads back to the same text.
TEST_F(SeccionFuncion, AnAbsentArrayIsWrittenAsACountOfZero) {
    struct Caso {
        std::string tipo;
        std::string lineaCuenta;
        std::vector<std::string> cuentas;
    };
    // A negative count sizes no array of steps or options: that is a reading failure.
    for (const Caso& caso :
         std::vector<Caso>{{"fEscalon", "FUN_K_ESC_NUM =  0 ", {"", "0", ".4"}},
                           {"fOptativos", "FUN_K_OPT_NUM =  0 ", {"", "0", ".4"}},
                           {"fPuntuacion", "FUN_K_PTN_NUM =  0 ", {"", "0", "-1", ".4"}}}) {
        for (const std::string& cuenta : caso.cuentas) {
            Lineas lineas = {"FUN_K_IND = K", "FUN_K_TIP = " + caso.tipo};
            for (const char* sufijo : {"_ESC_NUM", "_OPT_NUM", "_PTN_NUM"}) {
                lineas.push_back("FUN_K" + std::string(sufijo) + " = " + cuenta);
            }
            FuncionValor leida = Leer(lineas, "K");
            const Lineas escritas = LineasDe(leida);
            EXPECT_NE(std::find(escritas.begin(), escritas.end(), caso.lineaCuenta), escritas.end())
                << caso.tipo << " with count \"" << cuenta << "\"";
            EXPECT_EQ(LineasDe(Leer(escritas, "K")), escritas) << caso.tipo << " " << cuenta;
        }
    }
    FuncionValor opcion = DeOptativos("K");
    opcion.Optativos(2).Funcion.Escalones.Borrar();
    EXPECT_EQ(LineasDe(opcion).back(), "FUN_O2K_ESC_NUM =  0 ");
}

TEST_F(SeccionFuncion, ReadingFailuresGoUpToTheCaller) {
    const auto error = [&](Lineas lineas) {
        lineas.insert(lineas.begin(), "FUN_K_IND = K");
        return NumeroDeError([&] { (void)Leer(lineas); });
    };
    EXPECT_EQ(error({"FUN_K_RMN = cero"}), ErrTipos);
    EXPECT_EQ(error({"FUN_K_TIP = fEscalon", "FUN_K_ESC_NUM = dos"}), ErrTipos);
    EXPECT_EQ(error({"FUN_K_TIP = fOptativos", "FUN_K_OPT_NUM = -2"}), ErrSubindice);
    EXPECT_EQ(error({"FUN_K_TIP = fEscalon", "FUN_K_ESC_NUM = 32768"}), ErrDesbordamiento);
    EXPECT_FALSE(std::filesystem::exists(Ruta("funcion.$$$"))) << "deleted after a failure too";
}

} // namespace
} // namespace vadro
