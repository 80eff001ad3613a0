// The editor's table grids: optional indicators and scoring elements.
#include "core/files/seccion_funcion.h"
#include "core/functions/editor_funcion.h"
#include "soporte/guion_dialogos.h"
#include "soporte/modelo_sano.h"
#include "soporte/prueba_sesion.h"

#include <gtest/gtest.h>

namespace vadro {
namespace {

using Filas = std::vector<std::vector<std::string>>;

const std::string kTitulo = "VADRO PROGRAMADOR";
const std::string kTituloError = "VADRO PROGRAMADOR: error";
const std::string kNumeroValido = "Debe introducir un numero válido.";
const std::string kSinOptativos = "Introduzca primero el número de elementos optativos deseado.";

class Tablas : public pruebas::PruebaSesion {
protected:
    Tablas() {
        sesion().MostrarAvisoFuncionValor = false;
        editor.ConfirmarReduccion = [this] {
            ++confirmaciones;
            return confirmar;
        };
    }
    // Loads the editor on a record, as the window opens.
    void Cargar(const FuncionValor& funcion) {
        registro = funcion;
        editor.Cargar(registro);
    }
    // Types a text into a cell through its floating input and leaves the cell.
    void Escribir(Tabla tabla, int fila, int columna, const std::string& texto) {
        editor.EntrarCelda(tabla, fila, columna);
        ASSERT_TRUE(editor.AbrirCelda(tabla));
        editor.SalirCelda(tabla, texto);
    }
    // Counts a grid up (or down) to `n` with its up-down control.
    void Contar(Tabla tabla, int n) {
        while (editor.TablaDe(tabla).Cuenta < n) {
            editor.CambiarCuenta(tabla, editor.TablaDe(tabla).Cuenta + 1);
        }
        while (editor.TablaDe(tabla).Cuenta > n) {
            editor.CambiarCuenta(tabla, editor.TablaDe(tabla).Cuenta - 1);
        }
    }

