#include "core/core/codigo_pagina.h"
#include "core/functions/funcion_valor.h"
#include "core/reports/informe_modelo.h"
#include "core/trees/niveles.h"
#include "modelos_informe.h"
#include "soporte/datos.h"
#include "soporte/modelo_sano.h"

#include <gtest/gtest.h>

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

TEST(NivelesInforme, IndentInTwipsAndInBlanks) {
    const std::tuple<int, int, std::string> casos[] = {
        {1, 0, ""},
        {2, 350, "  "},
        {3, 700, "    "},
        {4, 1050, "      "},
        {5, 1290, "        "},
        {6, 1290, "        "},
        {0, 1290, "        "},
        {-1, 1290, "        "},
    };
    for (const auto& [nivel, twips, blancos] : casos) {
        EXPECT_EQ(SangriaNivel(nivel), twips) << nivel;
        EXPECT_EQ(BlancosNivel(nivel), blancos) << nivel;
    }
}

TEST(LineaNodo, KeyNameAndTheWeightWhenThereIsOne) {
    const std::tuple<ValorLibre, std::string, std::string> casos[] = {
        {ValorLibre(), "Coste", "(I1C1R1) Coste"},
        {12.5, "Coste", "(I1C1R1) 12.50% - Coste"},
        {0.0, "Coste", "(I1C1R1) 0.00% - Coste"},
        {100.0 / 3.0, "Coste", "(I1C1R1) 33.33% - Coste"},
        {2.675, "Coste", "(I1C1R1) 2.68% - Coste"},
        {"7,5", "Coste", "(I1C1R1) 7.50% - Coste"},
        {"mucho", "Coste", "(I1C1R1) mucho% - Coste"},
        {ValorLibre(), "", "(I1C1R1) "},
    };
    for (const auto& [peso, nombre, linea] : casos) {
        CabeceraNodo nodo;
        nodo.Peso = peso;
        nodo.Nombre = nombre;
        EXPECT_EQ(LineaNodo("I1C1R1", nodo), linea);
    }
}

TEST(TituloInforme, NameInCapitalsWithItsVersionOrNuevoModelo) {
    const std::tuple<std::string, std::string, std::string> casos[] = {
        {"", "3", "Nuevo modelo"},
        {"", "", "Nuevo modelo"},
        {"Señalización vial", "2", "SEÑALIZACIÓN VIAL (V.2)"},
        {"Puente", "", "PUENTE (V.)"},
        {"ÿ œ ß µ ÷ 7", "1.0", "Ÿ Œ ß µ ÷ 7 (V.1.0)"},
    };
    for (const auto& [nombre, version, titulo] : casos) {
        Modelo m;
        m.Nombre = nombre;
        m.Version = version;
        EXPECT_EQ(TituloInforme(m), titulo);
    }
}

TEST(EnMayusculas, AgreesWithTheCodePageOnEveryCharacterAndUndoesLowerCase) {
    for (int codigo = 1; codigo < 256; ++codigo) {
        const auto c = static_cast<unsigned char>(codigo);
        const std::string caracter = DesdeOchoBits(std::string(1, static_cast<char>(c)));
        EXPECT_EQ(EnMayusculas(caracter),
                  DesdeOchoBits(std::string(1, static_cast<char>(MayusculaOchoBits(c)))))
            << codigo;
        EXPECT_EQ(EnMinusculas(EnMayusculas(caracter)), EnMinusculas(caracter)) << codigo;
    }
    EXPECT_EQ(EnMayusculas("camión €"), "CAMIÓN €");
}

