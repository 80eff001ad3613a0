#include "core/core/archivos.h"
#include "core/core/error_ejecucion.h"
#include "core/files/proteccion.h"
#include "core/files/seccion_funcion.h"
#include "soporte/acta.h"
#include "soporte/errores.h"
#include "soporte/modelo_sano.h"
#include "soporte/prueba_sesion.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <sstream>

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
    opciones.Optativos(2).Funcion.Escalones.Borrar();
    EXPECT_EQ(LineasDe(opciones).back(), "FUN_O2I2_ESC_NUM =  0 ") << "an absent array";
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

// Hand-made blocks (the key asked for, then the block's lines separated by "|") read and
// written again, which reads back to the same text (the lines with a value shown, and a note
// when the array of the kind is absent), or the number of the error that went up to the
// caller. What the file leaves out is filled: a missing or empty sign is an open limit; a
// step's bare number "25" keeps no sign, so it is written as the sign "2" and the number 5,
// its first digit taken for the symbol of the lower limit; a count is cut to its integer
// part; keys follow the key read from the file. A count missing, not positive or under one is
// written as a count of 0; a negative count sizes no array of steps or options, a failure.
TEST_F(SeccionFuncion, HandMadeBlocksReadAndWriteAgainAsTheDataFileSays) {
    Acta acta;
    for (const Caso& caso : Casos("archivos/lectura_funcion.txt")) {
        Lineas lineas;
        std::istringstream partes(caso.campos.at(1));
        for (std::string linea; std::getline(partes, linea, '|');) {
            lineas.push_back(linea);
        }
        std::string fila;
        const int numero = NumeroDeError([&] {
            FuncionValor f = Leer(lineas, caso.campos.at(0));
            const Lineas escritas = LineasDe(f);
            EXPECT_EQ(LineasDe(Leer(escritas, f.Clave)), escritas) << caso.texto;
            for (const std::string& linea : escritas) {
                const bool vacia = linea.ends_with("= ") || linea.starts_with("*****");
                fila += vacia ? "" : (fila.empty() ? "" : " | ") + linea;
            }
            const bool ausente = (f.Tipo == FuncionEscalon && !f.Escalones.Presente()) ||
                                 (f.Tipo == FuncionOptativos && !f.Optativos.Presente()) ||
                                 (f.Tipo == FuncionPuntuacion && !f.Puntuaciones.Presente());
            fila += ausente ? "; no array" : "";
        });
        acta.Fila(caso.texto, numero == 0 ? fila : "error " + std::to_string(numero));
    }
    acta.Comparar("archivos/lectura_funcion.txt");
    EXPECT_FALSE(std::filesystem::exists(Ruta("funcion.$$$"))) << "deleted after a failure too";
}

} // namespace
} // namespace vadro
