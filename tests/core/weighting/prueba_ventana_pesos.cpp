#include "core/core/formato_numero.h"
#include "core/weighting/ventana_pesos.h"
#include "referencia_ahp.h"
#include "soporte/acta.h"
#include "soporte/modelo_sano.h"
#include "soporte/prueba_sesion.h"

#include <gtest/gtest.h>

namespace vadro {
namespace {

TEST(CeldasPesos, OnlyCellsOffTheDiagonalAndBeforeTheWeightsTakeTheInput) {
    // A set of three: the matrix grid is 4 x 5, the direct grid 5 x 3.
    struct Caso {
        int fila, columna;
        bool saaty, escala, directo;
    };
    const Caso casos[] = {
        {0, 0, false, false, false}, {0, 1, false, false, false}, {1, 0, false, false, false},
        {1, 1, false, false, true},  {1, 2, true, true, true},    {1, 3, true, true, false},
        {2, 1, true, false, true},   {3, 1, true, false, true},   {3, 2, true, false, true},
        {2, 3, true, true, false},   {3, 3, false, false, false}, {1, 4, false, false, false},
        {2, 2, false, false, true},  {4, 1, false, false, false}, {3, 4, false, false, false},
    };
    for (const Caso& c : casos) {
        EXPECT_EQ(CeldaEditableSaaty(4, 5, c.fila, c.columna), c.saaty) << c.fila << c.columna;
        EXPECT_EQ(CeldaConEscala(5, c.fila, c.columna), c.escala) << c.fila << c.columna;
        EXPECT_EQ(CeldaEditableDirecto(5, 3, c.fila, c.columna), c.directo) << c.fila << c.columna;
    }
    EXPECT_FALSE(CeldaEditableSaaty(2, 3, 1, 1)) << "a set of one has nothing to type in";
    EXPECT_FALSE(CeldaEditableDirecto(5, 3, 4, 1)) << "the total row";
}

TEST(CeldasPesos, TheKeysOfTheInputAndWhereTheArrowsLeaveTheCell) {
    const std::pair<TeclaEntrada, AccionTecla> acciones[] = {
        {TeclaEntrada::Escape, AccionTecla::Ocultar},
        {TeclaEntrada::Retorno, AccionTecla::Confirmar},
        {TeclaEntrada::Izquierda, AccionTecla::Mover},
        {TeclaEntrada::Arriba, AccionTecla::Mover},
        {TeclaEntrada::Derecha, AccionTecla::Mover},
        {TeclaEntrada::Abajo, AccionTecla::Mover},
        {TeclaEntrada::Digito, AccionTecla::Escribir},
        {TeclaEntrada::Separador, AccionTecla::Escribir},
        {TeclaEntrada::Otra, AccionTecla::Descartar},
    };
    for (const auto& [tecla, accion] : acciones) {
        EXPECT_EQ(AccionDeTecla(tecla), accion) << static_cast<int>(tecla);
    }
    struct Flecha {
        TeclaEntrada tecla;
        Celda desde, hasta;
    };
    // A grid of 4 x 5 (rows 1..3, columns 1..4 beyond the fixed ones).
    const Flecha flechas[] = {
        {TeclaEntrada::Izquierda, {2, 2}, {2, 1}}, {TeclaEntrada::Izquierda, {2, 1}, {2, 1}},
        {TeclaEntrada::Arriba, {2, 3}, {1, 3}},    {TeclaEntrada::Arriba, {1, 3}, {1, 3}},
        {TeclaEntrada::Derecha, {1, 3}, {1, 4}},   {TeclaEntrada::Derecha, {1, 4}, {1, 4}},
        {TeclaEntrada::Abajo, {2, 2}, {3, 2}},     {TeclaEntrada::Abajo, {3, 2}, {3, 2}},
        {TeclaEntrada::Retorno, {2, 2}, {2, 2}},
    };
    for (const Flecha& f : flechas) {
        EXPECT_EQ(CeldaTrasFlecha(f.tecla, f.desde, 4, 5), f.hasta)
            << static_cast<int>(f.tecla) << " from " << f.desde.Fila << "," << f.desde.Columna;
    }
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

    // Against the exact arithmetic in fractions.
    using pruebas::Fraccion;
    const auto ref = pruebas::CalcularReferencia({{Fraccion(1), Fraccion(3), Fraccion(2)},
                                                  {Fraccion(1, 3), Fraccion(1), Fraccion(3, 2)},
                                                  {Fraccion(1, 2), Fraccion(2, 3), Fraccion(1)}});
    for (int i = 1; i <= 3; ++i) {
        EXPECT_EQ(saaty.Texto(i, 4), ref.pesos[static_cast<std::size_t>(i - 1)].Texto00());
    }
    const double lambda = Redondeado00(ref.lambda.Doble());
    EXPECT_EQ(Formato00(edicion.Consistencia), Formato00((lambda - 3) / 2 / 0.58));
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

TEST_F(VentanaPesosPrueba, ADirectCommitEntersTheRowsScoreWhicheverColumnWasTyped) {
    EXPECT_TRUE(ConfirmarDirecto(edicion, {1, 1}, "2", directo));
    EXPECT_TRUE(ConfirmarDirecto(edicion, {3, 2}, "6", directo)) << "typed in the percentages";
    EXPECT_TRUE(edicion.ModificadoDirecto);
    EXPECT_EQ(edicion.PuntuacionesDirecto(1), ValorLibre(2.0));
    EXPECT_EQ(edicion.PuntuacionesDirecto(3), ValorLibre(6.0));
    EXPECT_EQ(directo.Texto(1, 1), "2.00");
    EXPECT_EQ(directo.Texto(3, 1), "") << "the score column is not redrawn";
    EXPECT_EQ(directo.Texto(3, 2), "75.00") << "the percentages are made again";
    EXPECT_EQ(directo.Texto(4, 1), "8.00");
    EXPECT_EQ(directo.Texto(4, 2), "100.00 %");
    EXPECT_EQ(directo.Texto(2, 2), "");

    EXPECT_FALSE(ConfirmarDirecto(edicion, {1, 1}, "1e", directo));
    EXPECT_EQ(directo.Texto(1, 1), "2.00") << "no number changes nothing";
    EXPECT_TRUE(ConfirmarDirecto(edicion, {1, 1}, "-4", directo)) << "no test of sign";
    EXPECT_EQ(directo.Texto(4, 1), "2.00");
    EXPECT_TRUE(ConfirmarDirecto(edicion, {3, 1}, "", directo));
    EXPECT_EQ(edicion.PuntuacionesDirecto(3), ValorLibre());
    EXPECT_EQ(directo.Texto(3, 1), "");
    EXPECT_EQ(directo.Texto(1, 2), "100.00") << "a sum of zero or less gives every row the whole";
    EXPECT_EQ(directo.Texto(4, 2), "");
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
    EXPECT_EQ(std::string(EscalaSaaty()[11].Rotulo), "1/3");
    EXPECT_EQ(std::string(EscalaSaaty()[11].Palabras), "Moderadamente menos importante");
    EXPECT_EQ(std::string(EscalaSaaty()[12].Palabras), "Intermedio entre 1/3 y 1/ 5");
    EXPECT_EQ(std::string(EscalaSaaty()[8].Palabras), "Extremadamente más importante");
}

TEST(EscalaSaaty, TheOptionFoundFromTheCellsShownText) {
    const std::pair<std::string, std::optional<int>> casos[] = {
        {"", 0},
        {"1", 0},
        {"3", 2},
        {"0.5", 10},
        {"0.25", 12},
        {"3.00", {}},
        {"0.33", {}},
        {"0.50", {}},
        {"9", 8},
        {"10", {}},
        {"0.111111111111111", 17},
    };
    for (const auto& [texto, opcion] : casos) {
        EXPECT_EQ(OpcionDeCelda(texto), opcion) << texto;
    }
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

TEST_F(VentanaPesosPrueba, AcceptanceAsksByTheMethodOnShowAndWritesBoth) {
    struct Caso {
        MetodoCalculo visible;
        ValorLibre razon;
        bool puntuaciones; // every score given
        Respuesta respuesta;
    };
    const Caso casos[] = {
        {CalculoSaaty, 0.05, false, Respuesta::Aceptar},
        {CalculoSaaty, 0.1, false, Respuesta::Aceptar},
        {CalculoSaaty, 0.2, true, Respuesta::Si},
        {CalculoSaaty, 0.2, true, Respuesta::No},
        {CalculoSaaty, ValorLibre(), true, Respuesta::No},
        {CalculoDirecto, 0.9, true, Respuesta::Aceptar},
        {CalculoDirecto, 0.0, false, Respuesta::No},
        {CalculoDirecto, 0.0, false, Respuesta::Si},
    };
    pruebas::Acta acta;
    for (const Caso& caso : casos) {
        for (int c = 1; c <= 3; ++c) {
            Nodo(c).Peso = ValorLibre();
            Nodo(c).Calculo = caso.visible == CalculoSaaty ? CalculoDirecto : CalculoSaaty;
        }
        sesion().modelo.Modificado = false;
        edicion.Consistencia = caso.razon;
        for (int i = 1; i <= 3; ++i) {
            ConfirmarDirecto(edicion, {i, 1}, caso.puntuaciones || i != 2 ? "1" : "", directo);
        }
        acta.respuestas = {caso.respuesta};
        const bool escrito = AceptarPesos(sesion(), edicion, caso.visible, directo);
        acta.Fila(std::string(caso.visible == CalculoSaaty ? "matrix" : "direct") + ", ratio '" +
                      Formato00(caso.razon) + "'" + (caso.puntuaciones ? "" : ", a score missing"),
                  escrito ? "written" : "kept");
        EXPECT_EQ(sesion().modelo.Modificado, escrito);
        EXPECT_EQ(Nodo(1).Calculo == caso.visible, escrito);
        if (escrito) {
            EXPECT_EQ(Nodo(3).PesoAuxiliar, caso.razon);
            EXPECT_EQ(Nodo(2).Directo, caso.puntuaciones ? ValorLibre(1.0) : ValorLibre());
            const ValorLibre esperado = caso.visible == CalculoSaaty
                                            ? sesion().PesosEdicion(1)
                                            : edicion.PorcentajesDirecto(1);
            EXPECT_EQ(Nodo(1).Peso, esperado);
        }
    }
    acta.Comparar("ponderacion/aceptar_pesos.txt");
}

TEST_F(VentanaPesosPrueba, TheUnloadWarningsHangOnTheOtherGridsFlag) {
    struct Caso {
        MetodoCalculo visible;
        bool ahp, directa;
        Respuesta respuesta;
    };
    const Caso casos[] = {
        {CalculoSaaty, false, false, Respuesta::Aceptar},
        {CalculoSaaty, true, false, Respuesta::Aceptar},
        {CalculoSaaty, false, true, Respuesta::No},
        {CalculoSaaty, true, true, Respuesta::Si},
        {CalculoDirecto, false, true, Respuesta::Aceptar},
        {CalculoDirecto, true, false, Respuesta::No},
        {CalculoDirecto, true, true, Respuesta::Si},
    };
    pruebas::Acta acta;
    for (const Caso& caso : casos) {
        edicion.ModificadoAHP = caso.ahp;
        edicion.ModificadoDirecto = caso.directa;
        acta.respuestas = {caso.respuesta};
        const bool sale = PuedeDescargarPesos(edicion, caso.visible);
        acta.Fila(std::string(caso.visible == CalculoSaaty ? "matrix" : "direct") + " shown" +
                      (caso.ahp ? ", matrix typed in" : "") +
                      (caso.directa ? ", scores typed in" : ""),
                  sale ? "unloads" : "stays");
    }
    acta.respuestas = {Respuesta::No};
    acta.Fila("cancel", ConfirmarCancelacion() ? "leaves" : "stays");
    acta.Comparar("ponderacion/descargar_pesos.txt");
    EXPECT_EQ(acta.vistos.back().icono, Icono::Pregunta);
}

} // namespace
} // namespace vadro
