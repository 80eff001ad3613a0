#include "core/core/archivos.h"
#include "core/core/version.h"
#include "core/files/modelo_archivo.h"
#include "programa_herramientas.h"
#include "soporte/acta.h"
#include "soporte/datos.h"
#include "soporte/modelo_sano.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <sys/stat.h>

namespace vadro {
namespace {

using Herramientas = pruebas::ProgramaHerramientas;
using pruebas::Salida;

// What the companion scrambles, the program reads; that "texto" unscrambles it is in the table
// of orders below.
TEST_F(Herramientas, ProtegerScramblesAHandWrittenTextThatLoadsAsMeant) {
    Escribir(Ruta("a mano.txt"),
             "*****MODELO*****\nMOD_NOM = Señal ñ€\nMOD_PERM_USU_VER = Verdadero\n");
    const Salida r = Programa("proteger 'a mano.txt' modelo.vdm");
    EXPECT_EQ(r.estado, 0) << r.error;
    EXPECT_NE(Contenido(Ruta("modelo.vdm")).substr(0, 5), "*****");
    Modelo m;
    CargarModelo(m, Ruta("modelo.vdm"));
    EXPECT_EQ(m.Nombre, "Señal ñ€");
    EXPECT_TRUE(m.PermisoUsuarioVer);
}

// A sound model with one warning: its requirement has a single criterion.
Modelo ModeloSano() {
    FuncionValor euros = pruebas::Continua();
    euros.Unidades = "€";
    return pruebas::ModeloCon({pruebas::Requerimiento(
        "Funcional", {pruebas::Criterio("Calidad", {pruebas::Indicador("Caudal"),
                                                    pruebas::Indicador("Coste", euros)})})});
}

void Guardar(Modelo modelo, const std::string& ruta) {
    GuardarModelo(modelo, ruta, false);
}

// The whole output, the report with or without its keys, as the data files hold it.
TEST_F(Herramientas, ComprobarPrintsTheReportAsTheCompileWindowShowsIt) {
    Guardar(ModeloSano(), Ruta("sano.vdm"));
    const Salida sano = Programa("comprobar sano.vdm");
    EXPECT_EQ(sano.estado, 0) << sano.error;
    EXPECT_EQ(sano.salida, pruebas::Datos("herramientas/comprobar_sano.txt", sano.salida));

    Modelo sinUnidades = ModeloSano();
    sinUnidades.Requerimientos(1).Criterios(1).Indicadores(2).Funcion.Unidades = "";
    Guardar(sinUnidades, Ruta("error.vdm"));
    const Salida mal = Programa("comprobar error.vdm --claves");
    EXPECT_EQ(mal.estado, 1);
    EXPECT_EQ(mal.salida, pruebas::Datos("herramientas/comprobar_claves.txt", mal.salida));
    EXPECT_EQ(Programa("comprobar no-esta.vdm").estado, 2);
}

TEST_F(Herramientas, CompilarWritesTheCompiledModelOnlyWithoutErrors) {
    Guardar(ModeloSano(), Ruta("sano.vdm"));
    const Salida r = Programa("compilar sano.vdm sano.vdc");
    EXPECT_EQ(r.estado, 0) << r.error;
    EXPECT_EQ(r.salida, "Se ha creado el archivo compilado sano.vdc\n");
    Modelo compilado;
    CargarModelo(compilado, Ruta("sano.vdc"));
    EXPECT_EQ(compilado.Aplicacion, VersionPrograma());
    EXPECT_EQ(compilado.ArchivoCompilado, "sano.vdc");
    EXPECT_EQ(compilado.Requerimientos(1).Criterios(1).Indicadores(2).Funcion.Unidades, "€");

    Modelo vacio = ModeloSano();
    vacio.NumRequerimientos = 0;
    Guardar(vacio, Ruta("vacio.vdm"));
    const Salida mal = Programa("compilar vacio.vdm vacio.vdc");
    EXPECT_EQ(mal.estado, 1);
    EXPECT_NE(mal.salida.find("     Error: no se ha definido arbol de requerimientos"),
              std::string::npos);
    EXPECT_FALSE(std::filesystem::exists(Ruta("vacio.vdc")));
}

TEST_F(Herramientas, TheHelpTellsEveryOrder) {
    const Salida ayuda = Programa("--help");
    EXPECT_EQ(ayuda.estado, 0);
    EXPECT_EQ(ayuda.salida, pruebas::Datos("herramientas/ayuda.txt", ayuda.salida));
}

// Every order as the user types it, with its standard input, run in the order of the data
// file, which holds its status, its output and its messages. Plain models in UTF-8 and in
// 8 bits read alike; files that are no models are refused before they are read; a full output
// is a failure; the data never hold a damaged file. The weights of "1 3 5" are its normalised
// columns averaged by rows, and lambda, 3.0039, rounds to 3.00, so the ratio vanishes; the
// cyclic matrix weighs every row a third with lambda 10.11, a ratio of (10.11 - 3) / 2 / 0.58.
TEST_F(Herramientas, EveryOrderEndsInItsStatusOutputAndMessages) {
    Escribir(Ruta("plano.vdm"), "*****MODELO*****\nMOD_NOM = Señalización €\n");
    Escribir(Ruta("ocho-bits.vdm"), "*****MODELO*****\r\nMOD_NOM = A\xF1o\r\n");
    Guardar(ModeloSano(), Ruta("sano.vdm"));
    Escribir(Ruta("solo-lectura.vdc"), "antes");
    std::filesystem::permissions(Ruta("solo-lectura.vdc"), std::filesystem::perms::owner_read);
    std::filesystem::create_directory(Ruta("carpeta"));
    ASSERT_EQ(::mkfifo(Ruta("tubo").c_str(), 0600), 0);
    std::fclose(std::fopen(Ruta("enorme.vdm").c_str(), "w"));
    std::filesystem::resize_file(Ruta("enorme.vdm"), std::uintmax_t{2} << 30); // sparse
    pruebas::Acta acta;
    for (const pruebas::Caso& caso : pruebas::Casos("herramientas/ordenes.txt")) {
        const Salida r = Programa(caso.campos.at(0), caso.campos.at(1));
        acta.Fila(caso.texto, "status " + std::to_string(r.estado) + ", out '" + r.salida +
                                  "', err '" + r.error + "'");
    }
    acta.Comparar("herramientas/ordenes.txt");
    EXPECT_EQ(Contenido(Ruta("solo-lectura.vdc")), "antes");
}

} // namespace
} // namespace vadro
