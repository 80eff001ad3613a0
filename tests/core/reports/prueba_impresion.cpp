// How the rows of a printed list fall on its pages.

#include "core/core/comunes.h"
#include "core/reports/impresion.h"
#include "soporte/acta.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

namespace vadro {
namespace {

std::string Texto(const std::vector<PaginaLista>& paginas) {
    std::string texto;
    for (const PaginaLista& p : paginas) {
        texto += Unir({"[", std::to_string(p.primera), "+", std::to_string(p.filas), "]"});
    }
    return texto;
}

// Each case: the heights of the rows ("50x1" for fifty rows of one line), the lines of a page,
// whether the headings take a line of every page, what the case shows; then the pages as
// [first row + rows].
TEST(PaginarLista, RowsFillPagesInOrderAndNoneIsLostOrRepeated) {
    pruebas::Acta acta;
    for (const pruebas::Caso& caso : pruebas::Casos("informe/paginas_lista.txt")) {
        std::vector<int> alturas;
        std::istringstream filas(caso.campos.at(0));
        for (std::string altura; filas >> altura;) {
            const std::size_t x = altura.find('x');
            const int veces = x == std::string::npos ? 1 : std::stoi(altura.substr(0, x));
            alturas.insert(alturas.end(), static_cast<std::size_t>(veces),
                           std::stoi(altura.substr(x == std::string::npos ? 0 : x + 1)));
        }
        const bool cabeceras = caso.campos.at(2) == "headings";
        acta.Fila(caso.texto,
                  Texto(PaginarLista(alturas, std::stoi(caso.campos.at(1)), cabeceras)));
    }
    acta.Comparar("informe/paginas_lista.txt");
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
