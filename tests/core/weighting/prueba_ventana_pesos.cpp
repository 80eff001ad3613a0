#include "core/core/formato_numero.h"
#include "core/weighting/ventana_pesos.h"
#include "referencia_ahp.h"
#include "soporte/acta.h"
#include "soporte/modelo_sano.h"
#include "soporte/prueba_sesion.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace vadro {
namespace {

// An answer to a message as a case's field names it.
Respuesta RespuestaDe(const std::string& nombre) {
    const std::vector<std::string> nombres = {"Aceptar", "Cancelar", "Sí", "No"};
    return static_cast<Respuesta>(std::find(nombres.begin(), nombres.end(), nombre) -
                                  nombres.begin());
}

// Which cells of a set of three take the input and the scale (the matrix grid is 4 x 5, the
// direct grid 5 x 3), what each key of the input does and where it leaves the cell, and which
// option of the scale a cell's shown text switches on.
TEST(ReglasPesos, CellsKeysAndScaleOptionsCaseByCase) {
    const std::vector<std::string> teclas = {"Escape", "Retorno", "Izquierda", "Arriba", "Derecha",
                                             "Abajo",  "Digito",  "Separador", "Otra"};
    const char* const acciones[] = {"Ocultar", "Confirmar", "Mover", "Escribir", "Descartar"};
    pruebas::Acta acta;
    for (const pruebas::Caso& caso : pruebas::Casos("ponderacion/reglas_pesos.txt")) {
        const std::vector<std::string>& c = caso.campos;
        std::string salida;
        if (c.at(0) == "celda") {
            const int f = std::stoi(c.at(1)), k = std::stoi(c.at(2));
            salida = std::string("[") + (CeldaEditableSaaty(4, 5, f, k) ? " matrix" : "") +
                     (CeldaConEscala(5, f, k) ? " scale" : "") +
                     (CeldaEditableDirecto(5, 3, f, k) ? " direct" : "") + " ]";
        } else if (c[0] == "tecla") {
            const auto tecla = static_cast<TeclaEntrada>(
                std::find(teclas.begin(), teclas.end(), c.at(1)) - teclas.begin());
            const Celda hasta =
                CeldaTrasFlecha(tecla, {std::stoi(c.at(2)), std::stoi(c.at(3))}, 4, 5);
            salida = std::string(acciones[static_cast<int>(AccionDeTecla(tecla))]) + ", to " +
                     std::to_string(hasta.Fila) + " " + std::to_string(hasta.Columna);
        } else {
            const std::optional<int> opcion = OpcionDeCelda(c.at(1));
            salida = opcion ? "option " + std::to_string(*opcion) : "no option";
        }
        acta.Fila(caso.texto, salida);
    }
    acta.Comparar("ponderacion/reglas_pesos.txt");
    EXPECT_FALSE(CeldaEditableSaaty(2, 3, 1, 1)) << "a set of one has nothing to type in";
}

// The set of three criteria A, B, C of one requirement, opened in the weights window.
class VentanaPesosPrueba : public pruebas::PruebaSesion {
protected:
    VentanaPesosPrueba() {
        using namespace pruebas;
        sesion().modelo = ModeloCon(
            {Requerimiento("R", {Criterio("A", {Indicador("x")}), Criterio("B", {Indicador("y")}),
                                 Criterio("C", {Indicador("z")})})});
        edicion.Direccion = {1, ValorLibre(), ValorLibre()};
        InicializarRejillaDirecto(sesion().modelo, edicion, directo);
        LlenarPorcentajesDirecto(edicion.PuntuacionesDirecto, edicion.PorcentajesDirecto, directo);
        InicializarRejillaSaaty(sesion(), edicion, saaty);
    }
    NodoCriterio& Nodo(int c) { return sesion().modelo.Requerimientos(1).Criterios(c); }
    Confirmacion Teclear(int fila, int columna, const std::string& texto) {
        return ConfirmarSaaty(sesion(), edicion, {fila, columna}, texto, saaty);
    }

