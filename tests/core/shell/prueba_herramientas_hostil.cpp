// The companion given unlucky and hostile input, run as a user runs it: every case ends in a
// Spanish message and the exit status 2, within seconds, and never damages a file.
#include "core/core/archivos.h"
#include "core/files/modelo_archivo.h"
#include "core/files/proteccion.h"
#include "core/files/texto_modelo.h"
#include "core/shell/herramientas.h"
#include "soporte/modelo_sano.h"
#include "soporte/prueba_sesion.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <sys/stat.h>
#include <sys/wait.h>

namespace vadro {
namespace {

struct Salida {
    int estado;
    std::string salida;
    std::string error;
};

class HerramientasHostiles : public pruebas::PruebaSesion {
protected:
    // Runs the built program in the test's folder, killed after a minute (a hang is status 124),
    // its output to `destino` ("" for a pipe we read).
    Salida Ejecutar(const std::string& argumentos, const std::string& destino = {}) {
        const std::string orden =
            "cd '" + Directorio() + "' && timeout 60 '" VADRO_HERRAMIENTAS "' " + argumentos +
            " < entrada.txt 2> error.txt" + (destino.empty() ? "" : " > " + destino);
        if (!std::filesystem::exists(Ruta("entrada.txt"))) {
            Escribir(Ruta("entrada.txt"), "");
        }
        FILE* tubo = popen(orden.c_str(), "r");
        std::string salida;
        char bloque[4096];
        std::size_t leidos = 0;
        while ((leidos = fread(bloque, 1, sizeof bloque, tubo)) > 0) {
            salida.append(bloque, leidos);
        }
        const int estado = pclose(tubo);
        return {WIFEXITED(estado) ? WEXITSTATUS(estado) : -1, salida, Contenido(Ruta("error.txt"))};
    }

