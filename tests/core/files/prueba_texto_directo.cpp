// The text layer codes whole files and reads their lines in one pass. Whatever the bytes,
// the result must be what the line-by-line scrambling and the temporary plain text give.

#include "core/core/archivos.h"
#include "core/core/codigo_pagina.h"
#include "core/core/error_ejecucion.h"
#include "core/files/proteccion.h"
#include "core/files/texto_modelo.h"
#include "soporte/prueba_sesion.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <random>

namespace vadro {
namespace {

using Lineas = std::vector<std::string>;

// Lines of random 8-bit characters, some empty, with a fair share of the codes that code or
// decode to a line break at the first positions of the key phrase.
Lineas LineasAlAzar(unsigned semilla, std::size_t cuantas) {
    std::mt19937 azar(semilla);
    std::uniform_int_distribution<int> largo(0, 70);
    std::uniform_int_distribution<int> codigo(1, 255);
    const std::string especiales = "\xA0\x9D\x79\x76\r\n=*";
    Lineas lineas;
    for (std::size_t n = 0; n < cuantas; ++n) {
        std::string linea(static_cast<std::size_t>(largo(azar)), ' ');
        for (char& c : linea) {
            c = azar() % 8 == 0 ? especiales[azar() % especiales.size()]
                                : static_cast<char>(codigo(azar));
        }
        lineas.push_back(linea);
    }
    return lineas;
}

// What the reader of old did: the plain lines into the temporary file, and the lines of that.
Lineas LineasDelTemporal(const std::string& bytes) {
    return DividirLineas(UnirLineas(LineasPlanas(bytes)));
}

class TextoDirecto : public pruebas::PruebaSesion {
protected:
    std::string ruta = Ruta("texto.vdm");

    Lineas Abiertas() {
        ArchivoEntrada archivo = ArchivoEntrada::Abrir(ruta);
        EXPECT_TRUE(std::filesystem::exists(Ruta("texto.$$$")));
        Lineas lineas = archivo.Lineas();
        archivo.BorrarTemporal();
        EXPECT_FALSE(std::filesystem::exists(Ruta("texto.$$$")));
        return lineas;
    }
};

TEST_F(TextoDirecto, ACompleteFileIsCodedAsLineByLineScrambling) {
    for (unsigned semilla = 1; semilla <= 40; ++semilla) {
        const Lineas lineas = LineasAlAzar(semilla, 30);
        ArchivoSalida salida;
        for (const auto& linea : lineas) {
            salida.Escribir(DesdeOchoBits(linea));
        }
        ASSERT_EQ(salida.Lineas(), lineas) << "8-bit text comes back as it was";
        EscribirCompleto(ruta, salida);
        ASSERT_EQ(Contenido(ruta), TextoProtegido(lineas)) << semilla;
    }
}

TEST_F(TextoDirecto, OpeningGivesTheLinesOfTheTemporaryPlainText) {
    for (unsigned semilla = 1; semilla <= 40; ++semilla) {
        const Lineas lineas = LineasAlAzar(semilla + 100, 30);
        // Random bytes read as a scrambled file, and the same lines as a plain one.
        Escribir(ruta, UnirLineas(lineas));
        ASSERT_EQ(Abiertas(), LineasDelTemporal(Contenido(ruta))) << semilla;
        Lineas planas = lineas;
        planas.insert(planas.begin(), "*****");
        Escribir(ruta, UnirLineas(planas));
        ASSERT_EQ(Abiertas(), LineasDelTemporal(Contenido(ruta))) << semilla;
    }
}

TEST_F(TextoDirecto, ADecodedLineBreakSplitsTheLineAsTheTemporaryFileDoes) {
    // 'y' less the phrase's first letter 'l' is a carriage return.
    Escribir(ruta, "yabc\r\n\r\nya\r\n\r\n");
    const Lineas lineas = Abiertas();
    EXPECT_EQ(lineas, LineasDelTemporal(Contenido(ruta)));
    EXPECT_GT(lineas.size(), 2u);
    Escribir(ruta, "");
    EXPECT_TRUE(Abiertas().empty());
}

TEST_F(TextoDirecto, AFileThatCannotBeReadFailsAsItAlwaysDid) {
    const auto error = [](const std::string& camino) {
        try {
            (void)ArchivoEntrada::Abrir(camino);
        } catch (const ErrorEjecucion& e) {
            return e.Numero();
        }
        return 0;
    };
    EXPECT_EQ(error(Ruta("no-existe.vdm")), ErrArchivoNoEncontrado);
    EXPECT_EQ(error(""), ErrArchivoNoEncontrado);
    std::filesystem::create_directory(Ruta("carpeta.vdm"));
    EXPECT_EQ(error(Ruta("carpeta.vdm")), ErrAccesoRuta);
}

TEST_F(TextoDirecto, KeysOutsideAsciiAreLookedForInTheir8BitForm) {
    ArchivoEntrada archivo({"*****", "PA\xD1O = tela", "CLAVE = a\xF1o", "FIN = "});
    EXPECT_EQ(BuscarValor(archivo, "PAÑO").Texto(), "tela");
    EXPECT_EQ(BuscarValor(archivo, "CLAVE").Texto(), "año");
    ArchivoSalida salida;
    salida.Escribir("AÑO", "€");
    salida.Escribir("ASCII", "puro");
    EXPECT_EQ(salida.Lineas(), (Lineas{"A\xD1O = \x80", "ASCII = puro"}));
}

} // namespace
} // namespace vadro
