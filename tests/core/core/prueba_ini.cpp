#include "core/core/codigo_pagina.h"
#include "core/core/ini.h"
#include "soporte/prueba_sesion.h"
#include "tabla_funciones.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace vadro {
namespace {

using namespace pruebas;

class Ini : public PruebaSesion {
protected:
    std::string archivo = Ruta("Config.ini");
    std::string Leer(const std::string& s, const std::string& k) {
        return LeerIni(s, k, archivo).Texto();
    }
};

// A missing file or key, or a key of another section, reads as -1. Sections and keys ignore
// case (the accented letter folds too) and values are trimmed. The file is 8-bit text (shown
// here in UTF-8), and a write leaves every other line as it was.
TEST_F(Ini, ReadsAndWritesOfTheSettingsFile) {
    Tabular("nucleo/ini.txt",
            {{"Archivo",
              [this](const Argumentos& a) {
                  Escribir(archivo, AOchoBits(a.at(0)));
                  return std::string("written");
              }},
             {"Leer", [this](const Argumentos& a) { return Leer(a.at(0), a.at(1)); }},
             {"EscribirIni", [this](const Argumentos& a) {
                  EscribirIni(a.at(0), a.at(1), a.at(2), archivo);
                  return DesdeOchoBits(Contenido(archivo));
              }}});
}

TEST_F(Ini, AReadReturnsAtMost255Characters) {
    const std::string largo(300, 'x');
    Escribir(archivo, "[D]\r\nK=" + largo + "\r\n");
    EXPECT_EQ(Leer("D", "K"), std::string(255, 'x'));
}

TEST_F(Ini, GarbageInTheFileDoesNotStopReadsOrWrites) {
    const char basura[] = "\x00\xFF\x01=\r[\n=\n[]\r\n[GENERAL]\nMOSTRAR_INICIO = Falso";
    Escribir(archivo, std::string(basura, sizeof basura - 1));
    EXPECT_EQ(Leer("GENERAL", "MOSTRAR_INICIO"), "Falso");
    EscribirIni("GENERAL", "MOSTRAR_INICIO", "Verdadero", archivo);
    EXPECT_EQ(Leer("GENERAL", "MOSTRAR_INICIO"), "Verdadero");
}

TEST_F(Ini, AFolderThatCannotBeWrittenIsIgnored) {
    const std::string imposible = Ruta("no-existe/Config.ini");
    EscribirIni("GENERAL", "K", "V", imposible);
    EXPECT_EQ(LeerIni("GENERAL", "K", imposible).Texto(), "-1");
}

// A file the program cannot write in its own encoding, or may not write, stays as it is; the
// setting is simply not kept.
TEST_F(Ini, AFileInAnotherEncodingOrReadOnlyIsLeftAsItIs) {
    const std::string utf16("[\0G\0]\0", 6);
    for (const std::string& bytes :
         {std::string("\xEF\xBB\xBF[GENERAL]\r\nK=1\r\n"), "\xFF\xFE" + utf16, "\xFE\xFF" + utf16,
          utf16, utf16.substr(1)}) {
        Escribir(archivo, bytes);
        EscribirIni("GENERAL", "MOSTRAR_INICIO", "Falso", archivo);
        EXPECT_EQ(Contenido(archivo), bytes);
    }
    Escribir(archivo, "[GENERAL]\r\nMOSTRAR_INICIO=Verdadero\r\n");
    std::filesystem::permissions(archivo, std::filesystem::perms::owner_read);
    EscribirIni("GENERAL", "MOSTRAR_INICIO", "Falso", archivo);
    EXPECT_EQ(Leer("GENERAL", "MOSTRAR_INICIO"), "Verdadero");
    std::filesystem::permissions(archivo, std::filesystem::perms::owner_all);
}

} // namespace
} // namespace vadro
