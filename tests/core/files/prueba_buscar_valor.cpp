#include "core/core/error_ejecucion.h"
#include "core/files/formato.h"
#include "core/files/texto_modelo.h"
#include "soporte/errores.h"

#include <gtest/gtest.h>

#include <optional>

namespace vadro {
namespace {

// The corners of the rule, which prueba_busqueda_texto checks at large against the rule read
// line by line: a search from a line gives a value (or none) and leaves a position.
TEST(BuscarValor, TheCornersOfTheSearch) {
    using Lineas = std::vector<std::string>;
    const Lineas orden = {"*****MODELO*****", "A_1 = uno", "A_2 = dos", "A_3 = tres"};
    const Lineas valores = {"A = a=b", "B = c=", "C =", "D = x = y ", "E =  3 "};
    const Lineas cuatro = {"A = 1", "B = 2", "C = 3", "D = 4"};
    struct Caso {
        Lineas lineas;
        std::size_t desde;
        std::string clave;
        std::optional<std::string> valor; // none: nothing found
        std::size_t despues;
        const char* porque;
    };
    const Caso casos[] = {
        {orden, 0, "A_1", "uno", 2, "keys in writing order cost one line each"},
        {orden, 2, "A_2", "dos", 3, ""},
        {{"REQ_R1_STY10 =  5 "}, 0, "REQ_R1_STY1", "5", 1, "a prefix of a longer key finds it"},
        {{"A = vale X_1", "X_1 = propio"}, 0, "X_1", "vale X_1", 1, "a key inside a value"},
        {valores, 0, "A", "b", 1, "the value follows the last equals sign"},
        {valores, 1, "B", "c=", 2, "the very last character is not examined"},
        {valores, 2, "C", std::nullopt, 3, "found, with nothing after the sign"},
        {valores, 3, "D", "y", 4, ""},
        {valores, 4, "E", "3", 5, ""},
        {{"A = 1", "B = 2", "C = 3"}, 2, "Z", std::nullopt, 2, "a miss leaves the position"},
        {cuatro, 2, "A", "1", 1, "an earlier key is found by the wrap"},
        {cuatro, 1, "D", std::nullopt, 1, "the end forces the wrap, which stops at B's line"},
        {cuatro, 3, "D", "4", 4, "starting on the last line, the wrap reaches it"},
        {{"XB = 1", "K = 2", "B = 3", "Z = 4"},
         2,
         "K",
         std::nullopt,
         2,
         "the wrap stops at any line holding the first key read"},
        {{"X = 0", "K = 1", "sin clave", "otra"},
         2,
         "K",
         std::nullopt,
         2,
         "no line read had an equals sign: the wrap ends at the first line"},
        {{"X = 0", "K = 1", "Y = 2", "otra"}, 2, "K", "1", 2, ""},
        {{"A = 1", "B = 2"}, 2, "A", std::nullopt, 2, "no wrap-around from the end"},
        {{}, 0, "A", std::nullopt, 0, "an empty file"},
        {{"MOD_NOM = Ca\xF1on \x80"}, 0, "MOD_NOM", "Cañon €", 1, "values come back as UTF-8"},
    };
    for (const Caso& caso : casos) {
        ArchivoEntrada archivo(caso.lineas);
        archivo.IrA(caso.desde);
        const ValorLibre valor = BuscarValor(archivo, caso.clave);
        EXPECT_EQ(valor.EsVacio() ? std::nullopt : std::optional(valor.Texto()), caso.valor)
            << caso.clave << " from " << caso.desde << ": " << caso.porque;
        EXPECT_EQ(archivo.Posicion(), caso.despues) << caso.clave << " from " << caso.desde;
    }
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
