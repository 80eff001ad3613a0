// How the rows of a printed list fall on its pages.

#include "core/reports/impresion.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace vadro {
namespace {

std::string Texto(const std::vector<PaginaLista>& paginas) {
    std::string texto;
    for (const PaginaLista& p : paginas) {
        texto += "[" + std::to_string(p.primera) + "+" + std::to_string(p.filas) + "]";
    }
    return texto;
}

std::vector<int> Filas(int cuantas, int altura = 1) {
    return std::vector<int>(static_cast<std::size_t>(cuantas), altura);
}

TEST(PaginarLista, RowsFillPagesInOrderAndNoneIsLostOrRepeated) {
    struct Caso {
        const char* nombre;
        std::vector<int> alturas;
        int lineas;
        bool cabeceras;
        const char* paginas;
    };
    const Caso casos[] = {
        {"no rows: one blank page", {}, 50, false, "[0+0]"},
        {"no rows with headings: one page of headings", {}, 50, true, "[0+0]"},
        {"one row", Filas(1), 50, false, "[0+1]"},
        {"a full page", Filas(50), 50, false, "[0+50]"},
        {"one over a full page", Filas(51), 50, false, "[0+50][50+1]"},
        {"three full pages", Filas(150), 50, false, "[0+50][50+50][100+50]"},
        {"the headings take a line of every page", Filas(50), 50, true, "[0+49][49+1]"},
        {"headings on every page", Filas(98), 50, true, "[0+49][49+49]"},
        {"wrapped rows take their lines", {2, 2, 1}, 5, false, "[0+3]"},
        {"a wrapped row that does not fit goes over whole", {2, 2, 2}, 5, false, "[0+2][2+1]"},
        {"a row taller than a page has a page of its own", {7, 1, 1}, 5, false, "[0+1][1+2]"},
        {"a row after a tall one starts a page", {1, 7, 1}, 5, false, "[0+1][1+1][2+1]"},
        {"a page too small still takes a row", Filas(3), 1, true, "[0+1][1+1][2+1]"},
        {"no lines at all", Filas(2), 0, false, "[0+1][1+1]"},
        {"a row of no height takes one line", {0, 0, 0}, 2, false, "[0+2][2+1]"},
    };
    for (const Caso& caso : casos) {
        EXPECT_EQ(Texto(PaginarLista(caso.alturas, caso.lineas, caso.cabeceras)), caso.paginas)
            << caso.nombre;
    }
}

TEST(PaginarLista, TheReportsMarginsAreThoseOfThePrintCommandInMillimetres) {
    EXPECT_DOUBLE_EQ(TwipsAMilimetros(1440), 25.4);
    EXPECT_NEAR(TwipsAMilimetros(kMargenesInforme.izquierdo), 35.28, 0.01);
    EXPECT_NEAR(TwipsAMilimetros(kMargenesInforme.superior), 21.17, 0.01);
    EXPECT_NEAR(TwipsAMilimetros(kMargenesInforme.derecho), 17.64, 0.01);
    EXPECT_EQ(kMargenesInforme.inferior, kMargenesInforme.derecho);
}

} // namespace
} // namespace vadro
