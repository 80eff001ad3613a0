#include "core/core/comunes.h"
#include "core/core/error_ejecucion.h"

#include "soporte/componentes_etapas.h"
#include "soporte/errores.h"

#include <gtest/gtest.h>

#include <clocale>

namespace vadro {
namespace {

using pruebas::NumeroDeError;

TEST(Comunes, FileNamesSplitByTheLastSeparator) {
    EXPECT_EQ(DirectorioDe("C:\\modelos\\a.b.req"), "C:\\modelos");
    EXPECT_EQ(DirectorioDe("/home/u/modelo.vdm"), "/home/u");
    EXPECT_EQ(NombreSinExtension("C:\\modelos\\a.b.req"), "a.b");
    EXPECT_EQ(NombreSinExtension("C:\\modelos\\sinpunto"), "sinpunto");
    EXPECT_EQ(NombreSinExtension("/x.y/z"), "z") << "a dot in a folder is not an extension";
    EXPECT_EQ(ExtensionDe("C:\\modelos\\a.b.req"), "req");
    EXPECT_EQ(DirectorioDe(""), "");
    EXPECT_EQ(NombreSinExtension(""), "");
    EXPECT_EQ(ExtensionDe(""), "");
    EXPECT_EQ(NumeroDeError([] { (void)DirectorioDe("modelo.vdm"); }), ErrLlamadaNoValida);
    EXPECT_EQ(NumeroDeError([] { (void)ExtensionDe("C:\\modelos\\x"); }), ErrLlamadaNoValida);
}

TEST(Comunes, TheDecimalSeparatorFollowsTheLocaleAtTheMomentOfTheCall) {
    std::setlocale(LC_NUMERIC, "C");
    EXPECT_EQ(SeparadorDecimal(), ".");
    EXPECT_EQ(SeparadorDecimalDeMedio(), ".");
    if (std::setlocale(LC_NUMERIC, "es_ES.UTF-8") == nullptr) {
        GTEST_SKIP() << "no Spanish locale on this machine";
    }
    EXPECT_EQ(SeparadorDecimal(), ",");
    EXPECT_EQ(SeparadorDecimalDeMedio(), ",");
    EXPECT_EQ(FiltrarTeclaNumero("1,5", ',').tecla, 0);
    EXPECT_EQ(FiltrarTeclaNumero("1.5", ',').tecla, ',') << "the point is no separator here";
    std::setlocale(LC_NUMERIC, "C");
}

TEST(Comunes, TheNumericKeyFilter) {
    std::setlocale(LC_NUMERIC, "C");
    for (const char c : std::string("0123456789+,-.DEde")) {
        EXPECT_EQ(FiltrarTeclaNumero("", c).tecla, c) << c;
    }
    EXPECT_EQ(FiltrarTeclaNumero("12", 8).tecla, 8) << "backspace";
    const TeclaFiltrada segundoPunto = FiltrarTeclaNumero("1.5", '.');
    EXPECT_EQ(segundoPunto.tecla, 0);
    EXPECT_FALSE(segundoPunto.pitido);
    const TeclaFiltrada retorno = FiltrarTeclaNumero("1", 13);
    EXPECT_EQ(retorno.tecla, 0);
    EXPECT_FALSE(retorno.pitido);
    const TeclaFiltrada letra = FiltrarTeclaNumero("1", 'x');
    EXPECT_EQ(letra.tecla, 0);
    EXPECT_TRUE(letra.pitido);
    EXPECT_TRUE(FiltrarTeclaNumero("", '/').pitido);
}

TEST(Comunes, TextoIntervalo) {
    EXPECT_EQ(TextoIntervalo(ValorLibre("<0"), ValorLibre("=100")), "(0,100]");
    EXPECT_EQ(TextoIntervalo(ValorLibre("=-5.5"), ValorLibre(">7")), "[-5.5,7)");
    EXPECT_EQ(TextoIntervalo(ValorLibre(), ValorLibre()), "(?,?)");
    EXPECT_EQ(TextoIntervalo(ValorLibre("=1"), ValorLibre()), "[1,?)");
}

TEST(Comunes, ComponentRowsAndStages) {
    Modelo m;
    pruebas::PonerComponentes(m, {{"Bombas", {"Motor", "Rodete"}}, {"Tuberías", {}}});
    EXPECT_EQ(LlenarArbolComponentes(m, false), (std::vector<FilaArbol>{{"Co1", "Bombas", ""},
                                                                        {"Sc1Co1", "Motor", "Co1"},
                                                                        {"Sc2Co1", "Rodete", "Co1"},
                                                                        {"Co2", "Tuberías", ""}}));
    EXPECT_EQ(LlenarArbolComponentes(m, true)[1].texto, "(Sc1Co1) Motor");
    EXPECT_TRUE(LlenarArbolComponentes(Modelo{}, true).empty());

    m.NumEtapas = 2;
    m.Etapas.Redimensionar(3);
    m.Etapas(1) = "Diseño";
    m.Etapas(2) = "Obra";
    m.Etapas(3) = "sobrante";
    EXPECT_EQ(LlenarEtapas(m), (std::vector<std::string>{"Diseño", "Obra"})) << "the count governs";
}

} // namespace
} // namespace vadro
