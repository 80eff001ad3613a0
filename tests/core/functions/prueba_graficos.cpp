#include "core/functions/graficos.h"
#include "soporte/acta.h"
#include "soporte/datos.h"
#include "soporte/modelo_sano.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

namespace vadro {
namespace {

using Tipo = Primitiva::Tipo;

EntradaGrafica Continua(const std::string& minRef, const std::string& maxRef) {
    EntradaGrafica entrada;
    entrada.MinRef = minRef;
    entrada.MaxRef = maxRef;
    entrada.C = "50";
    entrada.K = "0.5";
    entrada.P = "2";
    return entrada;
}

int Contar(const Grafica& grafica, Tipo tipo, Color color, int ancho) {
    const auto& p = grafica.Primitivas();
    return static_cast<int>(std::count_if(p.begin(), p.end(), [&](const Primitiva& x) {
        return x.tipo == tipo && x.color == color && x.ancho == ancho;
    }));
}

TEST(Grafica, TheListReadsAsTextAndAClearingHidesWhatCameBefore) {
    Grafica g;
    g.Escala(-10, 1.2F, 115, -0.3F);
    g.AnchoLinea(2);
    g.Linea(0, 0, 105, 0, kNegro);
    g.Borrar();
    g.AnchoLinea(3);
    g.Linea(0, 0, 0.5F, 0.25F, kAzul);
    g.Rectangulo(0, 0, 10, 10, 0x123456);
    g.TextoVertical(-2, 300, "R(X)");
    EXPECT_EQ(ListadoGrafica(g), pruebas::Datos("graficos/listado.txt", ListadoGrafica(g)));
    const auto visibles = g.Visibles();
    ASSERT_EQ(visibles.size(), 4U) << "the scale in force, then what follows the clearing";
    EXPECT_EQ(visibles[0].tipo, Tipo::Escala);
    EXPECT_EQ(visibles[1].ancho, 3);
    g.Reiniciar();
    EXPECT_TRUE(g.Vacia());
    g.Linea(0, 0, 1, 1, kNegro);
    EXPECT_EQ(g.Primitivas()[0].ancho, 1) << "the width starts afresh";
}

TEST(LecturaLaxa, TheNumberAtTheStartOrZero) {
    const std::pair<const char*, double> casos[] = {{"12.5", 12.5}, {" -3", -3}, {"7abc", 7},
                                                    {">100", 0},    {"", 0},     {"abc", 0},
                                                    {".5", 0.5},    {"+2.", 2},  {"1e3", 1}};
    for (const auto& [texto, valor] : casos) {
        EXPECT_DOUBLE_EQ(LecturaLaxa(texto), valor) << texto;
    }
}

TEST(Graficar, AnIncreasingCurveIsOneListOfFrameCurveAxesAndReferenceLines) {
    CurvaEditor curva;
    Grafica g;
    EntradaGrafica entrada = Continua("20", "100");
    entrada.Unidades = "m";
    const ResultadoGrafica r = Graficar(entrada, curva, g);
    EXPECT_TRUE(r.Dibujada);
    EXPECT_EQ(r.Minimo, "20 m");
    EXPECT_EQ(r.Maximo, "100 m");
    EXPECT_EQ(ListadoGrafica(g),
              pruebas::Datos("graficos/continua_creciente.txt", ListadoGrafica(g)));
    EXPECT_EQ(Contar(g, Tipo::Linea, kAzul, 3), 199);
}

// A case "references <min> <max>", with "adjusted" when both boxes adjust them: decreasing
// references swap the captions; adjusting both gives the default frame; one empty reference
// gives 0 and 100 for both; the same text twice draws only when adjusted.
TEST(Graficar, TheFramesAndCaptionsFollowTheReferenceTexts) {
    pruebas::Acta acta;
    for (const pruebas::Caso& caso : pruebas::Casos("graficos/marcos.txt")) {
        CurvaEditor curva;
        Grafica g;
        EntradaGrafica entrada = Continua(caso.campos.at(1), caso.campos.at(2));
        // "adjusted" adjusts both ends, "min-adjusted" or "max-adjusted" one.
        const std::string ajuste = caso.campos.size() > 3 ? caso.campos[3] : "";
        entrada.AjustarMinRef = !ajuste.empty() && ajuste != "max-adjusted";
        entrada.AjustarMaxRef = !ajuste.empty() && ajuste != "min-adjusted";
        const ResultadoGrafica r = Graficar(entrada, curva, g);
        std::ostringstream marco;
        marco << r.Marco.Inferior << " " << r.Marco.Superior;
        acta.Fila(caso.texto, r.Dibujada ? "drawn, captions '" + r.Minimo + "' '" + r.Maximo +
                                               "', frame " + marco.str()
                                         : "not drawn: " + ListadoGrafica(g));
    }
    acta.Comparar("graficos/marcos.txt");
}

TEST(Graficar, WithoutACurveOnlyTheAxesAndTheReferenceLinesAreLeft) {
    for (const auto& [C, K] : {std::pair("20", "0.5"), std::pair("60", "0")}) {
        CurvaEditor curva;
        Grafica g;
        EntradaGrafica entrada = Continua("20", "100");
        entrada.C = C;
        entrada.K = K;
        Graficar(entrada, curva, g);
        EXPECT_EQ(Contar(g, Tipo::Linea, kAzul, 3), 0) << C << " " << K;
        const auto visibles = g.Visibles();
        ASSERT_EQ(visibles.size(), 5U) << "scale, two axes, two reference lines";
        // C at RMin leaves no distance: the level is 1; K 0 keeps B of no drawing: 0.
        EXPECT_EQ(visibles[3].y2, std::string(K) == "0" ? 0.0F : 1.0F);
    }
}

TEST(Graficar, StepsDrawCompleteRowsAndRisersOnlyBetweenCompleteRows) {
    CurvaEditor curva;
    Grafica g;
    EntradaGrafica entrada;
    entrada.MinRef = "0";
    entrada.MaxRef = "40";
    entrada.Escalon = true;
    entrada.Filas = {{"1", "=0", "<10", "0"},
                     {"2", "=10", "<20", "0.5"},
                     {"3", "=20", "", "0.7"},
                     {"4", "=30", "=40", "1"},
                     {"5", "", "", ""}};
    entrada.Intervalos = 4;
    Graficar(entrada, curva, g);
    EXPECT_EQ(ListadoGrafica(g), pruebas::Datos("graficos/escalones.txt", ListadoGrafica(g)));
    EXPECT_EQ(Contar(g, Tipo::Linea, kAzul, 3), 3);
    EXPECT_EQ(Contar(g, Tipo::Linea, kAzul, 1), 1) << "only from row 1 to row 2";
}

TEST(GraficarOptativo, ContinuousWithCAsStoredOrStepsInTheReportFrame) {
    FuncionOptativo continua;
    static_cast<FuncionComun&>(continua) = pruebas::Continua(); // RMax 100, K 0.5
    continua.RMin = 20.0;
    continua.C = 60.0;
    continua.P = 3.0;
    const Grafica g = GraficarOptativo(continua);
    EXPECT_EQ(ListadoGrafica(g),
              pruebas::Datos("graficos/optativo_continua.txt", ListadoGrafica(g)));
    EXPECT_EQ(Contar(g, Tipo::Linea, kAzul, 2), 199);
    const Primitiva centesima = g.Visibles()[100];
    EXPECT_NEAR(centesima.y2, *ValorContinuo(centesima.x2, 20, 100, 60, 0.5, 3), 1e-6)
        << "D is 60, not 40";

    const Grafica escalones = GraficarOptativo(pruebas::DeEscalones<FuncionOptativo>());
    EXPECT_EQ(ListadoGrafica(escalones),
              pruebas::Datos("graficos/optativo_escalones.txt", ListadoGrafica(escalones)));

    for (auto estropear : std::initializer_list<void (*)(FuncionOptativo&)>{
             [](FuncionOptativo& f) { f.K = ValorLibre(); },
             [](FuncionOptativo& f) { f.RMax = 20.0; }, [](FuncionOptativo& f) { f.C = 0.0; },
             [](FuncionOptativo& f) { f.K = 0.0; }}) {
        FuncionOptativo f = continua;
        estropear(f);
        const Grafica vacia = GraficarOptativo(f);
        EXPECT_EQ(std::count_if(vacia.Primitivas().begin(), vacia.Primitivas().end(),
                                [](const Primitiva& p) { return p.color == kAzul; }),
                  0);
    }
}

TEST(GraficarInforme, TheReportDrawsTheStoredCurveTheStepsOrTheCrossedBox) {
    Grafica g;
    FuncionValor f = pruebas::Continua();
    f.RMin = 20.0;
    f.C = 60.0;
    EXPECT_TRUE(GraficarInforme(f, g));
    EXPECT_EQ(g.Primitivas()[0].x1, 18.4F) << "margin of a fiftieth";
    EXPECT_EQ(Contar(g, Tipo::Linea, kAzul, 2), 199);
    EXPECT_EQ(Contar(g, Tipo::Linea, kNegro, 1), 0) << "no reference lines in the report";

    Grafica caja;
    f.K = ValorLibre();
    EXPECT_FALSE(GraficarInforme(f, caja));
    // The crossed box, as GraficarCajaCruzada draws it for the report.
    EXPECT_EQ(ListadoGrafica(caja),
              pruebas::Datos("graficos/caja_cruzada.txt", ListadoGrafica(caja)));

    Grafica escalones;
    EXPECT_TRUE(GraficarInformeEscalon(pruebas::DeEscalones<FuncionValor>(), escalones));
    EXPECT_EQ(ListadoGrafica(escalones),
              ListadoGrafica(GraficarOptativo(pruebas::DeEscalones<FuncionOptativo>())))
        << "the small step drawing is the report's";
    FuncionValor plana = pruebas::DeEscalones<FuncionValor>();
    plana.RMax = 0.0;
    Grafica nada;
    EXPECT_FALSE(GraficarInformeEscalon(plana, nada));
    EXPECT_TRUE(nada.Vacia());
}

TEST(cTextoVertical, BandsFromTheBottomInTheColourOfTheirHeightThenTheCaption) {
    cTextoVertical::Superficie superficie;
    superficie.Ancho = 20;
    superficie.Alto = 510;
    cTextoVertical texto;
    texto.StartColor(0x000000);
    EXPECT_TRUE(superficie.grafica.Vacia()) << "no surface yet: nothing drawn";
    texto.DrawingObject(&superficie);
    texto.EndColor(0xFF00FF);
    const auto& p = superficie.grafica.Primitivas();
    ASSERT_EQ(p.size(), 1U + 255 + 1) << "scale, bands of 2 pixels, caption";
    EXPECT_EQ(p[1].color, 0x000000U) << "bottom band";
    EXPECT_EQ(p[1].y2, 510.0F);
    EXPECT_EQ(p[255].color, 0xFE00FEU) << "top band, at 508 of 510 pixels";
    EXPECT_EQ(p.back().tipo, Tipo::TextoVertical);
    EXPECT_EQ(p.back().x1, -2.0F);
    EXPECT_EQ(p.back().y1, 510.0F);
    texto.Caption("R(X)");
    EXPECT_EQ(superficie.grafica.Primitivas().size(), 2U * 257) << "drawn again at once";
    EXPECT_EQ(superficie.grafica.Primitivas().back().texto, "R(X)");
    texto.Caption("R(X)");
    EXPECT_EQ(superficie.grafica.Primitivas().size(), 2U * 257) << "the same caption: no drawing";

    cTextoVertical pequeno;
    cTextoVertical::Superficie baja;
    baja.Ancho = 10;
    baja.Alto = 100;
    pequeno.DrawingObject(&baja);
    pequeno.Draw();
    EXPECT_EQ(baja.grafica.Primitivas().size(), 1U + 100 + 1) << "bands of 1 pixel at least";
    EXPECT_EQ(baja.grafica.Primitivas()[1].color, kCaraBoton) << "the colour of button faces";
}

} // namespace
} // namespace vadro
