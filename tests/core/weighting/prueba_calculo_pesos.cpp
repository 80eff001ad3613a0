#include "core/core/formato_numero.h"
#include "core/weighting/calculo_pesos.h"
#include "referencia_ahp.h"
#include "soporte/acta.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

namespace vadro {
namespace {

using pruebas::Fraccion;
using Filas = std::vector<std::vector<ValorLibre>>;

double IndiceTabla(int n) {
    static const double tabla[] = {0,    0,    0.58, 0.9,  1.12, 1.24, 1.32, 1.41,
                                   1.45, 1.49, 1.51, 1.48, 1.56, 1.57, 1.59};
    return tabla[std::min(n, 15) - 1];
}

Matriz<ValorLibre> Cuadrada(int n, const std::function<ValorLibre(int, int)>& celda) {
    Matriz<ValorLibre> m;
    m.Redimensionar(n, n);
    for (int r = 1; r <= n; ++r) {
        for (int c = 1; c <= n; ++c) {
            m(r, c) = celda(r, c);
        }
    }
    return m;
}

Matriz<ValorLibre> DeFilas(const Filas& filas) {
    return Cuadrada(static_cast<int>(filas.size()),
                    [&](int r, int c) { return filas[r - 1][c - 1]; });
}

// Every row and column of a circulant matrix adds to the same sum, so its weights are equal
// and its lambda is that sum: n - 1 + (1 + d), that is n + d.
Matriz<ValorLibre> Circulante(int n, double d) {
    return Cuadrada(n,
                    [=](int r, int c) { return ValorLibre((c - r + n) % n == 1 ? 1 + d : 1.0); });
}

double Razon(const Matriz<ValorLibre>& m, Arreglo<ValorLibre>* salida = nullptr) {
    Arreglo<ValorLibre> pesos;
    double razon = -7;
    EXPECT_TRUE(CalcularPesos(m, pesos, razon));
    if (salida != nullptr) {
        *salida = pesos;
    }
    return razon;
}

void ComprobarContraReferencia(const std::vector<std::vector<Fraccion>>& a) {
    const int n = static_cast<int>(a.size());
    const auto ref = pruebas::CalcularReferencia(a);
    Arreglo<ValorLibre> pesos;
    const double razon =
        Razon(Cuadrada(n, [&](int r, int c) { return a[r - 1][c - 1].Doble(); }), &pesos);
    for (int r = 1; r <= n; ++r) {
        EXPECT_NEAR(pesos(r).Numero(), ref.pesos[r - 1].Doble(), 1e-12);
        EXPECT_EQ(Formato00(pesos(r)), ref.pesos[r - 1].Texto00());
    }
    const double lambda = static_cast<double>(ref.lambda.Centesimas()) / 100, ri = IndiceTabla(n);
    EXPECT_NEAR(razon, ri == 0 ? 0 : (lambda - n) / (n - 1) / ri, 1e-12) << "lambda " << lambda;
}

TEST(CalcularPesos, SetsOfOneAndTwo) {
    for (const ValorLibre& celda : {ValorLibre(5.0), ValorLibre(), ValorLibre("abc")}) {
        Arreglo<ValorLibre> pesos;
        EXPECT_EQ(Razon(DeFilas({{celda}}), &pesos), 0.0) << "a set of one, whatever its cell";
        EXPECT_EQ(pesos.Cota(), 1);
        EXPECT_EQ(pesos(1), ValorLibre(100));
    }
    ComprobarContraReferencia({{1, 3}, {{1, 3}, 1}});
    ComprobarContraReferencia({{1, {73, 10}}, {{10, 73}, 1}});
    EXPECT_EQ(Razon(DeFilas({{1, 9}, {9, 1}})), 0.0) << "even a matrix that is not reciprocal";
}

TEST(CalcularPesos, AgreesWithTheExactReference) {
    ComprobarContraReferencia({{1, 3, 5}, {{1, 3}, 1, 3}, {{1, 5}, {1, 3}, 1}});
    ComprobarContraReferencia(
        {{1, 2, 7, {1, 3}}, {{1, 2}, 1, 4, {1, 5}}, {{1, 7}, {1, 4}, 1, {1, 9}}, {3, 5, 9, 1}});
    // Just under and just over the threshold: lambda 3.11 and 3.12.
    ComprobarContraReferencia({{1, 1, 3}, {1, 1, 8}, {{1, 3}, {1, 8}, 1}});
    ComprobarContraReferencia({{1, 2, 5}, {{1, 2}, 1, 7}, {{1, 5}, {1, 7}, 1}});
    // Off the scale, and not reciprocal, as a file may hold them.
    ComprobarContraReferencia({{1, 20, {1, 100}}, {{1, 20}, 1, {2, 5}}, {100, {5, 2}, 1}});
    ComprobarContraReferencia({{1, 2, 3}, {2, 1, 5}, {{1, 3}, {1, 4}, 1}});
}

TEST(CalcularPesos, ConsistentMatricesOfEverySizeGiveTheirWeightsAndRatioZero) {
    for (int n = 1; n <= 16; ++n) {
        Arreglo<ValorLibre> pesos;
        EXPECT_EQ(Razon(Cuadrada(n, [](int r, int c) { return double(r) / c; }), &pesos), 0.0);
        for (int r = 1; r <= n; ++r) {
            const Fraccion esperado(100LL * r, n * (n + 1) / 2);
            EXPECT_NEAR(pesos(r).Numero(), esperado.Doble(), 1e-9) << n;
            EXPECT_EQ(Formato00(pesos(r)), esperado.Texto00()) << n;
        }
    }
}

TEST(CalcularPesos, RandomIndexBySizeAndLambdaRoundedAsShown) {
    EXPECT_EQ(Razon(Circulante(2, 0.5)), 0.0);
    for (int n = 3; n <= 16; ++n) {
        EXPECT_NEAR(Razon(Circulante(n, 0.5)), 0.5 / (n - 1) / IndiceTabla(n), 1e-12) << n;
    }
    EXPECT_EQ(Razon(Circulante(3, 0.004)), 0.0);
    EXPECT_EQ(Razon(Circulante(3, 0.0049)), 0.0);
    EXPECT_NEAR(Razon(Circulante(3, -0.0051)), (2.99 - 3) / 2 / 0.58, 1e-12) << "2.9949 to 2.99";
    EXPECT_NEAR(Razon(Circulante(3, 0.115)), (3.12 - 3) / 2 / 0.58, 1e-12) << "3.115 goes up";
}

TEST(CalcularPesos, TypedTextsCountAsTheirNumbers) {
    Arreglo<ValorLibre> comoTexto, comoNumero;
    EXPECT_EQ(Razon(DeFilas({{1, "3.5", "0,25"}, {1 / 3.5, 1, 2}, {4, 0.5, "1"}}), &comoTexto),
              Razon(DeFilas({{1, 3.5, 0.25}, {1 / 3.5, 1, 2}, {4, 0.5, 1}}), &comoNumero));
    EXPECT_EQ(comoTexto, comoNumero);
}

TEST(CalcularPesos, FailuresAnswerFalseAndLeaveTheRatioUnset) {
    Arreglo<ValorLibre> pesos;
    double razon = -7;
    // A column adding to zero stops before the first row is written.
    EXPECT_FALSE(CalcularPesos(DeFilas({{1, -1}, {1, 1}}), pesos, razon));
    EXPECT_TRUE(pesos.Cota() == 2 && pesos(1).EsVacio());
    // A row whose product adds to zero stops after every weight is written.
    EXPECT_FALSE(CalcularPesos(DeFilas({{1, 1}, {0, 0}}), pesos, razon));
    EXPECT_EQ(pesos(1).Numero() * 1000 + pesos(2).Numero(), 100000);
    EXPECT_FALSE(CalcularPesos(DeFilas({{1, "tres"}, {3, 1}}), pesos, razon));
    EXPECT_FALSE(CalcularPesos(DeFilas({{1, 1e308}, {3, 1e308}}), pesos, razon)) << "overflow";
    EXPECT_FALSE(CalcularPesos(Matriz<ValorLibre>(), pesos, razon)) << "a matrix never sized";
    EXPECT_EQ(razon, -7);
}

TEST(ActualizarPesos, ShowsTheWeightsOnlyOfAComputedMatrix) {
    RejillaMemoria rejilla(3, 4);
    Arreglo<ValorLibre> pesos;
    ValorLibre resultado;
    ActualizarPesos(DeFilas({{1, 3}, {1.0 / 3, 1}}), pesos, resultado, rejilla);
    EXPECT_EQ(rejilla.Texto(1, 3) + " " + rejilla.Texto(2, 3), "75.00 25.00");
    EXPECT_EQ(resultado, ValorLibre(0.0));

    ActualizarPesos(DeFilas({{1, 5}, {ValorLibre(), 1}}), pesos, resultado, rejilla);
    EXPECT_EQ(resultado, ValorLibre()) << "one empty cell anywhere";
    EXPECT_TRUE(pesos.Cota() == 2 && pesos(1).EsVacio() && pesos(2).EsVacio());
    EXPECT_EQ(rejilla.Texto(1, 3), "75.00") << "the grid keeps the former figures";

    resultado = 0.5;
    ActualizarPesos(DeFilas({{1, -1}, {1, 1}}), pesos, resultado, rejilla);
    EXPECT_EQ(resultado, ValorLibre(0.5)) << "a failure leaves the ratio as it was";
}

TEST(ConstruirMatrizConsistente, DerivesEveryCellFromTheFirstRow) {
    Matriz<ValorLibre> consistente;
    ConstruirMatrizConsistente(DeFilas({{"1", "2", 4}, {9, 1, 9}, {9, 9, 1}}), consistente);
    EXPECT_EQ(consistente(1, 2), ValorLibre("2")) << "the first row is copied as stored";
    const double fila[] = {1, 3, 0.5, 9};
    ConstruirMatrizConsistente(Cuadrada(4, [&](int r, int c) { return r == 1 ? fila[c - 1] : 7; }),
                               consistente);
    for (int r = 1; r <= 4; ++r) {
        for (int c = 1; c <= 4; ++c) {
            EXPECT_NEAR(consistente(r, c).Numero(), fila[c - 1] / fila[r - 1], 1e-15) << r << c;
        }
    }
}

// Each case: the scores ('' for none); the percentages and the total as the grid shows them,
// the sum of the scores, and the percentages as they are kept.
TEST(LlenarPorcentajesDirecto, SharesTheSumAndTotalsTheShownFigures) {
    pruebas::Acta acta;
    for (const pruebas::Caso& caso : pruebas::Casos("ponderacion/porcentajes.txt")) {
        const int n = static_cast<int>(caso.campos.size());
        Arreglo<ValorLibre> puntuaciones, porcentajes;
        puntuaciones.Redimensionar(n);
        for (int k = 1; k <= n; ++k) {
            const std::string& campo = caso.campos[static_cast<std::size_t>(k - 1)];
            puntuaciones(k) = campo.empty() ? ValorLibre() : ValorLibre(std::stod(campo));
        }
        RejillaMemoria rejilla(n + 2, 3);
        LlenarPorcentajesDirecto(puntuaciones, porcentajes, rejilla);
        std::string salida;
        for (int f = 1; f <= n + 1; ++f) {
            salida += rejilla.Texto(f, 2) + "|";
        }
        salida += " sum '" + rejilla.Texto(n + 1, 1) + "', kept";
        for (const ValorLibre& porcentaje : porcentajes) {
            salida += " '" + porcentaje.Texto() + "'";
        }
        acta.Fila(caso.texto, salida);
    }
    acta.Comparar("ponderacion/porcentajes.txt");
}

TEST(ColorConsistencia, CaptionAndColourOfTheRatio) {
    EXPECT_EQ(ColorConsistencia(ValorLibre()), (AspectoConsistencia{"", ColorRojo}));
    EXPECT_EQ(ColorConsistencia(0.0), (AspectoConsistencia{"0.00", ColorVerde}));
    EXPECT_EQ(ColorConsistencia(0.1), (AspectoConsistencia{"0.10", ColorAmarilloClaro}));
    EXPECT_EQ(ColorConsistencia(0.1000001), (AspectoConsistencia{"0.10", ColorRojo}));
    EXPECT_EQ(ColorConsistencia(-0.0086), (AspectoConsistencia{"-0.01", ColorAmarilloClaro}));
}

TEST(PesosDeFilas, ForcesTheDiagonalAndTakesMissingCellsAsEmpty) {
    const auto completa = PesosDeFilas({{"", 3}, {1.0 / 3, 8, 99}});
    EXPECT_TRUE(completa.Calculado);
    EXPECT_NEAR(completa.Pesos(1).Numero(), 75, 1e-12);
    EXPECT_EQ(completa.Consistencia, ValorLibre(0.0));
    const auto corta = PesosDeFilas({{1, 3, 5}, {1.0 / 3, 1}, {0.2, 1.0 / 3, 1}});
    EXPECT_FALSE(corta.Calculado);
    EXPECT_EQ(corta.Consistencia, ValorLibre());
    EXPECT_TRUE(corta.Pesos.Cota() == 3 && corta.Pesos(1).EsVacio());
}

} // namespace
} // namespace vadro
