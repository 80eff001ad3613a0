#include "core/core/formato_numero.h"
#include "core/weighting/calculo_pesos.h"
#include "referencia_ahp.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

namespace vadro {
namespace {

using pruebas::CalcularReferencia;
using pruebas::FilasExactas;
using pruebas::Fraccion;

// The random index of the consistency ratio, by size.
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

Matriz<ValorLibre> DeFilas(const std::vector<std::vector<ValorLibre>>& filas) {
    return Cuadrada(static_cast<int>(filas.size()), [&](int r, int c) {
        return filas[static_cast<std::size_t>(r - 1)][static_cast<std::size_t>(c - 1)];
    });
}

// Every row and every column of a circulant matrix adds to the same sum, so its weights are
// all equal and its lambda is that sum: here n - 1 + (1 + d), that is n + d.
Matriz<ValorLibre> Circulante(int n, double d) {
    return Cuadrada(n,
                    [=](int r, int c) { return ValorLibre((c - r + n) % n == 1 ? 1 + d : 1.0); });
}

double Razon(const Matriz<ValorLibre>& m) {
    Arreglo<ValorLibre> pesos;
    double razon = -7;
    EXPECT_TRUE(CalcularPesos(m, pesos, razon));
    return razon;
}

void ComprobarContraReferencia(const FilasExactas& a) {
    const int n = static_cast<int>(a.size());
    const auto ref = CalcularReferencia(a);
    Arreglo<ValorLibre> pesos;
    double razon = -7;
    const auto m = Cuadrada(n, [&](int r, int c) {
        return ValorLibre(
            a[static_cast<std::size_t>(r - 1)][static_cast<std::size_t>(c - 1)].Doble());
    });
    ASSERT_TRUE(CalcularPesos(m, pesos, razon));
    for (int r = 1; r <= n; ++r) {
        const Fraccion& esperado = ref.pesos[static_cast<std::size_t>(r - 1)];
        EXPECT_NEAR(pesos(r).Numero(), esperado.Doble(), 1e-12);
        EXPECT_EQ(Formato00(pesos(r)), esperado.Texto00());
    }
    const double lambda = static_cast<double>(ref.lambda.Centesimas()) / 100;
    const double indice = IndiceTabla(n);
    const double esperada = indice == 0 ? 0 : (lambda - n) / (n - 1) / indice;
    EXPECT_NEAR(razon, esperada, 1e-12) << "lambda " << lambda;
}

TEST(CalcularPesos, ASetOfOneIsAHundredWithRatioZeroWhateverItsCell) {
    for (const ValorLibre& celda : {ValorLibre(5.0), ValorLibre(), ValorLibre("abc")}) {
        Arreglo<ValorLibre> pesos;
        double razon = -7;
        ASSERT_TRUE(CalcularPesos(DeFilas({{celda}}), pesos, razon));
        EXPECT_EQ(pesos.Cota(), 1);
        EXPECT_EQ(pesos(1), ValorLibre(100));
        EXPECT_EQ(razon, 0.0);
    }
}

TEST(CalcularPesos, ASetOfTwoHasItsWeightsAndAlwaysRatioZero) {
    Arreglo<ValorLibre> pesos;
    double razon = -7;
    ASSERT_TRUE(CalcularPesos(DeFilas({{1, 3}, {1.0 / 3, 1}}), pesos, razon));
    EXPECT_NEAR(pesos(1).Numero(), 75, 1e-12);
    EXPECT_NEAR(pesos(2).Numero(), 25, 1e-12);
    EXPECT_EQ(razon, 0.0);
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
        double razon = -7;
        const auto m = Cuadrada(n, [](int r, int c) { return ValorLibre(double(r) / c); });
        ASSERT_TRUE(CalcularPesos(m, pesos, razon)) << n;
        EXPECT_EQ(razon, 0.0) << n;
        const long long suma = n * (n + 1) / 2;
        for (int r = 1; r <= n; ++r) {
            const Fraccion esperado(100LL * r, suma);
            EXPECT_NEAR(pesos(r).Numero(), esperado.Doble(), 1e-9) << n;
            EXPECT_EQ(Formato00(pesos(r)), esperado.Texto00()) << n;
        }
    }
}

TEST(CalcularPesos, TheRandomIndexGoesBySize) {
    EXPECT_EQ(Razon(Circulante(2, 0.5)), 0.0);
    for (int n = 3; n <= 16; ++n) {
        EXPECT_NEAR(Razon(Circulante(n, 0.5)), 0.5 / (n - 1) / IndiceTabla(n), 1e-12) << n;
    }
    EXPECT_GT(Razon(Circulante(12, 0.5)), Razon(Circulante(11, 0.5)) * 10 / 11)
        << "the index for 12 is the lower one";
}

TEST(CalcularPesos, LambdaIsRoundedAsShownBeforeTheRatio) {
    EXPECT_EQ(Razon(Circulante(3, 0.004)), 0.0);
    EXPECT_EQ(Razon(Circulante(3, 0.0049)), 0.0);
    EXPECT_NEAR(Razon(Circulante(3, -0.0051)), (2.99 - 3) / 2 / 0.58, 1e-12) << "2.9949 to 2.99";
    EXPECT_NEAR(Razon(Circulante(3, 0.115)), (3.12 - 3) / 2 / 0.58, 1e-12) << "3.115 up";
}

TEST(CalcularPesos, TypedTextsCountAsTheirNumbers) {
    Arreglo<ValorLibre> comoTexto, comoNumero;
    double razonTexto = -7, razonNumero = -8;
    ASSERT_TRUE(CalcularPesos(DeFilas({{1, "3.5", "0,25"}, {1 / 3.5, 1, 2}, {4, 0.5, "1"}}),
                              comoTexto, razonTexto));
    ASSERT_TRUE(CalcularPesos(DeFilas({{1, 3.5, 0.25}, {1 / 3.5, 1, 2}, {4, 0.5, 1}}), comoNumero,
                              razonNumero));
    EXPECT_EQ(comoTexto, comoNumero);
    EXPECT_EQ(razonTexto, razonNumero);
}

TEST(CalcularPesos, FailuresAnswerFalseAndLeaveTheRatioUnset) {
    Arreglo<ValorLibre> pesos;
    double razon = -7;
    // A column adding to zero stops before the first row is written.
    EXPECT_FALSE(CalcularPesos(DeFilas({{1, -1}, {1, 1}}), pesos, razon));
    EXPECT_EQ(pesos.Cota(), 2);
    EXPECT_TRUE(pesos(1).EsVacio());
    // A row whose product adds to zero stops after every weight is written.
    EXPECT_FALSE(CalcularPesos(DeFilas({{1, 1}, {0, 0}}), pesos, razon));
    EXPECT_EQ(pesos(1).Numero(), 100);
    EXPECT_EQ(pesos(2).Numero(), 0);
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
    EXPECT_EQ(rejilla.Texto(1, 3), "75.00");
    EXPECT_EQ(rejilla.Texto(2, 3), "25.00");
    EXPECT_EQ(resultado, ValorLibre(0.0));

    ActualizarPesos(DeFilas({{1, 5}, {ValorLibre(), 1}}), pesos, resultado, rejilla);
    EXPECT_EQ(resultado, ValorLibre()) << "one empty cell anywhere";
    EXPECT_EQ(pesos.Cota(), 2);
    EXPECT_TRUE(pesos(1).EsVacio() && pesos(2).EsVacio());
    EXPECT_EQ(rejilla.Texto(1, 3), "75.00") << "the grid keeps the former figures";

    resultado = 0.5;
    ActualizarPesos(DeFilas({{1, -1}, {1, 1}}), pesos, resultado, rejilla);
    EXPECT_EQ(resultado, ValorLibre(0.5)) << "a failure leaves the ratio as it was";
    EXPECT_EQ(rejilla.Texto(2, 3), "25.00");
}

TEST(ConstruirMatrizConsistente, DerivesEveryCellFromTheFirstRow) {
    Matriz<ValorLibre> consistente;
    ConstruirMatrizConsistente(DeFilas({{"1", "2", 4}, {9, 1, 9}, {9, 9, 1}}), consistente);
    EXPECT_EQ(consistente(1, 2), ValorLibre("2")) << "the first row is copied as stored";
    EXPECT_EQ(consistente(1, 1), ValorLibre("1"));
    const double esperado[3][3] = {{1, 2, 4}, {0.5, 1, 2}, {0.25, 0.5, 1}};
    for (int r = 1; r <= 3; ++r) {
        for (int c = 1; c <= 3; ++c) {
            EXPECT_EQ(consistente(r, c).Numero(), esperado[r - 1][c - 1]) << r << c;
        }
    }
    Arreglo<ValorLibre> pesos;
    ValorLibre razon;
    RejillaMemoria rejilla(4, 5);
    ActualizarPesos(consistente, pesos, razon, rejilla);
    EXPECT_EQ(rejilla.Texto(1, 4) + " " + rejilla.Texto(2, 4) + " " + rejilla.Texto(3, 4),
              "57.14 28.57 14.29");
    EXPECT_EQ(razon, ValorLibre(0.0));

    const double fila[] = {1, 3, 0.5, 9};
    ConstruirMatrizConsistente(Cuadrada(4, [&](int r, int c) { return r == 1 ? fila[c - 1] : 7; }),
                               consistente);
    for (int r = 1; r <= 4; ++r) {
        for (int c = 1; c <= 4; ++c) {
            EXPECT_NEAR(consistente(r, c).Numero(), fila[c - 1] / fila[r - 1], 1e-15) << r << c;
        }
    }
}

struct Directo {
    RejillaMemoria rejilla;
    Arreglo<ValorLibre> porcentajes;
    explicit Directo(const std::vector<ValorLibre>& puntuaciones)
        : rejilla(int(puntuaciones.size()) + 2, 3) {
        Arreglo<ValorLibre> p;
        p.Redimensionar(int(puntuaciones.size()));
        std::copy(puntuaciones.begin(), puntuaciones.end(), p.begin());
        LlenarPorcentajesDirecto(p, porcentajes, rejilla);
    }
    std::string Columna(int columna) const {
        std::string texto;
        for (int f = 1; f < rejilla.Filas(); ++f) {
            texto += rejilla.Texto(f, columna) + "|";
        }
        return texto;
    }
};

TEST(LlenarPorcentajesDirecto, SharesTheSumAndTotalsTheShownFigures) {
    EXPECT_EQ(Directo({2, ValorLibre(), 2}).Columna(2), "50.00||50.00|100.00 %|");
    const Directo tercios({1, 1, 1});
    EXPECT_EQ(tercios.Columna(2), "33.33|33.33|33.33|99.99 %|");
    EXPECT_EQ(tercios.Columna(1).substr(tercios.Columna(1).rfind('|', 6) + 1), "3.00|");
    EXPECT_NEAR(tercios.porcentajes(1).Numero(), 100.0 / 3, 1e-12) << "kept unrounded";
    EXPECT_EQ(Directo({-1, 3}).Columna(2), "-50.00|150.00|100.00 %|") << "no test of sign";
}

TEST(LlenarPorcentajesDirecto, NothingPositiveToShareGivesEveryScoredRowAHundred) {
    const Directo ceros({0, 0});
    EXPECT_EQ(ceros.Columna(2), "100.00|100.00||");
    EXPECT_EQ(ceros.rejilla.Texto(3, 1), "");
    EXPECT_EQ(Directo({-1, ValorLibre(), -2}).Columna(2), "100.00||100.00||");
    EXPECT_TRUE(Directo({-1, ValorLibre(), -2}).porcentajes(2).EsVacio());
}

TEST(ColorConsistencia, CaptionAndColourOfTheRatio) {
    const AspectoConsistencia vacio{"", ColorRojo};
    EXPECT_EQ(ColorConsistencia(ValorLibre()), vacio) << "a missing ratio is over the threshold";
    EXPECT_EQ(ColorConsistencia(0.0), (AspectoConsistencia{"0.00", ColorVerde}));
    EXPECT_EQ(ColorConsistencia(0.1), (AspectoConsistencia{"0.10", ColorAmarilloClaro}));
    EXPECT_EQ(ColorConsistencia(0.1000001), (AspectoConsistencia{"0.10", ColorRojo}));
    EXPECT_EQ(ColorConsistencia(0.0345), (AspectoConsistencia{"0.03", ColorAmarilloClaro}));
    EXPECT_EQ(ColorConsistencia(-0.0086), (AspectoConsistencia{"-0.01", ColorAmarilloClaro}));
    EXPECT_EQ(ColorConsistencia(15.07), (AspectoConsistencia{"15.07", ColorRojo}));
}

TEST(PesosDeFilas, ForcesTheDiagonalAndTakesMissingCellsAsEmpty) {
    const auto completa = PesosDeFilas({{"", 3}, {1.0 / 3, 8, 99}});
    ASSERT_TRUE(completa.Calculado);
    EXPECT_NEAR(completa.Pesos(1).Numero(), 75, 1e-12);
    EXPECT_EQ(completa.Consistencia, ValorLibre(0.0));

    const auto corta = PesosDeFilas({{1, 3, 5}, {1.0 / 3, 1}, {0.2, 1.0 / 3, 1}});
    EXPECT_FALSE(corta.Calculado);
    EXPECT_EQ(corta.Consistencia, ValorLibre());
    EXPECT_EQ(corta.Pesos.Cota(), 3);
    EXPECT_TRUE(corta.Pesos(1).EsVacio());
}

} // namespace
} // namespace vadro
