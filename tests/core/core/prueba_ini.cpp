#include "core/core/ini.h"
#include "soporte/prueba_sesion.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace vadro {
namespace {

class Ini : public pruebas::PruebaSesion {
protected:
    std::string archivo = Ruta("Config.ini");
    std::string Leer(const std::string& s, const std::string& k) {
        return LeerIni(s, k, archivo).Texto();
    }
};

TEST_F(Ini, AMissingFileOrKeyReadsAsMinusOne) {
    EXPECT_EQ(Leer("GENERAL", "MOSTRAR_INICIO"), "-1");
    Escribir(archivo, "[GENERAL]\r\nOTRA=1\r\n");
    EXPECT_EQ(Leer("GENERAL", "MOSTRAR_INICIO"), "-1");
    EXPECT_EQ(Leer("DIRECTORIOS", "OTRA"), "-1") << "a key of another section is not found";
}

TEST_F(Ini, SectionsAndKeysIgnoreCaseAndValuesAreTrimmed) {
    Escribir(archivo, "[general]\r\n  mostrar_inicio =   Falso  \r\ntama\xF1o_fuente=2\r\n");
    EXPECT_EQ(Leer("GENERAL", "MOSTRAR_INICIO"), "Falso");
    EXPECT_EQ(Leer("General", "TAMAÑO_FUENTE"), "2") << "the accented letter folds too";
}

TEST_F(Ini, AReadReturnsAtMost255Characters) {
    const std::string largo(300, 'x');
    Escribir(archivo, "[D]\r\nK=" + largo + "\r\n");
    EXPECT_EQ(Leer("D", "K"), std::string(255, 'x'));
}

TEST_F(Ini, TheFileIsEightBitText) {
    EscribirIni("DIRECTORIOS", "MODELOS", "C:\\Años\\Señal", archivo);
    EXPECT_EQ(Contenido(archivo), "[DIRECTORIOS]\r\nMODELOS=C:\\A\xF1"
                                  "os\\Se\xF1"
                                  "al\r\n");
    EXPECT_EQ(Leer("DIRECTORIOS", "MODELOS"), "C:\\Años\\Señal");
}

TEST_F(Ini, AWriteLeavesEveryOtherLineAsItWas) {
    Escribir(archivo, "; comentario\r\n[GENERAL]\r\nMOSTRAR_INICIO=Falso\r\n\r\n[OTRA]\r\nX=1\r\n");
    EscribirIni("GENERAL", "mostrar_inicio", "Verdadero", archivo);
    EscribirIni("GENERAL", "TAMAÑO_FUENTE", "1", archivo);
    EscribirIni("DIRECTORIOS", "ETAPAS", "d", archivo);
    EXPECT_EQ(Contenido(archivo), "; comentario\r\n[GENERAL]\r\nmostrar_inicio=Verdadero\r\n"
                                  "TAMA\xD1O_FUENTE=1\r\n\r\n[OTRA]\r\nX=1\r\n"
                                  "[DIRECTORIOS]\r\nETAPAS=d\r\n");
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
