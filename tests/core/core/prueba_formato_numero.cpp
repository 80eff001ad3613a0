#include "core/core/formato_numero.h"

#include <gtest/gtest.h>

namespace vadro {
namespace {

TEST(Formato00, PadsAndRoundsToTwoDecimals) {
    EXPECT_EQ(Formato00(0.0), "0.00");
    EXPECT_EQ(Formato00(100.0), "100.00");
    EXPECT_EQ(Formato00(0.5), "0.50");
    EXPECT_EQ(Formato00(57.142857142857), "57.14");
    EXPECT_EQ(Formato00(14.2857142857), "14.29");
    EXPECT_EQ(Formato00(0.001), "0.00");
    EXPECT_EQ(Formato00(1e-300), "0.00");
    EXPECT_EQ(Formato00(123456789.126), "123456789.13");
}

TEST(Formato00, ExactHalvesGoAwayFromZero) {
    // 0.125 and 0.375 are exact in binary: a tie to even would give 0.12 and 0.38.
    EXPECT_EQ(Formato00(0.125), "0.13");
    EXPECT_EQ(Formato00(0.375), "0.38");
    EXPECT_EQ(Formato00(-0.125), "-0.13");
    EXPECT_EQ(Formato00(2.5), "2.50");
}

TEST(Formato00, RoundsTheFifteenDigitTextNotTheBinaryValue) {
    // Each of these doubles lies just under the written number (2.675 is
    // 2.67499999999999982...), yet its 15-digit text ends in 5 and rounds up.
    EXPECT_EQ(Formato00(2.675), "2.68");
    EXPECT_EQ(Formato00(0.285), "0.29");
    EXPECT_EQ(Formato00(1.005), "1.01");
    EXPECT_EQ(Formato00(0.015), "0.02");
    EXPECT_EQ(Formato00(-2.675), "-2.68");
    // 0.004999999999999999 reads "5.00000000000000E-03" in 15 digits; one nine less does not.
    EXPECT_EQ(Formato00(0.004999999999999999), "0.01");
    EXPECT_EQ(Formato00(0.00499999999999999), "0.00");
}

TEST(Formato00, CarriesThroughNines) {
    EXPECT_EQ(Formato00(9.995), "10.00");
    EXPECT_EQ(Formato00(0.995), "1.00");
    EXPECT_EQ(Formato00(99.999), "100.00");
    EXPECT_EQ(Formato00(-999.996), "-1000.00");
}

TEST(Formato00, LargeNumbersKeepFifteenSignificantDigits) {
    EXPECT_EQ(Formato00(1e20), "100000000000000000000.00");
    EXPECT_EQ(Formato00(123456789012345678.0), "123456789012346000.00");
}

TEST(Formato00, NegativeNumbersKeepTheirSignEvenWhenShownAsZero) {
    EXPECT_EQ(Formato00(-0.0086206896551724), "-0.01");
    EXPECT_EQ(Formato00(-0.001), "-0.00");
    EXPECT_EQ(Formato00(-0.0), "0.00");
}

TEST(Formato00, FreeValues) {
    EXPECT_EQ(Formato00(ValorLibre()), "");
    EXPECT_EQ(Formato00(ValorLibre("3.5")), "3.50") << "a typed text is a number";
    EXPECT_EQ(Formato00(ValorLibre(" 2,675 ")), "2.68");
    EXPECT_EQ(Formato00(ValorLibre("abc")), "abc") << "a text that is no number shows as it is";
    EXPECT_EQ(Formato00(ValorLibre(1)), "1.00");
}

TEST(FormatoDecimal, OtherNumbersOfDecimals) {
    EXPECT_EQ(FormatoDecimal(2.5, 0), "3");
    EXPECT_EQ(FormatoDecimal(0.4, 0), "0");
    EXPECT_EQ(FormatoDecimal(2.0005, 3), "2.001");
    EXPECT_EQ(FormatoDecimal(1.0 / 3, 4), "0.3333");
}

TEST(Redondeado00, ReadsTheShownFigureBack) {
    EXPECT_EQ(Redondeado00(3.004), 3.0);
    EXPECT_EQ(Redondeado00(2.9949), 2.99);
    EXPECT_EQ(Redondeado00(3.115), 3.12);
    EXPECT_EQ(Redondeado00(-1.005), -1.01);
}

} // namespace
} // namespace vadro