TEST(AñadirFuncion, PictureAndShapeTextByKindAndData) {
    const auto con = [](FuncionValor f, auto cambio) {
        cambio(f);
        return f;
    };
    const FuncionValor continua = Continua();
    const std::tuple<FuncionValor, DibujoInforme, std::string> casos[] = {
        {FuncionValor(), DibujoInforme::Tachada, ""},
        {continua, DibujoInforme::Continua, " C = 50; K = 0.5; P = 2"},
        {con(continua, [](FuncionValor& f) { f.RMin = ValorLibre(); }), DibujoInforme::Tachada,
         " C = 50; K = 0.5; P = 2"},
        {con(continua, [](FuncionValor& f) { f.RMax = ValorLibre(); }), DibujoInforme::Tachada,
         " C = 50; K = 0.5; P = 2"},
        {con(continua, [](FuncionValor& f) { f.C = ValorLibre(); }), DibujoInforme::Tachada,
         "; K = 0.5; P = 2"},
        {con(continua, [](FuncionValor& f) { f.K = ValorLibre(); }), DibujoInforme::Tachada,
         " C = 50; P = 2"},
        {con(continua, [](FuncionValor& f) { f.P = ValorLibre(); }), DibujoInforme::Tachada,
         " C = 50; K = 0.5"},
        {con(continua, [](FuncionValor& f) { f.K = 0.0; }), DibujoInforme::Continua,
         " C = 50; K = 0; P = 2"},
        {con(continua, [](FuncionValor& f) { f.Tipo = FuncionNinguna; }), DibujoInforme::Continua,
         " C = 50; K = 0.5; P = 2"},
        {con(continua, [](FuncionValor& f) { f.Tipo = FuncionEscalon; }), DibujoInforme::Escalon,
         ""},
        {DeEscalones<FuncionValor>(), DibujoInforme::Escalon, ""},
        {con(DeEscalones<FuncionValor>(), [](FuncionValor& f) { f.RMin = ValorLibre(); }),
         DibujoInforme::Escalon, ""},
        {DePuntuacion(), DibujoInforme::Continua, " C = 50; K = 0.5; P = 2"},
        {con(DePuntuacion(), [](FuncionValor& f) { f.C = "0,4"; }), DibujoInforme::Continua,
         " C = 0,4; K = 0.5; P = 2"},
    };
    for (const auto& [funcion, dibujo, forma] : casos) {
        EXPECT_EQ(DibujoDeFuncion(funcion), dibujo) << forma;
        EXPECT_EQ(TextoForma(funcion), forma);
        Informe informe;
        AñadirFuncion(informe, funcion, 4);
        ASSERT_EQ(informe.Lineas().size(), 2u);
        const LineaInforme& linea = informe.Lineas().front();
        EXPECT_EQ(linea.Nivel, 4);
        ASSERT_EQ(linea.Piezas.size(), forma.empty() ? 1u : 2u);
        const PiezaInforme& grafica = linea.Piezas.front();
        EXPECT_EQ(grafica.Tipo, TipoPieza::Grafica);
        EXPECT_EQ(grafica.Dibujo, dibujo);
        if (dibujo == DibujoInforme::Tachada) {
            EXPECT_EQ(grafica.Funcion, nullptr) << "the crossed box needs no function";
        } else {
            ASSERT_NE(grafica.Funcion, nullptr);
            EXPECT_EQ(*grafica.Funcion, funcion) << "the picture carries the whole function";
        }
        EXPECT_EQ(
            TextoPlano(informe),
            "      " +
                std::string(dibujo == DibujoInforme::Tachada ? "[gráfica tachada]" : "[gráfica]") +
                forma + "\n");
    }
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

    const std::vector<LineaInforme>& lineas = informe.Lineas();
    ASSERT_EQ(lineas.size(), 8u);
    const std::tuple<int, int, int, std::size_t> formatos[] = {
        {2, 350, 50, 3}, {2, 350, 50, 1},  {2, 350, 50, 1},  {5, 1290, 50, 1},
        {1, 0, 0, 1},    {4, 1050, 50, 0}, {4, 1050, 50, 0}, {4, 1050, 50, 0},
    };
    for (std::size_t k = 0; k < lineas.size(); ++k) {
        const auto& [nivel, sangria, derecha, piezas] = formatos[k];
        EXPECT_EQ(std::tuple(lineas[k].Nivel, lineas[k].Sangria, lineas[k].SangriaDerecha,
                             lineas[k].Piezas.size()),
                  std::tuple(nivel, sangria, derecha, piezas))
            << "line " << k;
    }
    EXPECT_EQ(lineas[0].Piezas[0].Icono, IconoInforme::Criterio);
    EXPECT_EQ(lineas[0].Piezas[2].Texto, " sigue") << "no line feed is kept in a run";
    EXPECT_EQ(lineas[4].Piezas[0].Letra, (FormatoLetra{"Verdana", 11, true, false, false}));
    EXPECT_EQ(lineas[1].Piezas[0].Letra, (FormatoLetra{"Verdana", 11, false, false, false}));
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
    const std::string texto = TextoPlano(informe);
    EXPECT_EQ(texto, pruebas::Datos("informe/propiedades.txt", texto));
    for (const LineaInforme& linea : informe.Lineas()) {
        EXPECT_EQ(std::tuple(linea.Nivel, linea.Sangria, linea.SangriaDerecha),
                  std::tuple(1, 0, 50));
    }
}

