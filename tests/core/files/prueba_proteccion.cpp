#include "core/core/archivos.h"
#include "core/files/proteccion.h"
#include "soporte/prueba_sesion.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace vadro {
namespace {

// The coding of each character, the key phrase starting afresh on every line and wrapping
// after fifty characters, code 255 and the coded line breaks are checked against the rule done
// by hand, on random bytes, in prueba_texto_directo.

TEST(Proteccion, AScrambledFileIsPairsOfLineAndEmptyLine) {
    const std::string bytes = TextoProtegido({"*****MODELO*****", "", "MOD_APL = 1"});
    const auto lineas = DividirLineas(bytes);
    ASSERT_EQ(lineas.size(), 6u);
    EXPECT_EQ(lineas[1], "");
    EXPECT_EQ(lineas[2], "") << "an empty plain line codes to an empty line";
    EXPECT_NE(bytes.substr(0, 5), "*****");
    EXPECT_EQ(LineasPlanas(bytes), (std::vector<std::string>{"*****MODELO*****", "MOD_APL = 1"}))
        << "the reader skips the empty lines";
}

class ProteccionArchivos : public pruebas::PruebaSesion {};

TEST_F(ProteccionArchivos, RecoveryWritesTheTemporaryFileInTheProgramDirectory) {
    const std::string otro = Ruta("otra carpeta");
    std::filesystem::create_directories(otro);
    const std::string ruta = UnirRuta(otro, "plantilla.req");
    Escribir(ruta, "*****X*****\r\nA = 1\r\n");
    ProtegerArchivo(ruta);
    EXPECT_EQ(DividirLineas(Contenido(ruta)).size(), 4u);
    const std::string temporal = RecuperarArchivo(ruta);
    EXPECT_EQ(temporal, Ruta("plantilla.$$$"));
    EXPECT_EQ(Contenido(temporal), "*****X*****\r\nA = 1\r\n");
}

TEST_F(ProteccionArchivos, PlainTextIsCopiedAsItStandsWithItsEmptyLines) {
    const std::string ruta = Ruta("plano.vdm");
    Escribir(ruta, "*****X*****\r\n\r\nA = 1");
    EXPECT_EQ(Contenido(RecuperarArchivo(ruta)), "*****X*****\r\n\r\nA = 1\r\n");
}

} // namespace
} // namespace vadro
