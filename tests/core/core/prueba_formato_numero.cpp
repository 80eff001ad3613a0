#include "core/core/formato_numero.h"

#include <gtest/gtest.h>

namespace vadro {
namespace {

struct Caso {
    double valor;
    const char* esperado;
};

TEST(Formato00, RoundsTheFifteenDigitTextHalfAwayFromZero) {
    const Caso casos[] = {
        {0.0, "0.00"},
        {100.0, "100.00"},
        {57.142857142857, "57.14"},
        {14.2857142857, "14.29"},
        {1e-300, "0.00"},
        {123456789.126, "123456789.13"},
        // Exact halves in binary: a tie to even would give 0.12 and 0.38.
        {0.125, "0.13"},
        {0.375, "0.38"},
        {-0.125, "-0.13"},
        // Doubles just under the written number (2.675 is 2.67499999999999982...) whose
        // 15-digit text still ends in 5.
        {2.675, "2.68"},
        {0.285, "0.29"},
        {1.005, "1.01"},
        {-2.675, "-2.68"},
        // 15 digits of 0.004999999999999999 are 5.00000000000000E-03; one nine less is not.
        {0.004999999999999999, "0.01"},
        {0.00499999999999999, "0.00"},
        {9.995, "10.00"},
        {99.999, "100.00"},
        {-999.996, "-1000.00"},
        {1e20, "100000000000000000000.00"},
        {123456789012345678.0, "123456789012346000.00"},
        // A negative number keeps its sign when shown as zero; zero itself has none.
        {-0.0086206896551724, "-0.01"},
        {-0.001, "-0.00"},
        {-0.0, "0.00"}};
    for (const Caso& caso : casos) {
        EXPECT_EQ(Formato00(caso.valor), caso.esperado) << caso.valor;
    }
}

TEST(Formato00, FreeValuesAndOtherDecimals) {
    EXPECT_EQ(Formato00(ValorLibre()), "");
    EXPECT_EQ(Formato00(ValorLibre(" 2,675 ")), "2.68") << "a typed text is a number";
    EXPECT_EQ(Formato00(ValorLibre("abc")), "abc") << "a text that is no number shows as it is";
    EXPECT_EQ(FormatoDecimal(2.5, 0), "3");
    EXPECT_EQ(FormatoDecimal(2.0005, 3), "2.001");
    EXPECT_EQ(Redondeado00(2.9949), 2.99);
    EXPECT_EQ(Redondeado00(-1.005), -1.01);
}

} // namespace
} // namespace vadro