    EditorFuncion editor;
    FuncionValor registro;
    int confirmaciones = 0;
    bool confirmar = true;
};

TEST_F(Tablas, AFreshEditorOffersTwoOptionalIndicatorsOneSelectableAndNoScoringElement) {
    Cargar(pruebas::Continua());
    EXPECT_EQ(editor.Optativos.Cuenta, 2);
    EXPECT_EQ(editor.Optativos.Filas, (Filas{{""}, {""}}));
    EXPECT_EQ(editor.Seleccionables, 1);
    EXPECT_EQ(editor.MaximoSeleccionables, 1);
    EXPECT_EQ(sesion().FuncionesEdicion.Tamano(), 2);
    EXPECT_EQ(editor.Booleanos.Filas, (Filas{{" -", " -", " -", " -"}}));
    EXPECT_EQ(editor.Numericos.Filas, (Filas{{" -", " -", " -", " -", " -", " -"}}));
    EXPECT_EQ(editor.Optativos.Cabeceras,
              (std::vector<std::string>{"Descripción del indicador optativo"}));
    EXPECT_EQ(editor.Booleanos.Cabeceras,
              (std::vector<std::string>{"Id", "Enunciado / Descripción", "Puntuación para el NO",
                                        "Puntuación para el SI"}));
    EXPECT_EQ(editor.Numericos.Cabeceras,
              (std::vector<std::string>{"Id", "Enunciado / Descripción", "Mínimo", "Máximo",
                                        "Puntuación del Mínimo", "Puntuación del Máximo"}));
}

TEST_F(Tablas, CountsGrowRenumberAndShrinkFromTheEndOnlyWhenConfirmed) {
    struct Paso {
        Tabla tabla;
        int n;
        bool confirma;
        Filas filas;
        int cuenta;
        int preguntas; // confirmations asked so far
    };
    const std::vector<std::string> b1{"1", "", "", ""};
    const std::vector<std::string> b2{"2", "", "", ""};
    const std::vector<std::string> b3{"3", "", "", ""};
    const Paso pasos[] = {
        {Tabla::Booleanos, 1, true, {b1}, 1, 0},
        {Tabla::Booleanos, 3, true, {b1, b2, b3}, 3, 0},
        {Tabla::Booleanos, 2, false, {b1, b2, b3}, 3, 1},
        {Tabla::Booleanos, 2, true, {b1, b2}, 2, 2},
        {Tabla::Booleanos, 0, true, {{" -", " -", " -", " -"}}, 0, 3},
        {Tabla::Booleanos, 2, true, {b1, b2}, 2, 3},
        {Tabla::Numericos, 1, true, {{"1", "", "", "", "", ""}}, 1, 3},
        {Tabla::Numericos, 0, false, {{"1", "", "", "", "", ""}}, 1, 4},
        {Tabla::Optativos, 3, true, {{""}, {""}, {""}}, 3, 4},
        {Tabla::Optativos, 1, true, {{""}}, 1, 5},
        {Tabla::Optativos, 0, true, {{" -"}}, 0, 6},
    };
    Cargar(FuncionValor{});
    for (const Paso& paso : pasos) {
        confirmar = paso.confirma;
        editor.CambiarCuenta(paso.tabla, paso.n);
        const TablaEdicion& t = editor.TablaDe(paso.tabla);
        EXPECT_EQ(t.Filas, paso.filas) << static_cast<int>(paso.tabla) << " to " << paso.n;
        EXPECT_EQ(t.Cuenta, paso.cuenta) << static_cast<int>(paso.tabla) << " to " << paso.n;
        EXPECT_EQ(confirmaciones, paso.preguntas) << static_cast<int>(paso.tabla) << paso.n;
    }
    editor.Aviso = false;
    editor.CambiarCuenta(Tabla::Booleanos, 0);
    EXPECT_EQ(confirmaciones, 6) << "the box of the dialog switched the question off";
    EXPECT_EQ(editor.Booleanos.Cuenta, 0);
}

TEST_F(Tablas, TheOptionalCountKeepsTheWorkingFunctionsAndBoundsTheSelectableCount) {
    Cargar(FuncionValor{});
    sesion().FuncionesEdicion(2) = pruebas::DeEscalones<FuncionOptativo>();
    struct Paso {
        int n;
        int funciones;
        int maximo;
        int seleccionables;
        bool segundaGuardada;
    };
    const Paso pasos[] = {
        {4, 4, 3, 1, true},  {2, 2, 1, 1, true},  {1, 1, 0, 0, false},
        {0, 1, 0, 0, false}, {3, 3, 2, 0, false},
    };
    editor.CambiarCuenta(Tabla::Optativos, 4);
    for (const Paso& paso : pasos) {
        editor.CambiarCuenta(Tabla::Optativos, paso.n);
        EXPECT_EQ(sesion().FuncionesEdicion.Tamano(), paso.funciones) << paso.n;
        EXPECT_EQ(editor.MaximoSeleccionables, paso.maximo) << paso.n;
        EXPECT_EQ(editor.Seleccionables, paso.seleccionables) << paso.n;
        EXPECT_EQ(paso.funciones >= 2 &&
                      sesion().FuncionesEdicion(2) == pruebas::DeEscalones<FuncionOptativo>(),
                  paso.segundaGuardada)
            << paso.n;
    }
    for (const auto& [pedido, queda] : {std::pair{5, 2}, {-1, 0}, {1, 1}}) {
        editor.CambiarSeleccionables(pedido);
        EXPECT_EQ(editor.Seleccionables, queda) << pedido;
    }
    EXPECT_EQ(confirmaciones, 3) << "every reduction asked";
}

TEST_F(Tablas, AGridWithoutElementsNamesWhatToCountFirst) {
    struct Caso {
        Tabla tabla;
        const char* texto;
    };
    const Caso casos[] = {
        {Tabla::Optativos, "Introduzca primero el número de elementos optativos deseado."},
        {Tabla::Booleanos, "Introduzca primero el número de elementos booleanos deseado."},
        {Tabla::Numericos, "Introduzca primero el número de elementos numéricos deseado."},
    };
    Cargar(FuncionValor{});
    editor.Aviso = false;
    for (const Caso& caso : casos) {
        editor.CambiarCuenta(caso.tabla, 0);
        editor.EntrarCelda(caso.tabla, 1, 1);
        EXPECT_EQ(editor.TablaDe(caso.tabla).FilaActual, 0) << "the \" -\" row is no cell";
        mensajes.Esperar(kTitulo, caso.texto);
        EXPECT_FALSE(editor.AbrirCelda(caso.tabla));
        EXPECT_FALSE(editor.TablaDe(caso.tabla).EntradaAbierta);
    }
    EXPECT_TRUE(mensajes.Completo());
    editor.CambiarCuenta(Tabla::Booleanos, 2);
    EXPECT_FALSE(editor.AbrirCelda(Tabla::Booleanos)) << "no cell entered yet";
    editor.EntrarCelda(Tabla::Booleanos, 2, 0);
    EXPECT_FALSE(editor.AbrirCelda(Tabla::Booleanos)) << "the column Id takes no input";
    editor.EntrarCelda(Tabla::Booleanos, 2, 3);
    EXPECT_TRUE(editor.AbrirCelda(Tabla::Booleanos));
    editor.EntrarCelda(Tabla::Optativos, 1, 1); // no cell while the count is 0
    editor.CambiarCuenta(Tabla::Optativos, 1);
    editor.EntrarCelda(Tabla::Optativos, 1, 0);
    EXPECT_TRUE(editor.AbrirCelda(Tabla::Optativos)) << "the description is column 0";
}

TEST_F(Tablas, LeavingACellTakesTextsAsTheyStandAndNumbersInPlainForm) {
    struct Caso {
        Tabla tabla;
        int columna;
        const char* texto;
        const char* queda;
        bool mensaje;
    };
    const Caso casos[] = {
        {Tabla::Booleanos, 1, " ¿Licencia? ", " ¿Licencia? ", false},
        {Tabla::Booleanos, 1, "", "", false},
        {Tabla::Booleanos, 2, "2.50", "2.5", false},
        {Tabla::Booleanos, 3, " -3 ", "-3", false},
        {Tabla::Booleanos, 3, "1,5", "1.5", false},
        {Tabla::Booleanos, 3, "1E3", "1000", false},
        {Tabla::Booleanos, 2, "x", "7", true},
        {Tabla::Booleanos, 2, "", "", false},
        {Tabla::Numericos, 1, "12", "12", false},
        {Tabla::Numericos, 2, "10", "10", false},
        {Tabla::Numericos, 3, "5", "5", false},
        {Tabla::Numericos, 4, "-0.25", "-0.25", false},
        {Tabla::Numericos, 5, "5 kg", "7", true},
        {Tabla::Numericos, 5, "", "", false},
        {Tabla::Optativos, 0, " Caudal ", " Caudal ", false},
        {Tabla::Optativos, 0, "12x", "12x", false},
    };
    Cargar(FuncionValor{});
    Contar(Tabla::Booleanos, 1);
    Contar(Tabla::Numericos, 1);
    for (const Caso& caso : casos) {
        editor.TablaDe(caso.tabla).Celda(1, caso.columna) = "7";
        if (caso.mensaje) {
            mensajes.Esperar(kTituloError, kNumeroValido);
        }
        Escribir(caso.tabla, 1, caso.columna, caso.texto);
        const TablaEdicion& t = editor.TablaDe(caso.tabla);
        EXPECT_EQ(t.Celda(1, caso.columna), caso.queda) << caso.texto;
        EXPECT_FALSE(t.EntradaAbierta) << "the input is hidden in every case";
    }
    EXPECT_EQ(editor.Numericos.Celda(1, 0), "1") << "the Id stays";
}

TEST_F(Tablas, TheKeysOfTheFloatingInputCommitMoveOrHoldARefusedNumber) {
    struct Caso {
        Tabla tabla;
        int fila;
        int columna;
        int tecla;
        const char* texto;
        AccionEntrada accion;
        int filaDespues;
        int columnaDespues;
        const char* celda; // the text of the starting cell afterwards
        bool abierta;
        bool mensaje;
    };
    using A = AccionEntrada;
    const Caso casos[] = {
        {Tabla::Numericos, 1, 2, 13, "3", A::Confirmada, 1, 2, "3", false, false},
        {Tabla::Numericos, 1, 2, 27, "3", A::Descartada, 1, 2, "old", false, false},
        {Tabla::Numericos, 1, 2, 37, "3", A::Movida, 1, 1, "3", false, false},
        {Tabla::Numericos, 1, 1, 37, "a", A::Movida, 1, 1, "a", false, false},
        {Tabla::Numericos, 1, 5, 39, "3", A::Movida, 1, 5, "3", false, false},
        {Tabla::Numericos, 1, 4, 39, "3", A::Movida, 1, 5, "3", false, false},
        {Tabla::Numericos, 2, 2, 40, "3", A::Movida, 2, 2, "3", false, false},
        {Tabla::Numericos, 1, 2, 40, "3", A::Movida, 2, 2, "3", false, false},
        {Tabla::Numericos, 2, 2, 38, "3", A::Movida, 1, 2, "3", false, false},
        {Tabla::Numericos, 1, 2, 38, "3", A::Movida, 1, 2, "3", false, false},
        {Tabla::Numericos, 1, 3, 40, "tres", A::Retenida, 1, 3, "old", true, true},
        {Tabla::Numericos, 1, 3, 13, "tres", A::Confirmada, 1, 3, "old", false, true},
        {Tabla::Numericos, 1, 3, 65, "tres", A::Ninguna, 1, 3, "old", true, false},
        {Tabla::Optativos, 1, 0, 37, "A", A::Movida, 1, 0, "A", false, false},
        {Tabla::Optativos, 1, 0, 39, "A", A::Movida, 1, 0, "A", false, false},
        {Tabla::Optativos, 1, 0, 40, "A", A::Movida, 2, 0, "A", false, false},
        {Tabla::Optativos, 2, 0, 40, "B", A::Movida, 2, 0, "B", false, false},
    };
    Cargar(FuncionValor{});
    Contar(Tabla::Numericos, 2);
    for (const Caso& caso : casos) {
        TablaEdicion& t = editor.TablaDe(caso.tabla);
        t.Celda(caso.fila, caso.columna) = "old";
        editor.EntrarCelda(caso.tabla, caso.fila, caso.columna);
        ASSERT_TRUE(editor.AbrirCelda(caso.tabla));
        if (caso.mensaje) {
            mensajes.Esperar(kTituloError, kNumeroValido);
        }
        const std::string donde = std::to_string(caso.tecla) + " at " + std::to_string(caso.fila) +
                                  "," + std::to_string(caso.columna);
        EXPECT_EQ(editor.TeclaEntrada(caso.tabla, caso.tecla, caso.texto), caso.accion) << donde;
        EXPECT_EQ(t.FilaActual, caso.filaDespues) << donde;
        EXPECT_EQ(t.ColumnaActual, caso.columnaDespues) << donde;
        EXPECT_EQ(t.Celda(caso.fila, caso.columna), caso.celda) << donde;
        EXPECT_EQ(t.EntradaAbierta, caso.abierta) << donde;
        t.EntradaAbierta = false;
    }
}

TEST_F(Tablas, OnlyTheCurrentCellOfTheOptionalGridIsColoured) {
    Cargar(FuncionValor{});
    Contar(Tabla::Booleanos, 2);
    EXPECT_EQ(editor.Optativos.Fondo(1, 0), kFondoCelda) << "no cell entered yet";
    editor.EntrarCelda(Tabla::Optativos, 2, 0);
    EXPECT_EQ(editor.Optativos.Fondo(2, 0), 0xC0C0FFU);
    EXPECT_EQ(editor.Optativos.Fondo(1, 0), 0xFFFFFFU);
    editor.EntrarCelda(Tabla::Optativos, 1, 0);
    EXPECT_EQ(editor.Optativos.Fondo(2, 0), kFondoCelda) << "left: white again";
    EXPECT_EQ(editor.Optativos.Fondo(1, 0), kFondoCeldaActual);
    editor.EntrarCelda(Tabla::Booleanos, 1, 2);
    EXPECT_EQ(editor.Booleanos.Fondo(1, 2), kFondoCelda) << "the scoring grids keep white";
    editor.CambiarCuenta(Tabla::Optativos, 0);
    EXPECT_EQ(editor.Optativos.Fondo(1, 0), kFondoCelda) << "the \" -\" row is never coloured";
}

TEST_F(Tablas, TheDrawingShowsTheChosenRowsFunctionAndTheDoubleClickNeedsARow) {
    Cargar(FuncionValor{});
    FuncionOptativo continua;
    static_cast<FuncionComun&>(continua) = pruebas::Continua();
    sesion().FuncionesEdicion(1) = continua;
    sesion().FuncionesEdicion(2) = pruebas::DeEscalones<FuncionOptativo>();
    mensajes.Esperar(kTitulo, "Seleccione primero un indicador en la tabla de indicadores.");
    EXPECT_EQ(editor.FilaOptativoAEditar(), 0);
    EXPECT_TRUE(editor.GraficaOptativo.Visibles().empty());
    for (int fila : {2, 1}) {
        editor.EntrarCelda(Tabla::Optativos, fila, 0);
        EXPECT_EQ(editor.GraficaOptativo, GraficarOptativo(sesion().FuncionesEdicion(fila)));
        EXPECT_FALSE(editor.GraficaOptativo.Visibles().empty()) << fila;
        EXPECT_EQ(editor.FilaOptativoAEditar(), fila);
    }
    editor.Optativos.Celda(1, 0) = "Caudal";
    EXPECT_EQ(editor.TituloOptativo("Definición de la función de valor - [Coste]", 1),
              "Definición de la función de valor - [Coste] - Función del indicador optativo "
              "Caudal");
    editor.CambiarCuenta(Tabla::Optativos, 0);
    EXPECT_TRUE(editor.GraficaOptativo.Visibles().empty()) << "the chosen row went";
    mensajes.Esperar(kTitulo, kSinOptativos);
    EXPECT_EQ(editor.FilaOptativoAEditar(), 0);
}

TEST_F(Tablas, OptionalIndicatorsAreReadWithTheirFallbacksAndWrittenBack) {
    struct Caso {
        const char* nombre;
        std::vector<std::string> nombres; // empty: the array is absent
        int16_t seleccionado;
        int cuenta;
        int seleccionables;
        int maximo;
        int funciones;
    };
    const Caso casos[] = {
        {"two", {"Caudal", "Presión"}, 1, 2, 1, 1, 2},
        {"selected 0 stays 0", {"Caudal", "Presión", "Nivel"}, 0, 3, 0, 2, 3},
        {"selected beyond the limit stays", {"Caudal", "Presión"}, 5, 2, 5, 1, 2},
        {"one", {"Caudal"}, 0, 1, 0, 0, 1},
        {"one without a name", {""}, 1, 0, 0, 0, 1},
        {"none", {}, 1, 0, 0, 0, 1},
    };
    for (const Caso& caso : casos) {
        FuncionValor f = pruebas::DeOptativos("I1C1R1");
        f.OptativoSeleccionado = caso.seleccionado;
        f.Optativos.Borrar();
        if (!caso.nombres.empty()) {
            f.Optativos.Redimensionar(static_cast<int>(caso.nombres.size()));
        }
        for (std::size_t i = 0; i < caso.nombres.size(); ++i) {
            auto& o = f.Optativos(static_cast<int>(i) + 1);
            o.Nombre = caso.nombres[i];
            o.Funcion = pruebas::DeEscalones<FuncionOptativo>();
            o.Funcion.Unidades = "u" + std::to_string(i);
        }
        EditorFuncion e;
        FuncionValor leido = f;
        e.Cargar(leido);
        EXPECT_TRUE(e.chkOptativos) << caso.nombre;
        EXPECT_EQ(e.Tipo, kTipoContinua) << caso.nombre;
        EXPECT_EQ(e.Optativos.Cuenta, caso.cuenta) << caso.nombre;
        EXPECT_EQ(e.Seleccionables, caso.seleccionables) << caso.nombre;
        EXPECT_EQ(e.MaximoSeleccionables, caso.maximo) << caso.nombre;
        EXPECT_EQ(sesion().FuncionesEdicion.Tamano(), caso.funciones) << caso.nombre;
        FuncionValor escrito;
        e.EscribirFuncion(escrito);
        EXPECT_EQ(escrito.Tipo, FuncionOptativos);
        EXPECT_EQ(escrito.OptativoSeleccionado, caso.seleccionables) << caso.nombre;
        if (caso.cuenta > 0) {
            EXPECT_EQ(escrito.Optativos, f.Optativos) << caso.nombre;
        } else {
            ASSERT_EQ(escrito.Optativos.Tamano(), 1) << caso.nombre;
            EXPECT_EQ(escrito.Optativos(1), IndicadorOptativo{})
                << "no optional indicator is written as one element without a name";
        }
        EXPECT_TRUE(escrito.Puntuaciones.Tamano() == 0 && escrito.Escalones.Tamano() == 0)
            << "nothing else is written";
    }
}

TEST_F(Tablas, ScoringElementsAreReadByTypeAndWrittenBooleansFirst) {
    FuncionValor f = pruebas::DePuntuacion();
    f.Puntuaciones.Redimensionar(4);
    f.Puntuaciones(1) = {PuntuacionNumerica, "Años", 10.0, 5.0, 0.5, 8.0};
    f.Puntuaciones(2) = {PuntuacionBooleana, "¿Licencia?", {}, {}, 0.0, 2.0};
    f.Puntuaciones(3) = {PuntuacionNumerica, "Horas", {}, 40.0, {}, 1.25};
    f.Puntuaciones(4) = {PuntuacionBooleana, "", {}, {}, -1.0, {}};
    Cargar(f);
    EXPECT_EQ(editor.Booleanos.Filas, (Filas{{"1", "¿Licencia?", "0", "2"}, {"2", "", "-1", ""}}));
    EXPECT_EQ(editor.Numericos.Filas,
              (Filas{{"1", "Años", "10", "5", "0.5", "8"}, {"2", "Horas", "", "40", "", "1.25"}}));
    EXPECT_EQ(editor.Booleanos.Cuenta, 2);
    EXPECT_EQ(editor.Numericos.Cuenta, 2);
    EXPECT_EQ(editor.Tipo, kTipoPuntuacion);
    EXPECT_FALSE(editor.PuntuacionVacia());

    ASSERT_TRUE(editor.Aceptar());
    ASSERT_EQ(registro.Puntuaciones.Tamano(), 4);
    EXPECT_EQ(registro.Tipo, FuncionPuntuacion);
    EXPECT_EQ(registro.Puntuaciones(1), f.Puntuaciones(2));
    EXPECT_EQ(registro.Puntuaciones(2), f.Puntuaciones(4));
    EXPECT_EQ(registro.Puntuaciones(3), f.Puntuaciones(1)) << "a minimum above the maximum";
    EXPECT_EQ(registro.Puntuaciones(4), f.Puntuaciones(3));
    EXPECT_EQ(registro.C, f.C);
    EXPECT_EQ(registro.RMax, f.RMax);
}

TEST_F(Tablas, TwoBooleansAndOneNumericTypedMakeThreeElements) {
    Cargar(pruebas::Continua());
    editor.ClickTipo(kTipoPuntuacion);
    editor.ClickPestana(kPestanaPuntuacion);
    EXPECT_TRUE(editor.paneles.Tablas);
    Contar(Tabla::Booleanos, 2);
    Contar(Tabla::Numericos, 1);
    Escribir(Tabla::Booleanos, 1, 1, "Licencia");
    Escribir(Tabla::Booleanos, 1, 2, "0");
    Escribir(Tabla::Booleanos, 1, 3, "3");
    Escribir(Tabla::Booleanos, 2, 1, "Seguro");
    Escribir(Tabla::Booleanos, 2, 3, "1");
    Escribir(Tabla::Booleanos, 2, 3, "");
    Escribir(Tabla::Numericos, 1, 1, "Antigüedad");
    Escribir(Tabla::Numericos, 1, 2, "10");
    Escribir(Tabla::Numericos, 1, 3, "5");
    Escribir(Tabla::Numericos, 1, 4, "2");
    ASSERT_TRUE(editor.Aceptar());
    ASSERT_EQ(registro.Puntuaciones.Tamano(), 3);
    EXPECT_EQ(registro.Puntuaciones(1),
              (Puntuacion{PuntuacionBooleana, "Licencia", {}, {}, 0.0, 3.0}));
    EXPECT_EQ(registro.Puntuaciones(2), (Puntuacion{PuntuacionBooleana, "Seguro", {}, {}, {}, {}}))
        << "the cleared score stored empty";
    EXPECT_EQ(registro.Puntuaciones(3),
              (Puntuacion{PuntuacionNumerica, "Antigüedad", 10.0, 5.0, 2.0, {}}));
    EXPECT_TRUE(sesion().modelo.Modificado);
}

TEST_F(Tablas, AScoringFunctionWithoutElementsIsAskedAboutAndAnOptionalOneIsNot) {
    const std::string pregunta =
        "La función definida como función de puntuación, no tiene elementos numéricos ni "
        "booleanos. Se guardará cómo función contínua.";
    Cargar(pruebas::Continua());
    editor.ClickTipo(kTipoPuntuacion);
    Contar(Tabla::Numericos, 1);
    EXPECT_FALSE(editor.PuntuacionVacia());
    Contar(Tabla::Numericos, 0);
    EXPECT_TRUE(editor.PuntuacionVacia());
    mensajes.Esperar("VADRO: error", pregunta, Respuesta::Cancelar);
    EXPECT_FALSE(editor.Aceptar());
    EXPECT_EQ(registro, pruebas::Continua()) << "Cancel stays in the window";

    editor.ClickOptativos(true);
    editor.Optativos.Celda(1, 0) = "A";
    editor.Optativos.Celda(2, 0) = "B";
    ASSERT_TRUE(editor.Aceptar()) << "no question for optional indicators";
    EXPECT_EQ(registro.Tipo, FuncionOptativos);
    EXPECT_EQ(registro.Optativos.Tamano(), 2);
    EXPECT_EQ(registro.Optativos(2).Nombre, "B");
}

TEST_F(Tablas, TheSecondInstanceStartsAFunctionWithoutKindAsAContinuousOne) {
    FuncionOptativo vacia;
    EditorFuncion e;
    e.Cargar(vacia);
    EXPECT_EQ(e.Tipo, kTipoContinua);
    e.Cambio(Campo::MinRef, "0");
    e.Cambio(Campo::MaxRef, "10");
    ASSERT_TRUE(e.Aceptar());
    EXPECT_EQ(vacia.Tipo, FuncionContinua);
    EXPECT_EQ(vacia.RMax, ValorLibre(10.0));
}

TEST_F(Tablas, ATemplateLoadedIntoTheSecondInstanceBringsOnlyAContinuousOrStepKind) {
    struct Caso {
        FuncionValor plantilla;
        int tipo; // the kind list afterwards
        int32_t escrito;
    };
    const Caso casos[] = {
        {pruebas::DeEscalones<FuncionValor>(), kTipoEscalon, FuncionEscalon},
        {pruebas::Continua(), kTipoContinua, FuncionContinua},
        {pruebas::DePuntuacion(), kTipoEscalon, FuncionEscalon},
        {pruebas::DeOptativos("I1C1R1"), kTipoEscalon, FuncionEscalon},
    };
    for (const Caso& caso : casos) {
        FuncionValor plantilla = caso.plantilla;
        plantilla.Clave.clear(); // as the editor exports a template
        const std::string ruta = Ruta("plantilla.fva");
        GuardarFuncionValor(plantilla, ruta, false, "");
        FuncionOptativo opcion = pruebas::DeEscalones<FuncionOptativo>();
        EditorFuncion e;
        e.Cargar(opcion);
        pruebas::GuionDialogos dialogos;
        dialogos.Elegir("Importar función de valor", ruta);
        ASSERT_TRUE(e.CargarPlantilla()) << caso.plantilla.Tipo;
        EXPECT_FALSE(e.chkOptativos) << caso.plantilla.Tipo;
        EXPECT_EQ(e.Tipo, caso.tipo) << caso.plantilla.Tipo;
        EXPECT_EQ(e.Texto(Campo::Unidades), caso.plantilla.Unidades) << caso.plantilla.Tipo;
        ASSERT_TRUE(e.Aceptar()) << caso.plantilla.Tipo;
        EXPECT_EQ(opcion.Tipo, caso.escrito) << caso.plantilla.Tipo;
    }
}

} // namespace
} // namespace vadro
