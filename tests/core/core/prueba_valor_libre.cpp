#include "core/core/arreglo.h"
#include "core/core/error_ejecucion.h"
#include "core/core/valor_libre.h"

#include "soporte/errores.h"

#include <gtest/gtest.h>

#include <clocale>

namespace vadro {
namespace {

using pruebas::NumeroDeError;

TEST(ValorLibre, KeepsEmptyTextZeroAndTextApart) {
    const ValorLibre vacio;
    const ValorLibre cero(0.0);
    const ValorLibre texto("=10");
    EXPECT_TRUE(vacio.EsVacio());
    EXPECT_FALSE(cero.EsVacio());
    EXPECT_TRUE(cero.EsNumero());
    EXPECT_TRUE(texto.EsTexto());
    EXPECT_NE(vacio, cero);
    EXPECT_NE(ValorLibre("0"), cero) << "a text that reads as zero is still a text";
    EXPECT_EQ(ValorLibre(""), vacio);
}

TEST(ValorLibre, CountOfEmptyTextIsZeroAndTextCountsConvert) {
    EXPECT_EQ(ValorLibre().Cuenta(), 0);
    EXPECT_EQ(ValorLibre(" 3 ").Cuenta(), 3);
    EXPECT_EQ(ValorLibre(2.5).Cuenta(), 2) << "half to even";
    EXPECT_EQ(ValorLibre(3.5).Cuenta(), 4);
    EXPECT_EQ(NumeroDeError([] { (void)ValorLibre("tres").Cuenta(); }), ErrTipos);
    EXPECT_EQ(NumeroDeError([] { (void)ValorLibre(32768.0).Cuenta(); }), ErrDesbordamiento);
    EXPECT_EQ(ValorLibre(-32768.0).Cuenta(), -32768);
}

TEST(ValorLibre, ReadsNumbersAsTheConversionsDo) {
    EXPECT_EQ(LeerNumero(" -60000000 "), -60000000.0);
    EXPECT_EQ(LeerNumero("1E+15"), 1e15);
    EXPECT_EQ(LeerNumero("2d3"), 2000.0);
    EXPECT_EQ(LeerNumero(".5"), 0.5);
    EXPECT_EQ(LeerNumero("0,25"), 0.25);
    EXPECT_FALSE(LeerNumero(""));
    EXPECT_FALSE(LeerNumero("-"));
    EXPECT_FALSE(LeerNumero("1e"));
    EXPECT_FALSE(LeerNumero("12abc"));
    EXPECT_FALSE(LeerNumero("1.2.3"));
    EXPECT_EQ(NumeroDeError([] { (void)LeerNumero("1e999"); }), ErrDesbordamiento);
    EXPECT_EQ(NumeroDeError([] { (void)ValorLibre().Numero(); }), ErrTipos);
}

TEST(ValorLibre, TextFormOfNumbers) {
    EXPECT_EQ(ValorLibre(60.0).Texto(), "60");
    EXPECT_EQ(ValorLibre(0.5).Texto(), "0.5");
    EXPECT_EQ(ValorLibre(-2.0).Texto(), "-2");
    EXPECT_EQ(TextoNumero(1e15), "1E+15");
    EXPECT_EQ(TextoNumero(999999999999999.0), "999999999999999");
    EXPECT_EQ(TextoNumero(1.0 / 3), "0.333333333333333");
}

TEST(ValorLibre, IntegerConversionsCheckTheirRange) {
    EXPECT_EQ(AEntero16(32767.4), 32767);
    EXPECT_EQ(NumeroDeError([] { (void)AEntero16(32767.5); }), ErrDesbordamiento);
    EXPECT_EQ(AEntero32(3e9 / 2), 1500000000);
    EXPECT_EQ(NumeroDeError([] { (void)AEntero32(3e9); }), ErrDesbordamiento);
}

TEST(Arreglo, AbsentUntilSizedAndIndexedFromOne) {
    Arreglo<int> a;
    EXPECT_FALSE(a.Presente());
    EXPECT_EQ(NumeroDeError([&] { (void)a.Cota(); }), ErrSubindice);
    a.Redimensionar(2);
    a(1) = 7;
    a(2) = 8;
    EXPECT_EQ(NumeroDeError([&] { (void)a(0); }), ErrSubindice);
    EXPECT_EQ(NumeroDeError([&] { (void)a(3); }), ErrSubindice);
    a.RedimensionarConservando(3);
    EXPECT_EQ(a(1), 7);
    EXPECT_EQ(a(3), 0);
    a.Redimensionar(1);
    EXPECT_EQ(a(1), 0) << "sizing anew drops the content";
}

// The window layer sets the C locale from the user's environment; numbers in files and in
// the core must not follow it.
TEST(ValorLibre, NumbersIgnoreTheProcessLocale) {
    const char* espanol = std::setlocale(LC_ALL, "es_ES.UTF-8");
    if (espanol == nullptr) {
        espanol = std::setlocale(LC_ALL, "de_DE.UTF-8");
    }
    EXPECT_EQ(TextoNumero(0.5), "0.5");
    EXPECT_EQ(LeerNumero("1.5"), 1.5);
    EXPECT_EQ(LeerNumero("+2"), 2.0);
    EXPECT_EQ(LeerNumero("1e-400"), 0.0);
    std::setlocale(LC_ALL, "C");
    if (espanol == nullptr) {
        GTEST_SKIP() << "no locale with a decimal comma on this machine";
    }
}

} // namespace
} // namespace vadro