TEST(AñadirComponentesYEtapas, KeysOfComponentsAndOptionsAndAnIconForEachEntry) {
    Modelo m;
    pruebas::PonerComponentes(m, {{"Firme", {"Asfalto", "Adoquín"}}, {"Drenaje", {}}});
    pruebas::PonerEtapas(m, {"Obra", "Uso"});
    Informe componentes;
    AñadirComponentes(componentes, m);
    EXPECT_EQ(TextoPlano(componentes),
              "(Co1) Firme\n  (Op1Co1) Asfalto\n  (Op2Co1) Adoquín\n(Co2) Drenaje\n");
    Informe etapas;
    AñadirEtapas(etapas, m);
    EXPECT_EQ(TextoPlano(etapas), "Obra\nUso\n");
    const auto iconos = [](const Informe& informe) {
        std::vector<IconoInforme> lista;
        for (const LineaInforme& linea : informe.Lineas()) {
            if (!linea.Piezas.empty() && linea.Piezas.front().Tipo == TipoPieza::Icono) {
                lista.push_back(linea.Piezas.front().Icono);
            }
        }
        return lista;
    };
    EXPECT_EQ(iconos(componentes),
              (std::vector{IconoInforme::Componente, IconoInforme::Subcomponente,
                           IconoInforme::Subcomponente, IconoInforme::Componente}));
    EXPECT_EQ(iconos(etapas), (std::vector{IconoInforme::Etapa, IconoInforme::Etapa}));
}

TEST(AñadirRequerimientos, IconsAndLevelsOfEveryNodeAndOfItsFunction) {
    const Modelo m = ModeloSinNombreNiPesos();
    Informe informe;
    AñadirRequerimientos(informe, m);
    // Lines that begin with an icon, with their level, and the level of the line after.
    std::vector<std::tuple<IconoInforme, int, std::string>> nodos;
    std::vector<int> nivelesFuncion;
    const std::vector<LineaInforme>& lineas = informe.Lineas();
    for (std::size_t k = 0; k < lineas.size(); ++k) {
        const auto& piezas = lineas[k].Piezas;
        if (!piezas.empty() && piezas.front().Tipo == TipoPieza::Icono) {
            nodos.emplace_back(piezas.front().Icono, lineas[k].Nivel, piezas.at(1).Texto);
            if (piezas.front().Icono == IconoInforme::Indicador) {
                nivelesFuncion.push_back(lineas.at(k + 1).Nivel);
            }
        }
    }
    const std::vector<std::tuple<IconoInforme, int, std::string>> esperados = {
        {IconoInforme::Requerimiento, 1, "(R1) Ambiental"},
        {IconoInforme::Criterio, 2, "(C1R1) Ruido"},
        {IconoInforme::Subcriterio, 3, "(S1C1R1) Nocturno"},
        {IconoInforme::Indicador, 4, "(I1S1C1R1) Horas"},
        {IconoInforme::Indicador, 3, "(I1C1R1) Decibelios"},
        {IconoInforme::Requerimiento, 1, "(R2) Vacío"},
    };
    EXPECT_EQ(nodos, esperados) << "subcriteria first, then the criterion's own indicators";
    EXPECT_EQ(nivelesFuncion, (std::vector<int>{5, 4})) << "a function one level below";
}

