#include "core/core/archivos.h"
#include "core/files/proteccion.h"
#include "soporte/prueba_sesion.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace vadro {
namespace {

std::string Codigos(std::initializer_list<int> codigos) {
    std::string texto;
    for (int c : codigos) {
        texto += static_cast<char>(c);
    }
    return texto;
}

TEST(Proteccion, CodingAddsTheKeyAndSubtracts255OnOverflow) {
    // "l" is 108 and "a" is 97: the first two characters of the key phrase.
    EXPECT_EQ(CodificarLinea(Codigos({0, 1})), Codigos({108, 98}));
    EXPECT_EQ(CodificarLinea(Codigos({200})), Codigos({200 + 108 - 255}));
    EXPECT_EQ(DecodificarLinea(Codigos({53})), Codigos({200}));
}

TEST(Proteccion, EveryCodeButTheLastComesBack) {
    std::string todos;
    for (int c = 0; c < 255; ++c) {
        todos += static_cast<char>(c);
    }
    EXPECT_EQ(DecodificarLinea(CodificarLinea(todos)), todos);
    EXPECT_EQ(DecodificarLinea(CodificarLinea(Codigos({255}))), Codigos({0}))
        << "code 255 turns into 0";
}

TEST(Proteccion, TheKeyStartsAfreshOnEveryLineAndWrapsAfterFiftyCharacters) {
    const std::string linea(120, 'x');
    const std::string codificada = CodificarLinea(linea);
    EXPECT_EQ(codificada.substr(0, 50), codificada.substr(50, 50));
    EXPECT_EQ(TextoProtegido({"x", "x"}).substr(0, 3), TextoProtegido({"x"}).substr(0, 3));
}

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

TEST(Proteccion, CodedLineBreaksSplitALine) {
    // 157 + "l" (108) - 255 = 10: a line feed in the coded text, before "a" and "b".
    const std::string plano = Codigos({157, 'a', 'b'});
    const auto lineas = LineasPlanas(TextoProtegido({"*****", plano}));
    ASSERT_EQ(lineas.size(), 2u) << "the empty piece before the break is skipped";
    EXPECT_EQ(lineas[1], DecodificarLinea(CodificarLinea(plano).substr(1)))
        << "the rest decodes from the start of the key";
    EXPECT_NE(lineas[1], "ab");
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
