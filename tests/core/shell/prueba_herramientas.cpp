#include "core/core/archivos.h"
#include "core/core/version.h"
#include "core/files/modelo_archivo.h"
#include "core/files/proteccion.h"
#include "core/shell/herramientas.h"
#include "soporte/datos.h"
#include "soporte/modelo_sano.h"
#include "soporte/prueba_sesion.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <sstream>

namespace vadro {
namespace {

struct Resultado {
    int estado;
    std::string salida;
    std::string error;
};

class Herramientas : public pruebas::PruebaSesion {
protected:
    Resultado Ejecutar(const std::vector<std::string>& argumentos,
                       const std::string& entrada = {}) {
        std::istringstream in(entrada);
        std::ostringstream out;
        std::ostringstream err;
        const int estado = EjecutarHerramientas(argumentos, in, out, err);
        return {estado, out.str(), err.str()};
    }

    // Runs the built program as a user would, in the test's folder.
    Resultado Programa(const std::string& argumentos, const std::string& entrada = {}) {
        const std::string archivoEntrada = Ruta("entrada.txt");
        const std::string archivoError = Ruta("error.txt");
        Escribir(archivoEntrada, entrada);
        const std::string orden = std::string("cd '") + Directorio() +
                                  "' && '" VADRO_HERRAMIENTAS "' " + argumentos +
                                  " < entrada.txt 2> error.txt";
        FILE* tubo = popen(orden.c_str(), "r");
        std::string salida;
        char bloque[4096];
        std::size_t leidos = 0;
        while ((leidos = fread(bloque, 1, sizeof bloque, tubo)) > 0) {
            salida.append(bloque, leidos);
        }
        const int estado = pclose(tubo);
        return {WEXITSTATUS(estado), salida, Contenido(archivoError)};
    }
};

TEST_F(Herramientas, TextoPrintsThePlainTextOfAnyFileAsUtf8) {
    Modelo m;
    m.Nombre = "Señalización";
    GuardarModelo(m, Ruta("m.vdm"), false);
    const Resultado r = Programa("texto m.vdm");
    EXPECT_EQ(r.estado, 0);
    EXPECT_EQ(r.salida.rfind("*****MODELO*****\nMOD_APL = \nMOD_NOM = Señalización\n", 0), 0u)
        << r.salida;
    Escribir(Ruta("plano.vdm"), "*****MODELO*****\r\nMOD_NOM = A\xF1o\r\n");
    EXPECT_EQ(Programa("texto plano.vdm").salida, "*****MODELO*****\nMOD_NOM = Año\n");
}

TEST_F(Herramientas, ProtegerScramblesAHandWrittenTextThatLoadsAsMeant) {
    Escribir(Ruta("a mano.txt"),
             "*****MODELO*****\nMOD_NOM = Señal ñ€\nMOD_PERM_USU_VER = Verdadero\n");
    const Resultado r = Programa("proteger 'a mano.txt' modelo.vdm");
    EXPECT_EQ(r.estado, 0) << r.error;
    EXPECT_NE(Contenido(Ruta("modelo.vdm")).substr(0, 5), "*****");
    Modelo m;
    CargarModelo(m, Ruta("modelo.vdm"));
    EXPECT_EQ(m.Nombre, "Señal ñ€");
    EXPECT_TRUE(m.PermisoUsuarioVer);
}

TEST_F(Herramientas, ProtegerTakesEightBitTextAsItStands) {
    EXPECT_EQ(ComoOchoBits("A\xF1o"), "A\xF1o");
    EXPECT_EQ(ComoOchoBits("Año"), "A\xF1o");
    EXPECT_EQ(ComoOchoBits("plain"), "plain");
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
    const Resultado sano = Programa("comprobar sano.vdm");
    EXPECT_EQ(sano.estado, 0) << sano.error;
    EXPECT_EQ(sano.salida, pruebas::Datos("herramientas/comprobar_sano.txt", sano.salida));

    Modelo sinUnidades = ModeloSano();
    sinUnidades.Requerimientos(1).Criterios(1).Indicadores(2).Funcion.Unidades = "";
    Guardar(sinUnidades, Ruta("error.vdm"));
    const Resultado mal = Programa("comprobar error.vdm --claves");
    EXPECT_EQ(mal.estado, 1);
    EXPECT_EQ(mal.salida, pruebas::Datos("herramientas/comprobar_claves.txt", mal.salida));
    EXPECT_EQ(Programa("comprobar no-esta.vdm").estado, 2);
}

TEST_F(Herramientas, CompilarWritesTheCompiledModelOnlyWithoutErrors) {
    Guardar(ModeloSano(), Ruta("sano.vdm"));
    const Resultado r = Programa("compilar sano.vdm sano.vdc");
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
    const Resultado mal = Programa("compilar vacio.vdm vacio.vdc");
    EXPECT_EQ(mal.estado, 1);
    EXPECT_NE(mal.salida.find("     Error: no se ha definido arbol de requerimientos"),
              std::string::npos);
    EXPECT_FALSE(std::filesystem::exists(Ruta("vacio.vdc")));
}

TEST_F(Herramientas, PesosPrintsEveryRowAndTheRatio) {
    const Resultado r = Ejecutar({"pesos"}, "1 2\n1/2 1\n");
    EXPECT_EQ(r.estado, 0);
    EXPECT_EQ(r.salida, "Peso 1 = 66.67\nPeso 2 = 33.33\nConsistencia = 0\n");
    // Normalised columns averaged by rows give 64.79, 22.99 and 12.22; lambda is 3.0039, which
    // rounds to 3.00, so the ratio vanishes.
    const Resultado tres = Ejecutar({"pesos"}, "1 3 5\n1/3 1 2\n1/5 1/2 1\n");
    EXPECT_EQ(tres.salida, "Peso 1 = 64.79\nPeso 2 = 22.99\nPeso 3 = 12.22\nConsistencia = 0\n");
    // A cyclic matrix: every weight a third, lambda 10.11, ratio (10.11 - 3) / 2 / 0.58.
    const Resultado ciclica = Programa("pesos", "1 9 1/9\n1/9 1 9\n9 1/9 1\n");
    EXPECT_EQ(ciclica.salida, "Peso 1 = 33.33\nPeso 2 = 33.33\nPeso 3 = 33.33\n"
                              "Consistencia = 6.1293103448275863\n");
}

TEST_F(Herramientas, PesosWithEmptyCellsComputesNothing) {
    const Resultado r = Ejecutar({"pesos"}, "x 3\n- x\n");
    EXPECT_EQ(r.estado, 2);
    EXPECT_NE(r.error.find("La celda \"x\" de la fila 1 no es un número."), std::string::npos);
    const Resultado vacias = Ejecutar({"pesos"}, "- 3\n- -\n");
    EXPECT_EQ(vacias.estado, 0);
    EXPECT_EQ(vacias.salida, "Peso 1 = \nPeso 2 = \nConsistencia = \n")
        << "the diagonal is forced to 1, the empty cell below it stays empty";
}

TEST_F(Herramientas, FailuresAreSpanishMessagesWithANonZeroStatus) {
    const Resultado sinOrden = Programa("");
    EXPECT_EQ(sinOrden.estado, 2);
    EXPECT_NE(sinOrden.error.find("Falta la orden."), std::string::npos);
    const Resultado noEsta = Programa("texto no-esta.vdm");
    EXPECT_EQ(noEsta.estado, 2);
    EXPECT_EQ(noEsta.error, "vadro-herramientas: No se puede leer no-esta.vdm: No se encontró el "
                            "archivo\nPruebe «vadro-herramientas --help».\n");
    EXPECT_EQ(Programa("proteger solo-uno").estado, 2);
    EXPECT_EQ(Programa("pesos de-mas").estado, 2);
    const Resultado ayuda = Programa("--help");
    EXPECT_EQ(ayuda.estado, 0);
    EXPECT_NE(ayuda.salida.find("Uso: vadro-herramientas ORDEN"), std::string::npos);
}

} // namespace
} // namespace vadro