TEST(AñadirRequerimientos, KeysComeFromPositionsNotFromStoredKeys) {
    Modelo m = ModeloCon({Requerimiento("A", {Criterio("B", {Indicador("C")})})});
    m.Requerimientos(1).Clave = "R9";
    m.Requerimientos(1).Criterios(1).Indicadores(1).Clave = "R1C1I1";
    const std::string texto = Escrito([&](Informe& i) { AñadirRequerimientos(i, m); });
    EXPECT_EQ(texto.substr(0, texto.find('\n')), "(R1) 100.00% - A");
    EXPECT_NE(texto.find("\n    (I1C1R1) 100.00% - C\n"), std::string::npos) << texto;
}

// The lines of one indicator with the given function, below its own line.
std::string LineasDeIndicador(const FuncionValor& funcion) {
    const Modelo m = ModeloCon({Requerimiento("R", {Criterio("C", {Indicador("I", funcion)})})});
    const std::string texto = Escrito([&](Informe& i) { AñadirRequerimientos(i, m); });
    const std::string linea = "    (I1C1R1) 100.00% - I\n";
    return texto.substr(texto.find(linea) + linea.size());
}

TEST(AñadirRequerimientos, PlainIndicatorLinesOnlyForDefinedFields) {
    FuncionValor sinLimites = Continua();
    sinLimites.XMin = ValorLibre();
    sinLimites.Unidades.clear();
    FuncionValor soloMaximo;
    soloMaximo.XMax = "=7";
    const std::tuple<FuncionValor, std::string> casos[] = {
        {Continua(), "      [gráfica] C = 50; K = 0.5; P = 2\n"
                     "      Punto de mínima satisfacción = 0\n"
                     "      Punto de máxima satisfacción = 100\n"
                     "      Límite inferior: <0\n"
                     "      Límite superior: =100\n"
                     "      Unidad: m\n"
                     "\n"},
        {sinLimites, "      [gráfica] C = 50; K = 0.5; P = 2\n"
                     "      Punto de mínima satisfacción = 0\n"
                     "      Punto de máxima satisfacción = 100\n"
                     "      Límite superior: =100\n"
                     "\n"},
        {FuncionValor(), "      [gráfica tachada]\n\n"},
        {soloMaximo, "      [gráfica tachada]\n      Límite superior: =7\n\n"},
    };
    for (const auto& [funcion, lineas] : casos) {
        EXPECT_EQ(LineasDeIndicador(funcion), lineas);
    }
}

TEST(AñadirPuntuacion, HeadingsBeforeTheFirstElementOfEachKind) {
    const auto elementos = [](std::vector<Puntuacion> lista) {
        FuncionValor f;
        f.Puntuaciones.Redimensionar(static_cast<int>(lista.size()));
        for (std::size_t k = 0; k < lista.size(); ++k) {
            f.Puntuaciones(static_cast<int>(k) + 1) = lista[k];
        }
        return f;
    };
    const Puntuacion si{PuntuacionBooleana, "¿Aval?", {}, {}, 0.0, 1.5};
    const Puntuacion anos{PuntuacionNumerica, "Años", 1.0, 20.0, ValorLibre(), 8.0};
    const std::string textoSi = "* ¿Aval?\nValor falso = 0, Valor verdadero = 1.5\n";
    const std::string textoAnos =
        "* Años\nValor mínimo = 1 igual a , Valor máximo = 20 igual a 8\n";
    const std::tuple<FuncionValor, std::string> casos[] = {
        {FuncionValor(), "\n\n"},
        {elementos({si}), "\nELEMENTOS BOOLEANOS\n" + textoSi + "\n"},
        {elementos({anos}), "\nELEMENTOS NUMERICOS\n" + textoAnos + "\n"},
        {elementos({si, si, anos, anos}), "\nELEMENTOS BOOLEANOS\n" + textoSi + textoSi +
                                              "ELEMENTOS NUMERICOS\n" + textoAnos + textoAnos +
                                              "\n"},
        {elementos({anos, si, anos}), "\nELEMENTOS NUMERICOS\n" + textoAnos +
                                          "ELEMENTOS BOOLEANOS\n" + textoSi + textoAnos + "\n"},
    };
    for (const auto& [funcion, texto] : casos) {
        EXPECT_EQ(Escrito([&](Informe& i) { AñadirPuntuacion(i, funcion, 1); }), texto);
    }
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
