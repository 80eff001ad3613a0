// The editor's table grids: optional indicators and scoring elements.
#include "core/core/comunes.h"
#include "core/files/seccion_funcion.h"
#include "editor_sin_ventana.h"
#include "soporte/guion_dialogos.h"

#include <algorithm>
#include <map>

namespace vadro {
namespace {

using Filas = std::vector<std::vector<std::string>>;
using pruebas::Acta;
using pruebas::Caso;
using pruebas::Casos;

const std::string kTitulo = "VADRO PROGRAMADOR";
const std::string kSinOptativos = "Introduzca primero el número de elementos optativos deseado.";
const char* const kTablas[] = {"Optativos", "Booleanos", "Numericos"};

Tabla DeTabla(const std::string& nombre) {
    return static_cast<Tabla>(std::find(std::begin(kTablas), std::end(kTablas), nombre) -
                              std::begin(kTablas));
}

// The rows of a grid, each cell quoted, the rows parted by " / ".
template <typename Filas> std::string Listado(const Filas& filas) {
    std::string texto;
    for (const auto& fila : filas) {
        texto += texto.empty() ? "" : " /";
        for (const std::string& celda : fila) {
            texto += " '" + celda + "'";
        }
    }
    return texto;
}

class Tablas : public pruebas::EditorSinVentana {
protected:
    // Loads the editor on a record, as the window opens.
    void Cargar(const FuncionValor& funcion) {
        registro = funcion;
        editor.Cargar(registro);
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

    FuncionValor registro;
};

TEST_F(Tablas, AFreshEditorOffersTwoOptionalIndicatorsOneSelectableAndNoScoringElement) {
    Cargar(pruebas::Continua());
    Acta acta;
    for (const Tabla tabla : {Tabla::Optativos, Tabla::Booleanos, Tabla::Numericos}) {
        const TablaEdicion& t = editor.TablaDe(tabla);
        acta.Fila(kTablas[static_cast<int>(tabla)], "headers" + Listado(Filas{t.Cabeceras}) +
                                                        ", rows" + Listado(t.Filas) + ", count " +
                                                        std::to_string(t.Cuenta));
    }
    acta.Fila("Intervalos",
              "rows" + Listado(editor.Filas) + ", count " + std::to_string(editor.Intervalos));
    acta.Fila("selectable", std::to_string(editor.Seleccionables) + ", at most " +
                                std::to_string(editor.MaximoSeleccionables) + ", " +
                                std::to_string(sesion().FuncionesEdicion.Tamano()) + " functions");
    acta.Comparar("editor_funcion/editor_nuevo.txt");
}

// A case "<grid> <count> confirmed|declined|unasked|loading": the count changed with its
// up-down control, the reduction's question so answered, switched off by the dialog's box, or
// not to be asked while the window loads.
TEST_F(Tablas, CountsGrowRenumberAndShrinkFromTheEndOnlyWhenConfirmed) {
    Cargar(FuncionValor{});
    editor.Tipo = kTipoEscalon;
    Acta acta;
    for (const Caso& caso : Casos("editor_funcion/cuentas.txt")) {
        const int n = std::stoi(caso.campos.at(1));
        confirmar = caso.campos.at(2) == "confirmed";
        editor.Aviso = caso.campos.at(2) != "unasked";
        editor.Cargando = caso.campos.at(2) == "loading";
        std::string rejilla;
        if (caso.campos.at(0) == "Intervalos") {
            editor.CambiarIntervalos(n);
            rejilla = Listado(editor.Filas) + ", count " + std::to_string(editor.Intervalos) +
                      (editor.RejillaHabilitada ? ", enabled" : ", disabled");
        } else {
            const TablaEdicion& t = editor.TablaDe(DeTabla(caso.campos.at(0)));
            editor.CambiarCuenta(DeTabla(caso.campos.at(0)), n);
            rejilla = Listado(t.Filas) + ", count " + std::to_string(t.Cuenta);
        }
        acta.Fila(caso.texto, "rows" + rejilla + ", asked " + std::to_string(confirmaciones));
    }
    acta.Comparar("editor_funcion/cuentas.txt");
    editor.ColumnaActual = 0;
    EXPECT_FALSE(editor.AbrirCelda()) << "the column Id of the steps is not edited";
}

// The second row's function is kept as long as the count keeps the row.
TEST_F(Tablas, TheOptionalCountKeepsTheWorkingFunctionsAndBoundsTheSelectableCount) {
    Cargar(FuncionValor{});
    sesion().FuncionesEdicion(2) = pruebas::DeEscalones<FuncionOptativo>();
    editor.CambiarCuenta(Tabla::Optativos, 4);
    Acta acta;
    for (const Caso& caso : Casos("editor_funcion/cuenta_optativos.txt")) {
        const int n = std::stoi(caso.campos.at(1));
        caso.campos.at(0) == "optional" ? editor.CambiarCuenta(Tabla::Optativos, n)
                                        : editor.CambiarSeleccionables(n);
        const auto& funciones = sesion().FuncionesEdicion;
        acta.Fila(caso.texto, std::to_string(funciones.Tamano()) + " functions, at most " +
                                  std::to_string(editor.MaximoSeleccionables) + ", " +
                                  std::to_string(editor.Seleccionables) + " selectable" +
                                  (funciones.Tamano() >= 2 &&
                                           funciones(2) == pruebas::DeEscalones<FuncionOptativo>()
                                       ? ", second kept"
                                       : ""));
    }
    acta.Comparar("editor_funcion/cuenta_optativos.txt");
    EXPECT_EQ(confirmaciones, 3) << "every reduction asked";
}

TEST_F(Tablas, AGridWithoutElementsNamesWhatToCountFirst) {
    Cargar(FuncionValor{});
    editor.Aviso = false;
    Acta acta;
    for (const Tabla tabla : {Tabla::Optativos, Tabla::Booleanos, Tabla::Numericos}) {
        editor.CambiarCuenta(tabla, 0);
        editor.EntrarCelda(tabla, 1, 1); // the " -" row is no cell
        const int fila = editor.TablaDe(tabla).FilaActual;
        const bool abierta = editor.AbrirCelda(tabla) || editor.TablaDe(tabla).EntradaAbierta;
        acta.Fila(std::string(kTablas[static_cast<int>(tabla)]) + " without elements, cell 1 1",
                  "row " + std::to_string(fila) + (abierta ? ", input open" : ", no input"));
    }
    acta.Comparar("editor_funcion/sin_elementos.txt");
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

// A case "<grid> <column> <text>" typed into row 1, whose cell held "7".
TEST_F(Tablas, LeavingACellTakesTextsAsTheyStandAndNumbersInPlainForm) {
    Cargar(FuncionValor{});
    Contar(Tabla::Booleanos, 1);
    Contar(Tabla::Numericos, 1);
    Acta acta;
    for (const Caso& caso : Casos("editor_funcion/celdas_tablas.txt")) {
        const Tabla tabla = DeTabla(caso.campos.at(0));
        const int columna = std::stoi(caso.campos.at(1));
        editor.TablaDe(tabla).Celda(1, columna) = "7";
        Escribir(tabla, 1, columna, caso.campos.at(2));
        const TablaEdicion& t = editor.TablaDe(tabla);
        acta.Fila(caso.texto,
                  "'" + t.Celda(1, columna) + "'" + (t.EntradaAbierta ? ", input open" : ""));
    }
    acta.Comparar("editor_funcion/celdas_tablas.txt");
    EXPECT_EQ(editor.Numericos.Celda(1, 0), "1") << "the Id stays";
}

// A case "<grid> key <code> at <row> <column> on <text>", the cell holding "old" before.
TEST_F(Tablas, TheKeysOfTheFloatingInputCommitMoveOrHoldARefusedNumber) {
    const char* const acciones[] = {"nothing", "committed", "discarded", "moved", "held"};
    Cargar(FuncionValor{});
    Contar(Tabla::Numericos, 2);
    Acta acta;
    for (const Caso& caso : Casos("editor_funcion/teclas_tablas.txt")) {
        const Tabla tabla = DeTabla(caso.campos.at(0));
        const int fila = std::stoi(caso.campos.at(4));
        const int columna = std::stoi(caso.campos.at(5));
        TablaEdicion& t = editor.TablaDe(tabla);
        t.Celda(fila, columna) = "old";
        editor.EntrarCelda(tabla, fila, columna);
        ASSERT_TRUE(editor.AbrirCelda(tabla));
        const AccionEntrada accion =
            editor.TeclaEntrada(tabla, std::stoi(caso.campos.at(2)), caso.campos.at(7));
        acta.Fila(caso.texto, std::string(acciones[static_cast<int>(accion)]) + ", now at " +
                                  std::to_string(t.FilaActual) + "," +
                                  std::to_string(t.ColumnaActual) + ", cell '" +
                                  t.Celda(fila, columna) + "'" +
                                  (t.EntradaAbierta ? ", input open" : ""));
        t.EntradaAbierta = false;
    }
    acta.Comparar("editor_funcion/teclas_tablas.txt");
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

// The caption of the second window on a row's function is checked by the window's test.
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
    editor.CambiarCuenta(Tabla::Optativos, 0);
    EXPECT_TRUE(editor.GraficaOptativo.Visibles().empty()) << "the chosen row went";
    mensajes.Esperar(kTitulo, kSinOptativos);
    EXPECT_EQ(editor.FilaOptativoAEditar(), 0);
}

// A case "selected <n> names <name>...": the record's selectable count and its optional
// indicators, each with a function of steps; without "names" the array is absent.
TEST_F(Tablas, OptionalIndicatorsAreReadWithTheirFallbacksAndWrittenBack) {
    Arreglo<IndicadorOptativo> sinNombre; // no optional indicator is written as one blank element
    sinNombre.Redimensionar(1);
    Acta acta;
    for (const Caso& caso : Casos("editor_funcion/optativos_leidos.txt")) {
        FuncionValor f = pruebas::DeOptativos("I1C1R1");
        f.OptativoSeleccionado = static_cast<int16_t>(std::stoi(caso.campos.at(1)));
        f.Optativos.Borrar();
        if (caso.campos.size() > 2) {
            f.Optativos.Redimensionar(static_cast<int>(caso.campos.size()) - 3);
        }
        for (int i = 1; i <= f.Optativos.Tamano(); ++i) {
            f.Optativos(i).Nombre = caso.campos.at(static_cast<std::size_t>(i) + 2);
            f.Optativos(i).Funcion = pruebas::DeEscalones<FuncionOptativo>();
            f.Optativos(i).Funcion.Unidades = Unir({"u", std::to_string(i)});
        }
        EditorFuncion e;
        FuncionValor leido = f;
        e.Cargar(leido);
        FuncionValor escrito;
        e.EscribirFuncion(escrito);
        acta.Fila(caso.texto, (e.chkOptativos ? "optional, kind " : "kind ") +
                                  std::to_string(e.Tipo) + ", count " +
                                  std::to_string(e.Optativos.Cuenta) + ", " +
                                  std::to_string(e.Seleccionables) + " selectable, at most " +
                                  std::to_string(e.MaximoSeleccionables) + ", " +
                                  std::to_string(sesion().FuncionesEdicion.Tamano()) +
                                  " functions; written " + std::to_string(escrito.Tipo) +
                                  ", selected " + std::to_string(escrito.OptativoSeleccionado) +
                                  (escrito.Optativos == f.Optativos ? ", as read" : "") +
                                  (escrito.Optativos == sinNombre ? ", one blank element" : "") +
                                  (escrito.Puntuaciones.Tamano() + escrito.Escalones.Tamano() > 0
                                       ? ", with scores or steps"
                                       : ""));
    }
    acta.Comparar("editor_funcion/optativos_leidos.txt");
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

// Without optional indicators the same empty scoring function is asked about: the acceptance
// transcript of the editor tests.
TEST_F(Tablas, AnEmptyScoringFunctionIsNotAskedAboutUnderOptionalIndicators) {
    Cargar(pruebas::Continua());
    editor.ClickTipo(kTipoPuntuacion);
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

// A case "template <kind>": a function of that kind exported as a template, loaded into the
// second instance on a function of steps (or on a continuous one, "on continuous"), which is
// then accepted.
TEST_F(Tablas, ATemplateLoadedIntoTheSecondInstanceBringsOnlyAContinuousOrStepKind) {
    const std::map<std::string, FuncionValor> plantillas = {
        {"steps", pruebas::DeEscalones<FuncionValor>()},
        {"continuous", pruebas::Continua()},
        {"scoring", pruebas::DePuntuacion()},
        {"optional", pruebas::DeOptativos("I1C1R1")}};
    Acta acta;
    for (const Caso& caso : Casos("editor_funcion/plantilla_optativo.txt")) {
        FuncionValor plantilla = plantillas.at(caso.campos.at(1));
        plantilla.Clave.clear(); // as the editor exports a template
        GuardarFuncionValor(plantilla, Ruta("plantilla.fva"), false, "");
        FuncionOptativo opcion = pruebas::DeEscalones<FuncionOptativo>();
        if (caso.campos.size() > 2) {
            static_cast<FuncionComun&>(opcion) = pruebas::Continua();
        }
        EditorFuncion e;
        e.Cargar(opcion);
        pruebas::GuionDialogos dialogos;
        dialogos.Elegir("Importar función de valor", Ruta("plantilla.fva"));
        const bool cargada = e.CargarPlantilla();
        const std::string leida =
            std::string(cargada ? "loaded" : "not loaded") + (e.chkOptativos ? ", optional" : "") +
            ", kind " + std::to_string(e.Tipo) + ", units '" + e.Texto(Campo::Unidades) + "'";
        const bool aceptada = e.Aceptar();
        acta.Fila(caso.texto, leida + (aceptada ? "; written " : "; not accepted, record ") +
                                  std::to_string(opcion.Tipo));
    }
    acta.Comparar("editor_funcion/plantilla_optativo.txt");
}

} // namespace
} // namespace vadro
