#include "core/core/comunes.h"
#include "core/core/configuracion.h"
#include "core/core/error_ejecucion.h"
#include "core/core/ini.h"
#include "soporte/errores.h"
#include "soporte/prueba_sesion.h"

#include <gtest/gtest.h>

namespace vadro {
namespace {

class Configuracion_ : public pruebas::PruebaSesion {
protected:
    std::string ini = Ruta("Config.ini");
    const Configuracion& c() { return sesion().configuracion; }
};

TEST_F(Configuracion_, AFirstStartWritesTheTwoDisplayKeysAndTheFontSize) {
    CargarConfiguracion(sesion());
    EXPECT_TRUE(c().MostrarInicio);
    EXPECT_TRUE(c().MostrarAvisoBeta);
    EXPECT_EQ(c().TamanoFuente, 0);
    EXPECT_EQ(c().DirModelos, "");
    EXPECT_EQ(Contenido(ini), "[GENERAL]\r\nMOSTRAR_INICIO=Verdadero\r\n"
                              "MOSTRAR_AVISO_BETA=Verdadero\r\nTAMA\xD1O_FUENTE=0\r\n");
}

TEST_F(Configuracion_, OnlyFalseAndFalsoMeanFalseAndAreLeftAlone) {
    Escribir(
        ini,
        "[GENERAL]\r\nMOSTRAR_INICIO=False\r\nMOSTRAR_AVISO_BETA=falso\r\nTAMA\xD1O_FUENTE=1\r\n");
    CargarConfiguracion(sesion());
    EXPECT_FALSE(c().MostrarInicio);
    EXPECT_TRUE(c().MostrarAvisoBeta) << "the comparison is exact";
    EXPECT_EQ(c().TamanoFuente, 1);
    EXPECT_EQ(Contenido(ini),
              "[GENERAL]\r\nMOSTRAR_INICIO=False\r\nMOSTRAR_AVISO_BETA=Verdadero\r\n"
              "TAMA\xD1O_FUENTE=1\r\n");
}

TEST_F(Configuracion_, DirectoriesReadInAndMinusOneIsEmpty) {
    Escribir(ini, "[DIRECTORIOS]\r\nPROYECTOS=/p\r\nMODELOS=-1\r\nREQUERIMIENTOS=/r\r\n"
                  "COMPONENTES=/c\r\nETAPAS=/e\r\nFUNCION_VALOR=/f\r\n");
    CargarConfiguracion(sesion());
    EXPECT_EQ(Unir({c().DirProyectos, "|", c().DirModelos, "|", c().DirRequerimientos, "|",
                    c().DirComponentes, "|", c().DirEtapas, "|", c().DirFuncionValor}),
              "/p||/r|/c|/e|/f");
}

TEST_F(Configuracion_, AFontSizeOutOfRangeIsTakenAndTextIsAConversionError) {
    Escribir(ini, "[GENERAL]\r\nTAMA\xD1O_FUENTE=5\r\n");
    CargarConfiguracion(sesion());
    EXPECT_EQ(c().TamanoFuente, 5);

    Escribir(ini, "[GENERAL]\r\nTAMA\xD1O_FUENTE=grande\r\n");
    EXPECT_EQ(pruebas::NumeroDeError([&] { CargarConfiguracion(sesion()); }), ErrTipos)
        << "a font size that is no number stops the start";
}

TEST_F(Configuracion_, PreferencesAreWrittenThroughAtOnce) {
    GuardarMostrarInicio(sesion(), false);
    GuardarMostrarAvisoBeta(sesion(), true);
    GuardarTamanoFuente(sesion(), 2);
    EXPECT_FALSE(c().MostrarInicio);
    EXPECT_EQ(c().TamanoFuente, 2);
    EXPECT_EQ(LeerIni("GENERAL", "MOSTRAR_INICIO", ini).Texto(), "Falso");
    EXPECT_EQ(LeerIni("GENERAL", "MOSTRAR_AVISO_BETA", ini).Texto(), "Verdadero");
    EXPECT_EQ(LeerIni("GENERAL", "TAMAÑO_FUENTE", ini).Texto(), "2");
}

} // namespace
} // namespace vadro
