#include "core/core/codigo_pagina.h"
#include "core/functions/funcion_valor.h"
#include "core/reports/informe_modelo.h"
#include "core/trees/niveles.h"
#include "modelos_informe.h"
#include "soporte/acta.h"
#include "soporte/datos.h"
#include "soporte/modelo_sano.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <tuple>

namespace vadro {
namespace {

using pruebas::Continua;
using pruebas::Criterio;
using pruebas::DeEscalones;
using pruebas::DeOptativos;
using pruebas::DePuntuacion;
using pruebas::Indicador;
using pruebas::ModeloCon;
using pruebas::ModeloSinNombreNiPesos;
using pruebas::Requerimiento;
using pruebas::Subcriterio;

// The plain text of what a writer adds to an empty report.
template <typename Escritor> std::string Escrito(Escritor escritor) {
    Informe informe;
    escritor(informe);
    return TextoPlano(informe);
}

// A value written in a case's field: '' the empty text, "#" before a number, else a text.
ValorLibre Valor(const std::string& campo) {
    if (campo.empty()) {
        return {};
    }
    return campo[0] == '#' ? ValorLibre(std::stod(campo.substr(1))) : ValorLibre(campo);
}

// A function named by a field (ninguna, continua, escalones, puntuacion), then changed by the
// fields after it, each "field=value".
FuncionValor FuncionDe(const std::vector<std::string>& campos) {
    const std::map<std::string, FuncionValor> bases = {{"ninguna", FuncionValor()},
                                                       {"continua", Continua()},
                                                       {"escalones", DeEscalones<FuncionValor>()},
                                                       {"puntuacion", DePuntuacion()}};
    const std::map<std::string, ValorLibre FuncionComun::*> miembros = {
        {"RMin", &FuncionComun::RMin},
        {"RMax", &FuncionComun::RMax},
        {"C", &FuncionComun::C},
        {"K", &FuncionComun::K},
        {"P", &FuncionComun::P}};
    const std::vector<std::string> tipos = {"Ninguna", "Continua", "Escalon"};
    FuncionValor f = bases.at(campos.at(1));
    for (std::size_t k = 2; k < campos.size(); ++k) {
        const std::size_t igual = campos[k].find('=');
        const std::string campo = campos[k].substr(0, igual), valor = campos[k].substr(igual + 1);
        if (campo == "Tipo") {
            f.Tipo =
                static_cast<int32_t>(std::find(tipos.begin(), tipos.end(), valor) - tipos.begin());
        } else {
            f.*miembros.at(campo) = Valor(valor);
        }
    }
    return f;
}

// The line AñadirFuncion writes of a function: its picture and its shape text.
std::string Grafica(const FuncionValor& funcion) {
    Informe informe;
    AñadirFuncion(informe, funcion, 4);
    EXPECT_EQ(informe.Lineas().size(), 2u);
    const std::vector<PiezaInforme>& piezas = informe.Lineas().front().Piezas;
    EXPECT_EQ(piezas.front().Dibujo, DibujoDeFuncion(funcion));
    EXPECT_EQ(piezas.back().Texto, TextoForma(funcion));
    if (piezas.front().Dibujo == DibujoInforme::Tachada) {
        EXPECT_EQ(piezas.front().Funcion, nullptr) << "the crossed box needs no function";
    } else {
        EXPECT_TRUE(piezas.front().Funcion && *piezas.front().Funcion == funcion)
            << "the picture carries the whole function";
    }
    const std::string estructura = pruebas::Estructura(informe);
    return estructura.substr(0, estructura.find('\n'));
}

// The elements of a scoring function, "si" a boolean and "anos" a numeric one, as written.
std::string Elementos(const std::vector<std::string>& campos) {
    const Puntuacion si{PuntuacionBooleana, "¿Aval?", {}, {}, 0.0, 1.5};
    const Puntuacion anos{PuntuacionNumerica, "Años", 1.0, 20.0, ValorLibre(), 8.0};
    FuncionValor f;
    f.Puntuaciones.Redimensionar(static_cast<int>(campos.size()) - 1);
    for (int k = 1; k < static_cast<int>(campos.size()); ++k) {
        f.Puntuaciones(k) = campos[static_cast<std::size_t>(k)] == "si" ? si : anos;
    }
    return Escrito([&](Informe& i) { AñadirPuntuacion(i, f, 1); });
}

// The rules of the report's lines, each case named by its rule: the indent of a level, the line
// of a node, the title, the picture and shape of a function, the elements of a scoring function.
TEST(ReglasInforme, EachRuleGivesItsTextCaseByCase) {
    pruebas::Acta acta;
    for (const pruebas::Caso& caso : pruebas::Casos("informe/reglas.txt")) {
        const std::vector<std::string>& campos = caso.campos;
        std::string salida;
        if (campos.at(0) == "nivel") {
            const int nivel = std::stoi(campos.at(1));
            salida = std::to_string(SangriaNivel(nivel)) + " '" + BlancosNivel(nivel) + "'";
        } else if (campos[0] == "nodo") {
            CabeceraNodo nodo;
            nodo.Peso = Valor(campos.at(1));
            nodo.Nombre = campos.at(2);
            salida = "'" + LineaNodo("I1C1R1", nodo) + "'";
        } else if (campos[0] == "titulo") {
            Modelo m;
            m.Nombre = campos.at(1);
            m.Version = campos.at(2);
            salida = "'" + TituloInforme(m) + "'";
        } else if (campos[0] == "funcion") {
            salida = Grafica(FuncionDe(campos));
        } else {
            salida = "'" + Elementos(campos) + "'";
        }
        acta.Fila(caso.texto, salida);
    }
    acta.Comparar("informe/reglas.txt");
}

TEST(Informe, LinesTakeTheLevelOfTheLastTextWrittenIntoThem) {
    Informe informe;
    informe.AñadirIcono(IconoInforme::Criterio);
    informe.AñadirTexto("uno", 3);
    informe.AñadirTexto(" sigue\r\ndos\rtres\n", 2);
    informe.AñadirImagen(DibujoInforme::Tachada);
    informe.AñadirTexto("\n", 5);
    informe.AñadirEncabezado("Título");
    informe.AñadirTexto("\n\n", 4);

    const std::string estructura = pruebas::Estructura(informe);
    EXPECT_EQ(estructura, pruebas::Datos("informe/estructura_lineas.txt", estructura))
        << "no line feed is kept in a run";
    EXPECT_EQ(TextoPlano(informe),
              "  uno sigue\n  dos\n  tres\n        [gráfica tachada]\nTítulo\n\n\n")
        << "icons are left out, empty lines have no blanks, the open last line is not written";
}

TEST(Informe, AnEmptyReportHasOneOpenLineAndNoText) {
    const Informe informe;
    EXPECT_EQ(informe.Lineas().size(), 1u);
    EXPECT_EQ(TextoPlano(informe), "");
    EXPECT_EQ(Escrito([](Informe& i) { i.AñadirIcono(IconoInforme::Etapa); }), "");
    EXPECT_EQ(Escrito([](Informe& i) { i.AñadirTexto("sin salto", 2); }), "  sin salto\n");
}

TEST(AñadirPropiedades, SevenLinesAtTheLeftEdgeEmptyFieldsIncluded) {
    Modelo m;
    m.Autor = "Ana";
    m.Version = "3";
    m.Descripcion = "Primera.\r\nSegunda.\rTercera.\nCuarta.";
    Informe informe;
    AñadirPropiedades(informe, m);
    const std::string texto = pruebas::Estructura(informe);
    EXPECT_EQ(texto, pruebas::Datos("informe/propiedades.txt", texto));
}

TEST(AñadirComponentesYEtapas, KeysOfComponentsAndOptionsAndAnIconForEachEntry) {
    Modelo m;
    pruebas::PonerComponentes(m, {{"Firme", {"Asfalto", "Adoquín"}}, {"Drenaje", {}}});
    pruebas::PonerEtapas(m, {"Obra", "Uso"});
    Informe informe;
    AñadirComponentes(informe, m);
    AñadirEtapas(informe, m);
    const std::string texto = pruebas::Estructura(informe);
    EXPECT_EQ(texto, pruebas::Datos("informe/componentes_etapas.txt", texto));
}

TEST(AñadirRequerimientos, PlainIndicatorLinesOnlyForDefinedFields) {
    FuncionValor sinLimites = Continua();
    sinLimites.XMin = ValorLibre();
    sinLimites.Unidades.clear();
    FuncionValor soloMaximo;
    soloMaximo.XMax = "=7";
    Modelo m = ModeloCon({Requerimiento(
        "R", {Criterio("C", {Indicador("Todo"), Indicador("Sin mínimo ni unidad", sinLimites),
                             Indicador("Sin función", FuncionValor()),
                             Indicador("Solo máximo", soloMaximo)})})});
    // The keys come from the positions, not from those stored.
    m.Requerimientos(1).Clave = "R9";
    m.Requerimientos(1).Criterios(1).Indicadores(2).Clave = "R1C1I2";
    const std::string texto = Escrito([&](Informe& i) { AñadirRequerimientos(i, m); });
    EXPECT_EQ(texto, pruebas::Datos("informe/lineas_indicador.txt", texto));
}

TEST(AñadirOptativos, EachOptionWithItsPictureAndLimitsWrittenWithEquals) {
    FuncionValor f = DeOptativos("I1C1R1");
    f.Optativos(1).Funcion = pruebas::DeEscalones<FuncionOptativo>();
    f.Optativos(1).Funcion.Unidades.clear();
    f.Optativos(2).Funcion.Tipo = FuncionNinguna;
    f.Optativos(2).Funcion.Escalones.Borrar();
    f.OptativoSeleccionado = 2;
    Informe informe;
    AñadirOptativos(informe, f, 1);
    const std::string texto = TextoPlano(informe);
    EXPECT_EQ(texto, pruebas::Datos("informe/optativos.txt", texto));
    const PiezaInforme& escalones = informe.Lineas().at(5).Piezas.at(0);
    EXPECT_EQ(escalones.Dibujo, DibujoInforme::Escalon);
    ASSERT_NE(escalones.Funcion, nullptr);
    EXPECT_EQ(*escalones.Funcion, ConvertirFuncion(f.Optativos(1).Funcion))
        << "an option is drawn from a plain function copied from its own";
}

} // namespace
} // namespace vadro
