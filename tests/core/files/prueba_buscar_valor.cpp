#include "core/core/error_ejecucion.h"
#include "core/files/formato.h"
#include "core/files/texto_modelo.h"
#include "soporte/errores.h"

#include <gtest/gtest.h>

namespace vadro {
namespace {

std::string Buscar(ArchivoEntrada& archivo, const std::string& clave) {
    return BuscarValor(archivo, clave).Texto();
}

TEST(BuscarValor, KeysReadInWritingOrderCostOneLineEach) {
    ArchivoEntrada archivo({"*****MODELO*****", "A_1 = uno", "A_2 = dos", "A_3 = tres"});
    EXPECT_EQ(Buscar(archivo, "A_1"), "uno");
    EXPECT_EQ(archivo.Posicion(), 2u);
    EXPECT_EQ(Buscar(archivo, "A_2"), "dos");
    EXPECT_EQ(archivo.Posicion(), 3u);
}

TEST(BuscarValor, TheKeyMayStandAnywhereInALine) {
    ArchivoEntrada prefijo({"REQ_R1_STY10 =  5 "});
    EXPECT_EQ(Buscar(prefijo, "REQ_R1_STY1"), "5") << "a prefix of a longer key finds it";
    ArchivoEntrada dentro({"A = vale X_1", "X_1 = propio"});
    EXPECT_EQ(Buscar(dentro, "X_1"), "vale X_1") << "the key inside a value is found first";
}

TEST(BuscarValor, TheValueFollowsTheLastEqualsSign) {
    ArchivoEntrada archivo({"A = a=b", "B = c=", "C =", "D = x = y ", "E =  3 "});
    EXPECT_EQ(Buscar(archivo, "A"), "b");
    EXPECT_EQ(Buscar(archivo, "B"), "c=") << "the very last character is not examined";
    EXPECT_EQ(Buscar(archivo, "C"), "");
    EXPECT_EQ(Buscar(archivo, "D"), "y");
    EXPECT_EQ(Buscar(archivo, "E"), "3");
}

TEST(BuscarValor, AMissingKeyLeavesThePositionAsItWas) {
    ArchivoEntrada archivo({"A = 1", "B = 2", "C = 3"});
    EXPECT_EQ(Buscar(archivo, "B"), "2");
    EXPECT_TRUE(BuscarValor(archivo, "Z").EsVacio());
    EXPECT_EQ(archivo.Posicion(), 2u);
    EXPECT_EQ(Buscar(archivo, "C"), "3");
}

TEST(BuscarValor, AnEarlierKeyIsFoundByTheWrap) {
    ArchivoEntrada archivo({"A = 1", "B = 2", "C = 3", "D = 4"});
    archivo.IrA(2);
    EXPECT_EQ(Buscar(archivo, "A"), "1");
    EXPECT_EQ(archivo.Posicion(), 1u);
}

TEST(BuscarValor, TheLastLineIsFoundOnlyWhenTheWrapReachesItBeforeTheFirstKey) {
    ArchivoEntrada archivo({"A = 1", "B = 2", "C = 3", "D = 4"});
    archivo.IrA(1);
    EXPECT_TRUE(BuscarValor(archivo, "D").EsVacio())
        << "reaching the end forces the wrap, which stops at the line of B";
    EXPECT_EQ(archivo.Posicion(), 1u);
    archivo.IrA(3);
    EXPECT_EQ(Buscar(archivo, "D"), "4") << "starting on the last line, the wrap reaches it";
    EXPECT_TRUE(archivo.FinArchivo());
}

TEST(BuscarValor, TheWrapStopsAtAnyLineHoldingTheFirstKey) {
    // The first key read is "B"; the wrap stops at "XB", which holds it, before "K".
    ArchivoEntrada archivo({"XB = 1", "K = 2", "B = 3", "Z = 4"});
    archivo.IrA(2);
    EXPECT_TRUE(BuscarValor(archivo, "K").EsVacio());
    EXPECT_EQ(archivo.Posicion(), 2u);
}

TEST(BuscarValor, WithoutAFirstKeyTheWrapEndsAtTheFirstLine) {
    ArchivoEntrada archivo({"X = 0", "K = 1", "sin clave", "otra"});
    archivo.IrA(2);
    EXPECT_TRUE(BuscarValor(archivo, "K").EsVacio()) << "no line read had an equals sign";
    ArchivoEntrada conClave({"X = 0", "K = 1", "Y = 2", "otra"});
    conClave.IrA(2);
    EXPECT_EQ(Buscar(conClave, "K"), "1");
}

TEST(BuscarValor, AtTheEndOfTheFileNothingIsSearched) {
    ArchivoEntrada archivo({"A = 1", "B = 2"});
    EXPECT_EQ(Buscar(archivo, "A"), "1");
    EXPECT_EQ(Buscar(archivo, "B"), "2");
    EXPECT_TRUE(archivo.FinArchivo());
    EXPECT_TRUE(BuscarValor(archivo, "A").EsVacio()) << "no wrap-around from the end";
    ArchivoEntrada vacio;
    EXPECT_TRUE(BuscarValor(vacio, "A").EsVacio());
}

TEST(BuscarValor, ValuesComeBackAsUtf8) {
    ArchivoEntrada archivo({"MOD_NOM = Ca\xF1"
                            "on \x80"});
    EXPECT_EQ(Buscar(archivo, "MOD_NOM"), "Cañon €");
}

TEST(Formato, ThePrintFormOfNumbers) {
    EXPECT_EQ(FormaImpresa(3), " 3 ");
    EXPECT_EQ(FormaImpresa(0), " 0 ");
    EXPECT_EQ(FormaImpresa(-2), "-2 ");
    EXPECT_EQ(FormaImpresa(0.5), " .5 ");
    EXPECT_EQ(FormaImpresa(-0.25), "-.25 ");
    EXPECT_EQ(FormaImpresa(60000000), " 60000000 ");
    EXPECT_EQ(FormaImpresa(1e15), " 1E+15 ");
    EXPECT_EQ(FormaImpresa(-1.5e16), "-1.5E+16 ");
    EXPECT_EQ(FormaImpresa(999999999999999), " 999999999999999 ");
}

TEST(Formato, ScaledNumbersRoundDownAndTheEmptyTextWritesNothing) {
    EXPECT_EQ(NumeroEscalado(ValorLibre(60.0)), " 60000000 ");
    EXPECT_EQ(NumeroEscalado(ValorLibre(-0.0000015)), "-2 ");
    EXPECT_EQ(NumeroEscalado(ValorLibre(0.0)), " 0 ");
    EXPECT_EQ(NumeroEscalado(ValorLibre()), "");
    EXPECT_EQ(NumeroEscalado(ValorLibre(1.23456789)), " 1234567 ") << "never to nearest";
    EXPECT_EQ(LeerEscalado(ValorLibre("1500000")), ValorLibre(1.5));
    EXPECT_TRUE(LeerEscalado(ValorLibre()).EsVacio());
    EXPECT_EQ(FormaValor(ValorLibre("abc")), "abc") << "a count holding text prints as it stands";
    EXPECT_EQ(FormaValor(ValorLibre(2.0)), " 2 ");
}

} // namespace
} // namespace vadro