    // A sound model whose first indicator's function is replaced by these lines, in plain text.
    void ModeloConFuncion(const std::string& ruta, const std::vector<std::string>& lineas) {
        Modelo m = pruebas::ModeloCon({pruebas::Requerimiento(
            "R", {pruebas::Criterio("C", {pruebas::Indicador("A"), pruebas::Indicador("B")})})});
        GuardarModelo(m, Ruta("base.vdm"), false);
        std::vector<std::string> texto;
        bool dentro = false;
        for (const auto& linea : LineasPlanas(Contenido(Ruta("base.vdm")))) {
            if (linea == "*****FUNCION VALOR I1C1R1*****") {
                dentro = true;
                texto.push_back(linea);
                texto.insert(texto.end(), lineas.begin(), lineas.end());
                continue;
            }
            dentro = dentro && linea.rfind("FUN_I1C1R1_", 0) == 0;
            if (!dentro) {
                texto.push_back(linea);
            }
        }
        Escribir(ruta, UnirLineas(texto));
    }
};

TEST_F(HerramientasHostiles, FunctionsThatOnceLoopedCompileOrFailOnce) {
    struct Caso {
        std::vector<std::string> lineas;
        int estado;
    };
    const std::vector<std::string> puntuacion = {
        "FUN_I1C1R1_IND = I1C1R1",      "FUN_I1C1R1_XMN =  0 ",      "FUN_I1C1R1_XMX =  100000000 ",
        "FUN_I1C1R1_XMXS = igual",      "FUN_I1C1R1_RMN =  0 ",      "FUN_I1C1R1_RMX =  100000000 ",
        "FUN_I1C1R1_TIP = fPuntuacion", "FUN_I1C1R1_C =  50000000 ", "FUN_I1C1R1_K =  500000 ",
        "FUN_I1C1R1_P =  2000000 "};
    std::vector<Caso> casos;
    for (const char* cuenta : {"0", "-1", ".4", ""}) {
        auto lineas = puntuacion;
        lineas.push_back(std::string("FUN_I1C1R1_PTN_NUM = ") + cuenta);
        casos.push_back({lineas, 1}); // the check finds the empty scoring function
    }
    auto palabra = puntuacion;
    palabra.insert(palabra.begin() + 2, "FUN_I1C1R1_XMNS = palabra");
    casos.push_back({palabra, 1}); // the check finds the limit, nothing is written
    for (const Caso& caso : casos) {
        ModeloConFuncion(Ruta("m.vdm"), caso.lineas);
        Escribir(Ruta("c.vdc"), "antes");
        const Salida r = Ejecutar("compilar m.vdm c.vdc");
        EXPECT_NE(r.estado, 124) << "a hang: " << caso.lineas.back();
        EXPECT_LE(std::count(r.error.begin(), r.error.end(), '\n'), 2) << r.error;
        EXPECT_EQ(r.estado, caso.estado) << caso.lineas.back() << "\n" << r.error;
        if (caso.estado != 0) {
            EXPECT_EQ(Contenido(Ruta("c.vdc")), "antes") << "the previous file stays";
        }
    }
}

TEST_F(HerramientasHostiles, ASaveThatFailsEndsTheOrderAtOnce) {
    GuardarModelo(SesionActual().modelo, Ruta("m.vdm"), false);
    Modelo sano = pruebas::ModeloCorrecto();
    GuardarModelo(sano, Ruta("sano.vdm"), false);
    Escribir(Ruta("c.vdc"), "antes");
    std::filesystem::permissions(Ruta("c.vdc"), std::filesystem::perms::owner_read);
    const Salida r = Ejecutar("compilar sano.vdm c.vdc");
    EXPECT_EQ(r.estado, 2);
    EXPECT_EQ(r.error, "vadro-herramientas: Error 70 al guardar el modelo.\nPermiso denegado\n");
    EXPECT_EQ(Contenido(Ruta("c.vdc")), "antes");
}

TEST_F(HerramientasHostiles, FilesThatAreNoModelsAreRefusedBeforeTheyAreRead) {
    std::filesystem::create_directory(Ruta("carpeta"));
    ASSERT_EQ(::mkfifo(Ruta("tubo").c_str(), 0600), 0);
    {
        std::FILE* f = std::fopen(Ruta("enorme.vdm").c_str(), "w");
        std::fclose(f);
        std::filesystem::resize_file(Ruta("enorme.vdm"), std::uintmax_t{2} << 30); // sparse
    }
    struct Caso {
        std::string archivo;
        std::string mensaje;
    };
    const std::string noEsArchivo = "Error de acceso a la ruta o el archivo: no es un archivo";
    for (const Caso& caso : std::vector<Caso>{
             {"/dev/zero", noEsArchivo},
             {"carpeta", noEsArchivo},
             {"tubo", noEsArchivo},
             {"enorme.vdm",
              "Memoria insuficiente: el archivo ocupa más de lo que ocupa un modelo"}}) {
        for (const std::string orden : {"texto", "comprobar"}) {
            const Salida r = Ejecutar(orden + " " + caso.archivo);
            EXPECT_EQ(r.estado, 2) << orden << " " << caso.archivo;
            EXPECT_NE(r.error.find(caso.mensaje), std::string::npos) << r.error;
        }
    }
}

TEST_F(HerramientasHostiles, OutputThatCannotBeWrittenIsAFailure) {
    GuardarModelo(SesionActual().modelo, Ruta("m.vdm"), false);
    for (const std::string orden : {"texto m.vdm", "comprobar m.vdm", "--help"}) {
        EXPECT_NE(Ejecutar(orden).estado, 2) << orden;
        const Salida lleno = Ejecutar(orden, "/dev/full");
        EXPECT_EQ(lleno.estado, 2) << orden;
        EXPECT_EQ(lleno.error, "vadro-herramientas: no se puede escribir en la salida estándar.\n");
    }
}

TEST_F(HerramientasHostiles, ProtegerRefusesAFileThatIsAlreadyScrambled) {
    Modelo m;
    m.Nombre = "Uno";
    GuardarModelo(m, Ruta("m.vdm"), false);
    const std::string antes = Contenido(Ruta("m.vdm"));
    const Salida r = Ejecutar("proteger m.vdm m.vdm");
    EXPECT_EQ(r.estado, 2);
    EXPECT_NE(r.error.find("no es un texto plano"), std::string::npos) << r.error;
    EXPECT_EQ(Contenido(Ruta("m.vdm")), antes);
}

TEST_F(HerramientasHostiles, APlainUtf8ModelReadsAlikeInEveryOrder) {
    // What "texto" prints, edited and handed back: UTF-8.
    Escribir(Ruta("plano.vdm"), "*****MODELO*****\nMOD_NOM = Señalización €\n");
    EXPECT_EQ(Ejecutar("texto plano.vdm").salida, "*****MODELO*****\nMOD_NOM = Señalización €\n");
    ASSERT_EQ(Ejecutar("proteger plano.vdm p.vdm").estado, 0);
    Ejecutar("compilar plano.vdm c.vdc");
    Modelo protegido;
    CargarModelo(protegido, Ruta("p.vdm"));
    EXPECT_EQ(protegido.Nombre, "Señalización €");
    // The empty model has errors, so compilar prints its report; comprobar and compilar read
    // the name the same way, which the text of the model shows.
    Modelo leido;
    ArchivoEntrada archivo =
        ArchivoEntrada::DesdeTexto(TextoPlano(ComoOchoBits(Contenido(Ruta("plano.vdm")))));
    CargarModelo(leido, archivo);
    EXPECT_EQ(leido.Nombre, "Señalización €");
}

TEST_F(HerramientasHostiles, PesosRefusesAMatrixNoSiblingSetCanBe) {
    struct Caso {
        std::string entrada;
        std::string mensaje;
    };
    std::string unos;
    for (int i = 0; i < 50000; ++i) {
        unos += "1\n";
    }
    std::string pocas;
    for (int i = 0; i < 2000; ++i) {
        pocas += "1 1\n";
    }
    for (const Caso& caso : std::vector<Caso>{
             {unos,
              "La matriz tiene 50000 filas, y un conjunto de hermanos tiene como mucho 32767."},
             {pocas, "La matriz tiene 2000 filas pero solo 4000 celdas escritas; una matriz de "
                     "2000 filas tiene 4000000."}}) {
        Escribir(Ruta("entrada.txt"), caso.entrada);
        const Salida r = Ejecutar("pesos");
        EXPECT_EQ(r.estado, 2);
        EXPECT_NE(r.error.find(caso.mensaje), std::string::npos) << r.error;
    }
}

} // namespace
} // namespace vadro
