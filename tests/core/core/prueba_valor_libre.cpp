#include "core/core/arreglo.h"
#include "core/core/comunes.h"
#include "core/core/error_ejecucion.h"
#include "core/core/formato_numero.h"
#include "core/core/valor_libre.h"
#include "tabla_funciones.h"

#include "soporte/errores.h"

#include <gtest/gtest.h>

#include <clocale>

namespace vadro {
namespace {

using namespace pruebas;

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

// Numbers read, written, counted and shown. Counts round half to even; a text that reads as a
// number counts. The format "0.00" rounds the 15-digit text half away from zero: exact halves
// in binary (0.125, 0.375) would give 0.12 and 0.38 by a tie to even, and doubles just under
// the written number (2.675 is 2.67499999999999982...) still end in 5 at 15 digits; so do 15
// digits of 0.004999999999999999 (5.00000000000000E-03) but not of one nine less. A negative
// number keeps its sign when shown as zero; zero itself has none.
TEST(ValorLibre, NumbersReadWrittenCountedAndShown) {
    const auto numero = [](const Argumentos& a, std::size_t i = 0) { return std::stod(a.at(i)); };
    Tabular(
        "nucleo/numeros.txt",
        {{"LeerNumero",
          [](const Argumentos& a) {
              const std::optional<double> leido = LeerNumero(a.at(0));
              return leido ? Exacto(*leido) : "none";
          }},
         {"Numero", [](const Argumentos& a) { return Exacto(ValorLibre(a.at(0)).Numero()); }},
         {"Cuenta",
          [](const Argumentos& a) { return std::to_string(ValorLibre(a.at(0)).Cuenta()); }},
         {"CuentaDeNumero",
          [&](const Argumentos& a) { return std::to_string(ValorLibre(numero(a)).Cuenta()); }},
         {"TextoDeNumero", [&](const Argumentos& a) { return ValorLibre(numero(a)).Texto(); }},
         {"TextoNumero", [&](const Argumentos& a) { return TextoNumero(numero(a)); }},
         {"AEntero16", [&](const Argumentos& a) { return std::to_string(AEntero16(numero(a))); }},
         {"AEntero32", [&](const Argumentos& a) { return std::to_string(AEntero32(numero(a))); }},
         {"Formato00", [&](const Argumentos& a) { return Formato00(numero(a)); }},
         {"Formato00DeTexto",
          [](const Argumentos& a) {
              return Unir({"'", Formato00(ValorLibre(a.at(0))), "'"});
          }},
         {"FormatoDecimal",
          [&](const Argumentos& a) { return FormatoDecimal(numero(a), std::stoi(a.at(1))); }},
         {"Redondeado00", [&](const Argumentos& a) { return Exacto(Redondeado00(numero(a))); }}});
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