    EdicionPesos edicion;
    RejillaMemoria saaty;
    RejillaMemoria directo;
};

TEST_F(VentanaPesosPrueba, ACommitInTheMatrixStoresTheTextAndItsMirrorAndRecomputes) {
    ASSERT_EQ(Teclear(1, 2, "3"), Confirmacion::Introducida);
    ASSERT_EQ(Teclear(3, 1, "0.5"), Confirmacion::Introducida) << "below the diagonal too";
    ASSERT_EQ(Teclear(2, 3, "1.5"), Confirmacion::Introducida);
    EXPECT_TRUE(edicion.ModificadoAHP);
    EXPECT_FALSE(edicion.ModificadoDirecto);
    const Matriz<ValorLibre>& m = sesion().MatrizSaaty;
    EXPECT_EQ(m(1, 2), ValorLibre("3")) << "the typed text is kept as text";
    EXPECT_EQ(m(2, 1), ValorLibre(1.0 / 3));
    EXPECT_EQ(m(3, 1), ValorLibre("0.5"));
    EXPECT_EQ(m(1, 3), ValorLibre(2.0));
    EXPECT_EQ(saaty.Texto(1, 2), "3.00");
    EXPECT_EQ(saaty.Texto(2, 1), "0.33");
    EXPECT_EQ(saaty.Texto(1, 3), "2.00");
    EXPECT_EQ(saaty.Texto(3, 2), "0.67");
    // The weights and the ratio of the whole matrix as it now stands.
    Arreglo<ValorLibre> pesos;
    double razon = -1;
    ASSERT_TRUE(CalcularPesos(m, pesos, razon));
    EXPECT_EQ(std::pair(sesion().PesosEdicion, edicion.Consistencia),
              std::pair(pesos, ValorLibre(razon)));
}

TEST_F(VentanaPesosPrueba, ZeroNegativeEmptyAndNoNumberInTheMatrix) {
    const char* const nombres[] = {"stored", "blanked", "refused", "discarded"};
    pruebas::Acta acta;
    for (const char* texto : {"0", "-2", "0.0e5", "1e", "+", "1e999", ""}) {
        ASSERT_EQ(Teclear(1, 2, "4"), Confirmacion::Introducida);
        edicion.ModificadoAHP = false;
        const std::string pesos = saaty.Texto(1, 4) + saaty.Texto(2, 4);
        const ValorLibre razon = edicion.Consistencia;
        const Confirmacion resultado = Teclear(1, 2, texto);
        acta.Fila(std::string("'") + texto + "'",
                  std::string(nombres[static_cast<int>(resultado)]) +
                      (edicion.ModificadoAHP ? ", typed in" : "") + ", cells '" +
                      saaty.Texto(1, 2) + "' '" + saaty.Texto(2, 1) + "'");
        EXPECT_EQ(sesion().MatrizSaaty(1, 2), ValorLibre("4")) << "the matrix keeps " << texto;
        EXPECT_EQ(sesion().MatrizSaaty(2, 1), ValorLibre(0.25));
        EXPECT_EQ(saaty.Texto(1, 4) + saaty.Texto(2, 4), pesos);
        EXPECT_EQ(edicion.Consistencia, razon);
    }
    acta.Comparar("ponderacion/confirmar_saaty.txt");
    EXPECT_EQ(acta.vistos.at(0).icono, Icono::Informacion);
}

// Each step types a text into a cell of the direct grid; the grid's score and percentage
// columns and the scores kept after it.
TEST_F(VentanaPesosPrueba, ADirectCommitEntersTheRowsScoreWhicheverColumnWasTyped) {
    pruebas::Acta acta;
    for (const pruebas::Caso& caso : pruebas::Casos("ponderacion/confirmar_directo.txt")) {
        const Celda celda{std::stoi(caso.campos.at(0)), std::stoi(caso.campos.at(1))};
        std::string salida = ConfirmarDirecto(edicion, celda, caso.campos.at(2), directo)
                                 ? "percentages made"
                                 : "nothing changed";
        for (int columna = 1; columna <= 2; ++columna) {
            salida += columna == 1 ? "; scores" : "; percentages";
            for (int fila = 1; fila <= 4; ++fila) {
                salida += " '" + directo.Texto(fila, columna) + "'";
            }
        }
        salida += "; kept";
        for (const ValorLibre& puntuacion : edicion.PuntuacionesDirecto) {
            salida += " '" + puntuacion.Texto() + "'";
        }
        acta.Fila(caso.texto, salida);
    }
    acta.Comparar("ponderacion/confirmar_directo.txt");
    EXPECT_TRUE(edicion.ModificadoDirecto);
    EXPECT_EQ(edicion.PuntuacionesDirecto(1), ValorLibre(-4.0)) << "kept as a number";
}

TEST_F(VentanaPesosPrueba, TheTooltipIsTheTextOfACellThatIsNotFixed) {
    ASSERT_EQ(Teclear(1, 3, "7"), Confirmacion::Introducida);
    const std::pair<Celda, std::string> casos[] = {
        {{1, 3}, "7.00"}, {{3, 1}, "0.14"}, {{0, 1}, ""}, {{1, 0}, ""},
        {{2, 2}, "1"},    {{4, 1}, ""},     {{1, 5}, ""}, {{-1, 1}, ""},
    };
    for (const auto& [celda, texto] : casos) {
        EXPECT_EQ(AyudaCelda(saaty, celda.Fila, celda.Columna), texto)
            << celda.Fila << "," << celda.Columna;
    }
}

TEST(EscalaSaaty, EighteenOptionsWithTheirTagsAndValues) {
    std::string etiquetas;
    for (int k = 0; k < kOpcionesSaaty; ++k) {
        etiquetas += EtiquetaOpcionSaaty(k) + " ";
        EXPECT_DOUBLE_EQ(ValorOpcionSaaty(k).Numero(), k < 9 ? k + 1.0 : 1.0 / (k - 8)) << k;
    }
    EXPECT_EQ(etiquetas, "1 2 3 4 5 6 7 8 9 1 0.5 0.333333333333333 0.25 0.2 0.166666666666667 "
                         "0.142857142857143 0.125 0.111111111111111 ");
    // The captions and words of the options are in the scale window's golden dump.
}

TEST_F(VentanaPesosPrueba, TheScaleStoresAnIntegerOrARealAndItsMirror) {
    AceptarOpcionSaaty(sesion(), {1, 2}, 2, saaty);
    EXPECT_EQ(sesion().MatrizSaaty(1, 2), ValorLibre(3));
    EXPECT_EQ(sesion().MatrizSaaty(2, 1), ValorLibre(1.0 / 3));
    EXPECT_EQ(saaty.Texto(1, 2), "3.00");
    EXPECT_EQ(saaty.Texto(2, 1), "0.33");
    AceptarOpcionSaaty(sesion(), {1, 3}, 9, saaty); // "1/1"
    EXPECT_EQ(sesion().MatrizSaaty(1, 3), ValorLibre(1.0));
    EXPECT_EQ(sesion().MatrizSaaty(3, 1), ValorLibre(1.0));
    AceptarOpcionSaaty(sesion(), {2, 3}, 11, saaty); // "1/3"
    EXPECT_EQ(saaty.Texto(2, 3), "0.33");
    EXPECT_EQ(saaty.Texto(3, 2), "3.00");
    EXPECT_FALSE(edicion.ModificadoAHP) << "the scale is no typed edit";
}

TEST(Intermitencia, TheCellTogglesOncePerSecond) {
    EXPECT_EQ(ColorParpadeo(ColorRojoClaro), ColorBlanco);
    EXPECT_EQ(ColorParpadeo(ColorBlanco), ColorRojoClaro);
    EXPECT_EQ(ColorParpadeo(ColorAmarilloClaro), ColorRojoClaro);
    Intermitencia reloj;
    const std::pair<int, bool> tics[] = {{7, true},  {7, false}, {7, false}, {8, true},
                                         {8, false}, {0, true},  {59, true}, {59, false}};
    for (const auto& [segundo, cambia] : tics) {
        EXPECT_EQ(reloj.Tic(segundo), cambia) << segundo;
    }
}

TEST_F(VentanaPesosPrueba, PerfectConsistencyIsRefusedWithoutTheWholeFirstRow) {
    mensajes.Esperar("VADRO PROGRAMADOR: consistencia perfecta",
                     "Al menos uno de los valores de la primera fila es cero o está vacío. No es "
                     "posible calcular la consistencia perfecta!!");
    sesion().MatrizSaaty(1, 3) = ValorLibre();
    EXPECT_FALSE(ConsistenciaPerfectaPosible(sesion().MatrizSaaty));
    sesion().MatrizSaaty(1, 3) = 5;
    sesion().MatrizSaaty(2, 3) = ValorLibre();
    EXPECT_TRUE(ConsistenciaPerfectaPosible(sesion().MatrizSaaty)) << "only the first row counts";

    mensajes.Esperar("VADRO PROGRAMADOR: Consistencia perfecta",
                     "Desea traspasar los valores hallados a la matriz de pesos?\nSe perderán los "
                     "valores introducidos inicialmente.",
                     Respuesta::No);
    EXPECT_FALSE(ConfirmarTraspaso());
}

// Each case: the method on show, the ratio, whether a score is missing, the answer.
TEST_F(VentanaPesosPrueba, AcceptanceAsksByTheMethodOnShowAndWritesBoth) {
    pruebas::Acta acta;
    for (const pruebas::Caso& caso : pruebas::Casos("ponderacion/aceptar_pesos.txt")) {
        const MetodoCalculo visible = caso.campos.at(0) == "matrix" ? CalculoSaaty : CalculoDirecto;
        const ValorLibre razon =
            caso.campos.at(1).empty() ? ValorLibre() : ValorLibre(std::stod(caso.campos[1]));
        const bool puntuaciones = caso.campos.at(2) != "score-missing";
        for (int c = 1; c <= 3; ++c) {
            Nodo(c).Peso = ValorLibre();
            Nodo(c).Calculo = visible == CalculoSaaty ? CalculoDirecto : CalculoSaaty;
        }
        sesion().modelo.Modificado = false;
        edicion.Consistencia = razon;
        for (int i = 1; i <= 3; ++i) {
            ConfirmarDirecto(edicion, {i, 1}, puntuaciones || i != 2 ? "1" : "", directo);
        }
        acta.respuestas = {RespuestaDe(caso.campos.back())};
        const bool escrito = AceptarPesos(sesion(), edicion, visible, directo);
        acta.Fila(caso.texto, escrito ? "written" : "kept");
        EXPECT_EQ(sesion().modelo.Modificado, escrito);
        EXPECT_EQ(Nodo(1).Calculo == visible, escrito);
        if (escrito) {
            EXPECT_EQ(Nodo(3).PesoAuxiliar, razon);
            EXPECT_EQ(Nodo(2).Directo, puntuaciones ? ValorLibre(1.0) : ValorLibre());
            const ValorLibre esperado =
                visible == CalculoSaaty ? sesion().PesosEdicion(1) : edicion.PorcentajesDirecto(1);
            EXPECT_EQ(Nodo(1).Peso, esperado);
        }
    }
    acta.Comparar("ponderacion/aceptar_pesos.txt");
}

// Each case: the grid on show, the grids typed in, the answer; then the cancel button's question.
TEST_F(VentanaPesosPrueba, TheUnloadWarningsHangOnTheOtherGridsFlag) {
    pruebas::Acta acta;
    for (const pruebas::Caso& caso : pruebas::Casos("ponderacion/descargar_pesos.txt")) {
        const std::vector<std::string>& c = caso.campos;
        acta.respuestas = {RespuestaDe(c.back())};
        if (c.at(0) == "cancel") {
            acta.Fila(caso.texto, ConfirmarCancelacion() ? "leaves" : "stays");
            continue;
        }
        edicion.ModificadoAHP = std::find(c.begin(), c.end(), "matrix-typed") != c.end();
        edicion.ModificadoDirecto = std::find(c.begin(), c.end(), "scores-typed") != c.end();
        const bool sale =
            PuedeDescargarPesos(edicion, c[0] == "matrix" ? CalculoSaaty : CalculoDirecto);
        acta.Fila(caso.texto, sale ? "unloads" : "stays");
    }
    acta.Comparar("ponderacion/descargar_pesos.txt");
    EXPECT_EQ(acta.vistos.back().icono, Icono::Pregunta);
}

} // namespace
} // namespace vadro
