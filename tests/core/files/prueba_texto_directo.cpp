// The text layer codes whole files and reads their lines in one pass. Whatever the bytes, the
// result must be what scrambling line by line, character by character, gives.

#include "core/core/archivos.h"
#include "core/core/codigo_pagina.h"
#include "core/core/error_ejecucion.h"
#include "core/files/proteccion.h"
#include "core/files/texto_modelo.h"
#include "soporte/errores.h"
#include "soporte/prueba_sesion.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <random>

namespace vadro {
namespace {

using Lineas = std::vector<std::string>;

// Random 8-bit lines, rich in the codes that code or decode to a line break ("\xA0" and "y"
// at the first place of the key phrase) and in line breaks themselves.
Lineas LineasAlAzar(unsigned semilla) {
    std::mt19937 azar(semilla);
    const std::string especiales = "\xA0y\r\n=*";
    Lineas lineas(30);
    for (auto& linea : lineas) {
        linea.resize(azar() % 60);
        for (char& c : linea) {
            c = static_cast<char>(azar() % 4 == 0 ? especiales[azar() % especiales.size()]
                                                  : 1 + azar() % 255);
        }
    }
    return lineas;
}

// The scrambling done by hand: each character plus (or minus) the key phrase's character at
// its place, 255 subtracted (or added) past the ends, the phrase starting again on each line.
std::string PorCaracter(const std::string& linea, int signo) {
    const std::string frase = "lasgaviotasdelpuertovuelanbajoantesdelatormentafin";
    std::string resultado;
    for (std::size_t i = 0; i < linea.size(); ++i) {
        int v = static_cast<unsigned char>(linea[i]) +
                signo * static_cast<unsigned char>(frase[i % 50]);
        v = v > 255 ? v - 255 : (v < 0 ? v + 255 : v);
        resultado += static_cast<char>(v);
    }
    return resultado;
}

// A scrambled file written in two passes: the coded lines, then those lines read back, each
// followed by an empty line.
std::string ProtegidoEnDosPasadas(const Lineas& planas) {
    Lineas codificadas;
    for (const auto& linea : planas) {
        codificadas.push_back(PorCaracter(linea, +1));
    }
    std::string bytes;
    for (const auto& linea : DividirLineas(UnirLineas(codificadas))) {
        bytes += linea + "\r\n\r\n";
    }
    return bytes;
}

// The plain lines through a temporary file: decoded line by line, written, and read back.
Lineas PlanasPorArchivo(const std::string& bytes) {
    const Lineas lineas = DividirLineas(bytes);
    if (!lineas.empty() && lineas.front().rfind("*****", 0) == 0) {
        return lineas;
    }
    Lineas decodificadas;
    for (const auto& linea : lineas) {
        if (!linea.empty()) {
            decodificadas.push_back(PorCaracter(linea, -1));
        }
    }
    return DividirLineas(UnirLineas(decodificadas));
}

class TextoDirecto : public pruebas::PruebaSesion {
protected:
    std::string ruta = Ruta("texto.vdm");

    // Checks the lines against the temporary file they come from, and its deletion.
    void Comprobar(unsigned semilla) {
        ArchivoEntrada archivo = ArchivoEntrada::Abrir(ruta);
        EXPECT_EQ(archivo.Lineas(), DividirLineas(Contenido(Ruta("texto.$$$")))) << semilla;
        EXPECT_EQ(archivo.Lineas(), PlanasPorArchivo(Contenido(ruta)));
        archivo.BorrarTemporal();
        EXPECT_FALSE(std::filesystem::exists(Ruta("texto.$$$")));
    }
};

TEST_F(TextoDirecto, WritingAndOpeningAgreeWithTheLineByLineRules) {
    for (unsigned semilla = 1; semilla <= 40; ++semilla) {
        const Lineas lineas = LineasAlAzar(semilla);
        ArchivoSalida salida;
        for (const auto& linea : lineas) {
            salida.Escribir(DesdeOchoBits(linea));
        }
        EscribirCompleto(ruta, salida);
        // The plain text is read back line by line before it is coded, so a line break in a
        // value splits its line there.
        ASSERT_EQ(Contenido(ruta), ProtegidoEnDosPasadas(DividirLineas(UnirLineas(lineas))))
            << semilla;
        Escribir(ruta, UnirLineas(lineas)); // random bytes read as scrambled text
        Comprobar(semilla);
        Escribir(ruta, "*****\r\n" + UnirLineas(lineas)); // and as plain text
        Comprobar(semilla);
    }
}

TEST_F(TextoDirecto, FailuresAndKeysBehaveAsBefore) {
    EXPECT_THROW((void)ArchivoEntrada::Abrir(Ruta("no-existe.vdm")), ErrorEjecucion);
    std::filesystem::create_directory(Ruta("carpeta.vdm"));
    EXPECT_EQ(pruebas::NumeroDeError([&] { (void)ArchivoEntrada::Abrir(Ruta("carpeta.vdm")); }),
              ErrAccesoRuta)
        << "a directory is no file";
    ArchivoEntrada archivo({"*****", "PA\xD1O = tela", "FIN = "});
    EXPECT_EQ(BuscarValor(archivo, "PAÑO").Texto(), "tela") << "keys are looked for in 8 bits";
}

} // namespace
} // namespace vadro
