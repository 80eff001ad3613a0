#include "core/core/archivos.h"
#include "core/core/error_ejecucion.h"
#include "core/files/modelo_archivo.h"
#include "core/files/proteccion.h"
#include "soporte/errores.h"
#include "soporte/modelo_sano.h"
#include "soporte/prueba_sesion.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <tuple>

namespace vadro {
namespace {

class Cabecera : public pruebas::PruebaSesion {
protected:
    std::string ruta = Ruta("modelo.vdm");

    static Modelo ModeloCompleto() {
        Modelo m;
        pruebas::PonerIdentidad(m);
        m.NumRequerimientos = 0; // an empty count is written as 0, and reads back so
        m.NumComponentes = 0;
        m.NumEtapas = 0;
        return m;
    }

    std::vector<std::string> LineasDelArchivo() { return LineasPlanas(Contenido(ruta)); }
};

TEST_F(Cabecera, AnEmptyModelWritesEmptyValues) {
    ArchivoSalida salida;
    EscribirCabecera(Modelo{}, salida, "");
    EXPECT_EQ(salida.Lineas()[1], "MOD_APL = ");
    EXPECT_EQ(salida.Lineas().back(), "MOD_PERM_USU_VER = Falso");
}

// Values with equals signs follow the last-equals rule; a value with a line break is cut at
// its first line, each piece coded from the start of the key.
TEST_F(Cabecera, ValuesWithEqualsSignsAndLineBreaks) {
    Modelo m;
    m.Nombre = "a=b";
    m.Descripcion = "termina en=";
    m.Autor = "  blancos  ";
    m.Referencia = std::string("primera\nsegunda");
    GuardarModelo(m, ruta, false);
    EXPECT_EQ(LineasDelArchivo().at(7), "MOD_REF = primera");
    EXPECT_EQ(LineasDelArchivo().at(8), "segunda");
    Modelo leido;
    CargarModelo(leido, ruta);
    EXPECT_EQ(leido.Nombre, "b") << "what stands before the last = is lost";
    EXPECT_EQ(leido.Descripcion, "termina en=") << "a final = is kept";
    EXPECT_EQ(leido.Autor, "blancos");
    EXPECT_EQ(leido.Referencia, "primera");
}

// Plain text loads as it stands, unknown keys skipped, and the permission is true only for
// "Verdadero" or "True".
TEST_F(Cabecera, PlainTextLoadsAndThePermissionIsTrueOnlyForVerdaderoOrTrue) {
    for (const auto& [texto, esperado] : std::vector<std::pair<std::string, bool>>{
             {"Verdadero", true}, {"True", true}, {"true", false}, {"Sí", false}, {"", false}}) {
        Escribir(ruta, "*****MODELO*****\r\nMOD_APL = 2.1.0\r\nMOD_EXTRA = x\r\nMOD_NOM = Plano\r\n"
                       "OTRA COSA\r\nMOD_PERM_USU_VER = " +
                           texto + "\r\n");
        Modelo m;
        CargarModelo(m, ruta);
        EXPECT_EQ(m.PermisoUsuarioVer, esperado) << texto;
        EXPECT_EQ(std::tuple(m.Aplicacion, m.Nombre, m.EjeX), std::tuple("2.1.0", "Plano", ""));
    }
    EXPECT_EQ(Contenido(ruta).substr(0, 5), "*****") << "a reader leaves the plain file untouched";
}

TEST_F(Cabecera, AnEmptyOrUnknownFileGivesAnEmptyModelAndAMissingOneError53) {
    Escribir(ruta, "");
    Modelo m = ModeloCompleto();
    CargarModelo(m, ruta);
    EXPECT_EQ(m.Nombre, "");
    EXPECT_EQ(m.ArchivoCompilado, "");
    EXPECT_FALSE(m.PermisoUsuarioVer);

    std::string ruido;
    for (int i = 0; i < 4096; ++i) {
        ruido += static_cast<char>((i * 7919) % 256);
    }
    Escribir(ruta, ruido);
    Modelo n;
    CargarModelo(n, ruta);
    EXPECT_EQ(n.NumRequerimientos, ValorLibre());
    EXPECT_EQ(pruebas::NumeroDeError([&] { CargarModelo(n, Ruta("no-esta.vdm")); }),
              ErrArchivoNoEncontrado)
        << "a missing file is no empty one";
}

// A save that fails shows its message, keeps Modificado and leaves the previous file intact,
// whether it cannot start or fails halfway.
TEST_F(Cabecera, AFailedSaveShowsItsMessageKeepsModificadoAndThePreviousFile) {
    Modelo m = ModeloCompleto();
    GuardarModelo(m, ruta, false);
    const std::string anterior = Contenido(ruta);
    m.Nombre = "Otro";
    m.Modificado = true;
    mensajes.Esperar("VADRO: Error ",
                     "Error 76 al guardar el modelo.\n\rNo se encontró la ruta de acceso");
    GuardarModelo(m, Ruta("no-existe/modelo.vdm"), false);
    EXPECT_TRUE(m.Modificado);
    sesion().servicios.durante_escritura = [](const std::string&) {
        throw ErrorEjecucion(ErrDiscoLleno);
    };
    mensajes.Esperar("VADRO: Error ", "Error 61 al guardar el modelo.\n\rDisco lleno");
    GuardarModelo(m, ruta, false);
    EXPECT_EQ(Contenido(ruta), anterior);
    EXPECT_TRUE(m.Modificado);
}

TEST_F(Cabecera, AppendingAddsPlainTextBehindTheFile) {
    Escribir(ruta, "PRIMERA = 1\r\n");
    Modelo m;
    GuardarModelo(m, ruta, true);
    const std::string bytes = Contenido(ruta);
    EXPECT_EQ(bytes.substr(0, 33), "PRIMERA = 1\r\n*****MODELO*****\r\nMO");
}

} // namespace
} // namespace vadro
