#include "core/core/codigo_pagina.h"
#include "core/core/comunes.h"
#include "core/core/error_ejecucion.h"

#include "soporte/componentes_etapas.h"
#include "soporte/errores.h"
#include "tabla_funciones.h"

#include <gtest/gtest.h>

#include <clocale>

namespace vadro {
namespace {

using namespace pruebas;

// File names split by the last separator; a dot in a folder is not an extension, and a name
// without a folder or an extension asked for one is an invalid call. Intervals show their
// closed ends in square brackets and an end not given as "?". The numeric key filter lets
// digits, signs, separators and exponent letters through, and backspace ("#8"), and drops a
// second separator and Return ("#13") silently and anything else with a beep (the key shown
// as itself or as "#" and its code).
TEST(Comunes, FileNamesIntervalsAndTheNumericKeyFilter) {
    std::setlocale(LC_NUMERIC, "C");
    const auto texto = [](std::string (*funcion)(const std::string&)) {
        return [funcion](const Argumentos& a) { return Unir({"'", funcion(a.at(0)), "'"}); };
    };
    const auto tecla = [](int codigo) {
        return codigo >= ' ' ? std::string(1, static_cast<char>(codigo))
                             : "#" + std::to_string(codigo);
    };
    Tabular("nucleo/comunes.txt",
            {{"DirectorioDe", texto(DirectorioDe)},
             {"NombreSinExtension", texto(NombreSinExtension)},
             {"ExtensionDe", texto(ExtensionDe)},
             {"TextoIntervalo",
              [](const Argumentos& a) {
                  return TextoIntervalo(ValorLibre(a.at(0)), ValorLibre(a.at(1)));
              }},
             {"FiltrarTeclaNumero", [&](const Argumentos& a) {
                  const std::string& k = a.at(1);
                  const TeclaFiltrada f =
                      FiltrarTeclaNumero(a.at(0), k.size() > 1 ? std::stoi(k.substr(1)) : k[0]);
                  return tecla(f.tecla) + (f.pitido ? " beep" : "");
              }}});
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

// Every letter of the page has its pair both ways, and a character the page lacks keeps its
// form, so names compare alike whatever their case, accents included, and no other.
TEST(CodigoPagina, UpperAndLowerCaseFollowThePageLetterByLetter) {
    int pares = 0;
    for (int codigo = 1; codigo < 256; ++codigo) {
        const auto c = static_cast<unsigned char>(codigo);
        const std::string caracter = DesdeOchoBits(std::string(1, static_cast<char>(c)));
        const unsigned char mayuscula = MayusculaOchoBits(c);
        EXPECT_EQ(EnMayusculas(caracter),
                  DesdeOchoBits(std::string(1, static_cast<char>(mayuscula))));
        EXPECT_EQ(EnMinusculas(EnMayusculas(caracter)), EnMinusculas(caracter)) << codigo;
        EXPECT_EQ(EnMayusculas(EnMinusculas(caracter)), EnMayusculas(caracter)) << codigo;
        pares += mayuscula != c && MinusculaOchoBits(mayuscula) == c ? 1 : 0;
    }
    EXPECT_EQ(pares, 26 + 30 + 4) << "a-z, à-þ but ÷, š œ ž ÿ";
    EXPECT_EQ(EnMayusculas("Válvula de paso ñ, cœur, ÿ €"), "VÁLVULA DE PASO Ñ, CŒUR, Ÿ €");
    EXPECT_EQ(EnMinusculas("ÁRBOL ŠŸ ß"), "árbol šÿ ß");
    EXPECT_EQ(EnMayusculas("ω"), "ω") << "a character the 8-bit page lacks stays";
    EXPECT_NE(EnMayusculas("a"), EnMayusculas("á"));
    EXPECT_EQ(EnMayusculas("a\xC3"), "A\xC3") << "a broken sequence stays as it is";
}

} // namespace
} // namespace vadro
