#include "core/functions/editor_funcion.h"
#include "soporte/acta.h"
#include "soporte/modelo_sano.h"
#include "soporte/prueba_sesion.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iomanip>
#include <sstream>

namespace vadro {
namespace {

const std::string kTituloError = "VADRO PROGRAMADOR: error";
const std::string kTituloFuncion = "VADRO: función de valor";
const std::string kTituloSuperior = "VADRO: error en límite superior";
const std::string kTituloInferior = "VADRO: error en límite inferior";
const std::string kCorrijalo = "Corríjalo o deje vacío su valor.";

class Editor : public pruebas::PruebaSesion {
protected:
    Editor() {
        editor.MostrarAviso = [this] { ++avisos; };
        editor.ConfirmarReduccion = [this] {
            ++confirmaciones;
            return confirmar;
        };
    }
    // The inputs as a loaded window leaves them, without running their handlers.
    void Limites(const std::string& min, const std::string& max, const std::string& minRef,
                 const std::string& maxRef) {
        editor.Texto(Campo::Min) = min;
        editor.Texto(Campo::Max) = max;
        editor.Texto(Campo::MinRef) = minRef;
        editor.Texto(Campo::MaxRef) = maxRef;
    }
    // A step grid of these rows, the kind "Escalón".
    void Escalones(std::vector<FilaIntervalo> filas) {
        editor.Tipo = kTipoEscalon;
        editor.Filas = std::move(filas);
        editor.Intervalos = static_cast<int>(editor.Filas.size());
        editor.RejillaHabilitada = true;
    }
    // Types a text into a cell through its floating input and leaves the cell.
    void EscribirCelda(int fila, int columna, const std::string& texto) {
        editor.FilaActual = fila;
        editor.ColumnaActual = columna;
        ASSERT_TRUE(editor.AbrirCelda());
        editor.SalirCelda(texto);
    }

    EditorFuncion editor;
    int avisos = 0;
    int confirmaciones = 0;
    bool confirmar = true;
};

const char* const kCampos[] = {"Min", "Max", "MinRef", "MaxRef", "Unidades", "C", "K", "P"};
using pruebas::Acta;

std::string Nombre(Campo campo) {
    return kCampos[static_cast<int>(campo)];
}

Campo DeNombre(const std::string& nombre) {
    const auto* campo = std::find(std::begin(kCampos), std::end(kCampos), nombre);
    return static_cast<Campo>(campo - std::begin(kCampos));
}

// A figure to twelve significant digits, enough to tell any plausible slip.
std::string Formato(double valor) {
    std::ostringstream texto;
    texto << std::setprecision(12) << valor;
    return texto.str();
}

TEST_F(Editor, TheBoundsAndStepOfCFollowTheReferenceLimits) {
    const std::array<const char*, 3> casos[] = {
        {"", "", "50"},     {"", "7", "150"},    {"0", "0.5", "0.25"},
        {"0", "0.5", "3"},  {"20", "100", "10"}, {"100", "0", "150"},
        {"100", "0", "-5"}, {"5", "5", "9"},     {"20", "100", ""},
    };
    sesion().MostrarAvisoFuncionValor = false;
    Acta acta;
    for (const auto& [minRef, maxRef, C] : casos) {
        Limites("", "", minRef, maxRef);
        editor.Texto(Campo::C) = C;
        editor.ActualizarLimites();
        acta.Fila(std::string("references '") + minRef + "' '" + maxRef + "', C '" + C + "'",
                  Formato(editor.CInferior) + " < C < " + Formato(editor.CSuperior) + " step " +
                      Formato(editor.PasoC) + ", '" + editor.lblLimitesC + "', C '" +
                      editor.Texto(Campo::C) + "'");
    }
    acta.Fila("K and P", editor.lblLimitesK + " | " + editor.lblLimitesP);
    acta.Comparar("editor_funcion/limites_c.txt");
}

TEST_F(Editor, TheShapeParametersTakeOnlyNumbersWithinTheirBounds) {
    sesion().MostrarAvisoFuncionValor = false;
    Limites("", "", "0", "10");
    editor.ActualizarLimites();
    Acta acta;
    for (const pruebas::Caso& caso : pruebas::Casos("editor_funcion/parametros.txt")) {
        const Campo campo = DeNombre(caso.campos.at(0));
        sesion().modelo.Modificado = false;
        const int dibujos = editor.Dibujos;
        editor.Cambio(campo, caso.campos.at(1));
        acta.Fila(caso.texto, "'" + editor.Texto(campo) + "'" +
                      (sesion().modelo.Modificado ? ", modified" : "") + ", " +
                      std::to_string(editor.Dibujos - dibujos) + " drawn");
    }
    acta.Comparar("editor_funcion/parametros.txt");
    EXPECT_EQ(editor.Tipo, kTipoContinua) << "the first change chose the kind";
    EXPECT_EQ(editor.UltimoP, 1.5);
    editor.Texto(Campo::K) = "0.001";
    editor.Salir(Campo::K);
    EXPECT_EQ(editor.Texto(Campo::K), "0.00") << "the precision is gone on leaving";
    EXPECT_EQ(editor.UltimoK, 0);
}

TEST_F(Editor, UpDownStepsStopAtTheBoundsExceptAboveP) {
    sesion().MostrarAvisoFuncionValor = false;
    Limites("", "", "0", "0.5");
    editor.ActualizarLimites();
    struct Caso {
        Campo campo;
        const char* antes;
        bool sube;
        const char* despues;
    };
    const Caso casos[] = {
        {Campo::C, "0.25", true, "0.26"},  {Campo::C, "0.5", true, "0.50"},
        {Campo::C, "0.00", false, "0.00"}, {Campo::K, "0.995", true, "1.00"},
        {Campo::K, "0.3", false, "0.29"},  {Campo::P, "0.00", false, "0.00"},
        {Campo::P, "999", true, "999.01"},
    };
    for (const Caso& caso : casos) {
        editor.Texto(caso.campo) = caso.antes;
        caso.sube ? editor.Subir(caso.campo) : editor.Bajar(caso.campo);
        EXPECT_EQ(editor.Texto(caso.campo), caso.despues) << caso.antes;
    }
    editor.Texto(Campo::K) = "0.5";
    EXPECT_TRUE(editor.Tecla(Campo::K, 38));
    EXPECT_EQ(editor.Texto(Campo::K), "0.51") << "the up arrow key";
    EXPECT_TRUE(editor.Tecla(Campo::K, 40));
    EXPECT_EQ(editor.Texto(Campo::K), "0.50");
    EXPECT_FALSE(editor.Tecla(Campo::K, 13)) << "Enter is not the parameters' key";
}

TEST_F(Editor, AShapeButtonActsOnlyOnAUserClickAndDrawsOnce) {
    sesion().MostrarAvisoFuncionValor = false;
    const std::tuple<int, const char*, const char*> casos[] = {
        {0, "0", "100"}, {1, "0", "100"}, {2, "0", "100"},
        {3, "20", "60"}, {2, "100", "0"}, {1, "", ""},
    };
    Acta acta;
    for (const auto& [indice, minRef, maxRef] : casos) {
        EditorFuncion e;
        e.Texto(Campo::MinRef) = minRef;
        e.Texto(Campo::MaxRef) = maxRef;
        e.ActualizarLimites();
        const int dibujos = e.Dibujos;
        e.ClickForma(indice);
        EXPECT_EQ(e.Dibujos, dibujos) << "a click the user did not make";
        e.PulsarForma(indice);
        e.ClickForma(indice);
        EXPECT_EQ(e.Dibujos, dibujos + 1) << indice;
        EXPECT_EQ(e.Tipo, kTipoContinua);
        EXPECT_EQ(e.EtiquetaParametro, (std::array<std::string, 3>{})) << "tags cleared";
        acta.Fila("shape " + std::to_string(indice) + ", references '" + minRef + "' '" + maxRef +
                      "'",
                  "P " + e.Texto(Campo::P) + " C " + e.Texto(Campo::C) + " K " + e.Texto(Campo::K) +
                      ", tag '" + e.EtiquetaForma[static_cast<std::size_t>(indice)] + "'");
    }
    acta.Comparar("editor_funcion/formas.txt");
}

// Decreasing references ask about the minimum with the word of the maximum; a lower limit
// with a leading symbol is read leniently there, as 0.
TEST_F(Editor, TheReferenceLimitsAskAboutTheValidityLimitsWithTheirOwnWords) {
    sesion().MostrarAvisoFuncionValor = false;
    struct Caso {
        Campo campo;
        const char *min, *max, *minRef, *maxRef;
        Respuesta respuesta;
    };
    const Caso casos[] = {
        {Campo::MaxRef, "", "=90", "0", "120", Respuesta::Si},
        {Campo::MaxRef, "", "=90", "0", "120", Respuesta::No},
        {Campo::MaxRef, "", "=90", "0", "80", Respuesta::Si},
        {Campo::MaxRef, "", "", "0", "80.50", Respuesta::Si},
        {Campo::MaxRef, "", "", "", "07", Respuesta::Si},
        {Campo::MaxRef, "10", "", "100", "5", Respuesta::Si},
        {Campo::MaxRef, "10", "", "100", "5", Respuesta::No},
        {Campo::MaxRef, "=10", "", "100", "5", Respuesta::Si},
        {Campo::MinRef, "<10", "", "5", "100", Respuesta::No},
        {Campo::MinRef, "<10", "", "15", "100", Respuesta::Si},
        {Campo::MinRef, "", ">50", "60", "0", Respuesta::Si},
        {Campo::MinRef, "", ">50", "40", "0", Respuesta::Si},
    };
    Acta acta;
    for (const Caso& caso : casos) {
        Limites(caso.min, caso.max, caso.minRef, caso.maxRef);
        acta.respuestas = {caso.respuesta};
        sesion().modelo.Modificado = false;
        editor.Salir(caso.campo);
        EXPECT_TRUE(sesion().modelo.Modificado);
        acta.Fila("leave " + Nombre(caso.campo) + ", limits '" + caso.min + "' '" + caso.max +
                      "', references '" + caso.minRef + "' '" + caso.maxRef + "'",
                  "'" + editor.Texto(caso.campo) + "'");
    }
    acta.Comparar("editor_funcion/limites_referencia.txt");
    Limites("", "", "", "");
    editor.Salir(Campo::MaxRef);
    EXPECT_TRUE(editor.chkMaxRefUsuario) << "an empty limit is left to the user";
    EXPECT_FALSE(editor.chkMinRefUsuario);
}

TEST_F(Editor, AReferenceLimitThatIsNoNumberGoesBackToTheLastGoodOne) {
    sesion().MostrarAvisoFuncionValor = false;
    editor.Texto(Campo::MinRef) = "0";
    editor.Cambio(Campo::MaxRef, "80");
    EXPECT_EQ(editor.UltimoRefMax, "80");
    EXPECT_EQ(editor.RefMaxActual, 80) << "the limits were worked out again";
    mensajes.Esperar(kTituloError, "Debe introducir un número.");
    editor.Cambio(Campo::MaxRef, "80a");
    EXPECT_EQ(editor.Texto(Campo::MaxRef), "80");
    editor.Cambio(Campo::MaxRef, "");
    EXPECT_EQ(editor.UltimoRefMax, "");
    EXPECT_EQ(editor.RefMaxActual, 100);
}

// Decreasing: the upper limit read leniently is 0, so its warning always comes.
TEST_F(Editor, LeavingAValidityLimitWarnsAboutTheReferenceLimitsItCuts) {
    sesion().MostrarAvisoFuncionValor = false;
    struct Caso {
        Campo campo;
        const char *min, *max, *minRef, *maxRef;
    };
    const Caso casos[] = {
        {Campo::Max, "", "=90", "0", "100"},  {Campo::Max, "", "=100", "0", "100"},
        {Campo::Max, "", ">500", "100", "0"}, {Campo::Max, "", "=90", "", "100"},
        {Campo::Min, "<10", "", "0", "100"},  {Campo::Min, "<10", "", "0", ""},
        {Campo::Min, "<0", "", "0", "100"},   {Campo::Min, "=10", "", "100", "0"},
    };
    Acta acta;
    for (const Caso& caso : casos) {
        Limites(caso.min, caso.max, caso.minRef, caso.maxRef);
        editor.Salir(caso.campo);
        EXPECT_FALSE(editor.foco) << caso.min << caso.max;
        acta.Fila("leave " + Nombre(caso.campo) + ", limits '" + caso.min + "' '" + caso.max +
                      "', references '" + caso.minRef + "' '" + caso.maxRef + "'",
                  "");
    }
    acta.Comparar("editor_funcion/limites_validez.txt");
}

// A limit is refused, and emptied, for its symbol or its number; under a step function it must
// also meet the outer step (`celda`, the last end or the first start) with one closed side.
TEST_F(Editor, ErrorLimitesRefusesByEmptyingTheLimit) {
    struct Caso {
        bool maximo;
        const char* limite;
        const char* celda; // nullptr: a continuous function
    };
    const Caso casos[] = {
        {true, "<5", nullptr},     {true, "5", nullptr},   {true, ">5a", nullptr},
        {false, ">5", nullptr},    {false, "5", nullptr},  {false, "=", nullptr},
        {true, ">5", nullptr},     {true, "=5", nullptr},  {false, "<5", nullptr},
        {false, "=-5.5", nullptr}, {true, ">100", "<100"}, {true, "=100", "<100"},
        {true, ">100", "=100"},    {true, "=100", "=100"}, {true, ">90", "=100"},
        {true, ">100", ""},        {false, "<0", "=0"},    {false, "=0", ">0"},
        {false, "=0", "=0"},       {false, "<0", ">0"},    {false, "<1", "=0"},
        {false, "<0", ""},
    };
    Acta acta;
    for (const Caso& caso : casos) {
        Escalones({{"1", "=0", "<50", "0"}, {"2", "=50", "=100", "1"}});
        if (caso.celda == nullptr) {
            editor.Tipo = kTipoContinua;
        } else {
            editor.Filas[caso.maximo ? 1 : 0][caso.maximo ? 2 : 1] = caso.celda;
        }
        const Campo campo = caso.maximo ? Campo::Max : Campo::Min;
        editor.Texto(campo) = caso.limite;
        const bool error = editor.ErrorLimites(caso.maximo);
        acta.Fila(Nombre(campo) + " '" + caso.limite + "'" +
                      (caso.celda ? std::string(", outer step '") + caso.celda + "'" : ""),
                  (error ? "refused, left '" : "passes, left '") + editor.Texto(campo) + "'");
    }
    acta.Comparar("editor_funcion/error_limites.txt");
}

TEST_F(Editor, LeavingAnEmptyValidityLimitChecksTheOtherAndSendsTheFocusThere) {
    sesion().MostrarAvisoFuncionValor = false;
    Acta acta;
    for (const auto& [min, max] : {std::pair{">3", ""}, {"", "100"}}) {
        editor.foco.reset();
        Limites(min, max, "", "");
        editor.Salir(Campo::Max);
        acta.Fila(std::string("leave Max, limits '") + min + "' '" + max + "'",
                  "Min '" + editor.Texto(Campo::Min) + "', focus on " +
                      (editor.foco ? Nombre(editor.foco->campo) : "nothing") +
                      (editor.chkMaxUsuario ? ", Max left to the user" : ""));
    }
    acta.Comparar("editor_funcion/limite_vacio.txt");
    EXPECT_TRUE(editor.Tecla(Campo::Min, 13)) << "Enter leaves the limit";
}

TEST_F(Editor, TheAdjustBoxesDisableOrRestoreTheReferenceLimits) {
    sesion().MostrarAvisoFuncionValor = false;
    mensajes.Esperar("VADRO PROGRAMADOR",
                     "Se tomará como punto de máxima satisfacción el más permisivo");
    editor.ClickAjustar(true, false);
    EXPECT_FALSE(editor.MaxRefHabilitado);
    EXPECT_TRUE(editor.chkMaxRefUsuario);
    mensajes.Esperar("VADRO PROGRAMADOR",
                     "Se tomará como punto de mínima satisfacción el más restrictivo");
    editor.ClickAjustar(false, false);
    EXPECT_FALSE(editor.MinRefHabilitado);

    editor.Texto(Campo::MaxRef) = "70";
    editor.UltimoRefMax = "65";
    editor.ClickAjustar(true, true);
    EXPECT_TRUE(editor.MaxRefHabilitado);
    EXPECT_EQ(editor.Texto(Campo::MaxRef), "65");

    sesion().modelo.Modificado = false;
    editor.Texto(Campo::MinRef).clear();
    editor.chkAjustarMinRef = false;
    editor.ClickUsuarioRef(false, false);
    EXPECT_TRUE(editor.chkAjustarMinRef) << "an empty limit nobody may change is adjusted";
    EXPECT_TRUE(sesion().modelo.Modificado);
}

TEST_F(Editor, NothingToDrawShowsTheNoticeUnlessSwitchedOffOrActivating) {
    editor.Graficar();
    EXPECT_EQ(avisos, 1);
    editor.Activando = true;
    editor.Graficar();
    EXPECT_EQ(avisos, 1);
    editor.Activando = false;
    sesion().MostrarAvisoFuncionValor = false;
    editor.Graficar();
    EXPECT_EQ(avisos, 1);
    EXPECT_EQ(ListadoGrafica(editor.grafica), "Borrar\n");
}

// Rows [0,10) 1, [10,20] 0.5, (20,30] 1 between the limits "<0" and ">30".
TEST_F(Editor, ValidarIntervaloChecksACellAgainstItsNeighboursInOrder) {
    struct Caso {
        int fila, columna;
        const char* texto;
    };
    const Caso casos[] = {
        {2, 1, ""},      {2, 1, "10"},    {2, 1, "=1x"},  {2, 1, "=10"}, {2, 1, ">10"},
        {2, 1, "=11"},   {2, 1, "=10.0"}, // the numbers are compared as texts
        {2, 2, "=20"},   {2, 2, "<20"},   {2, 2, "=21"},  {1, 1, "<0"},  {1, 1, "=0"},
        {1, 1, "=5000"}, // nothing else is checked on the first start
        {3, 2, "<30"},   {3, 2, ">30"},   {3, 2, "=30"},  {1, 3, "0.5"}, {3, 3, "0.5"},
        {2, 3, "1.5"},   {2, 3, "x"},     {2, 3, "0.25"}, {1, 3, "0"},
    };
    Acta acta;
    for (const Caso& caso : casos) {
        Escalones({{"1", "=0", "<10", "1"}, {"2", "=10", "=20", "0.5"}, {"3", ">20", "=30", "1"}});
        Limites("<0", ">30", "", "");
        editor.FilaActual = caso.fila;
        editor.ColumnaActual = caso.columna;
        const bool error = editor.ValidarIntervalo(caso.texto);
        acta.Fila("cell " + std::to_string(caso.fila) + "," + std::to_string(caso.columna) + " '" +
                      caso.texto + "'",
                  error ? "refused" : "passes");
    }
    acta.Comparar("editor_funcion/validar_intervalo.txt");
    // A start is checked only when its own end is filled.
    Escalones({{"1", "=0", "<10", "0"}, {"2", "", "", ""}});
    editor.FilaActual = 2;
    editor.ColumnaActual = 1;
    EXPECT_FALSE(editor.ValidarIntervalo(">99"));
}

TEST_F(Editor, LeavingACellCommitsAGoodTextAndKeepsTheOldOneOtherwise) {
    sesion().MostrarAvisoFuncionValor = false;
    Escalones({{"1", "=0", "<10", "0"}, {"2", "", "", ""}, {"3", "", "", ""}});
    const std::tuple<int, int, const char*> pasos[] = {
        {2, 1, "=10"}, {2, 3, "-0"}, {2, 3, "medio"}, {2, 3, "2"},
        {3, 3, "0.5"}, {2, 3, ""},   {2, 2, "20"},
    };
    Acta acta;
    for (const auto& [fila, columna, texto] : pasos) {
        EscribirCelda(fila, columna, texto);
        acta.Fila("cell " + std::to_string(fila) + "," + std::to_string(columna) + " '" + texto +
                      "'",
                  "'" + editor.Filas[static_cast<std::size_t>(fila - 1)][columna] + "'" +
                      (editor.EntradaAbierta ? ", input open" : ""));
    }
    acta.Comparar("editor_funcion/salir_celda.txt");
    const int dibujos = editor.Dibujos;
    editor.SalirCelda("=5");
    EXPECT_EQ(editor.Dibujos, dibujos) << "no input open: nothing happens";
}

TEST_F(Editor, TheKeysOfTheFloatingInputValidateCommitAndMove) {
    sesion().MostrarAvisoFuncionValor = false;
    Escalones({{"1", "=0", "<10", "0"}, {"2", "=10", "=20", "1"}});
    const char* const acciones[] = {"nothing", "committed", "discarded", "moved", "kept open"};
    const std::tuple<int, int, int, const char*> casos[] = {
        {1, 1, 37, "=0"},  {1, 2, 37, "<10"}, {1, 3, 39, "0"},   {1, 1, 39, "=0"},
        {1, 1, 38, "=0"},  {1, 1, 40, "=0"},  {2, 1, 40, "=10"}, {1, 3, 40, "0.5"},
        {2, 2, 13, "=20"}, {2, 2, 27, "=25"}, {2, 2, 65, "=25"},
    };
    Acta acta;
    for (const auto& [fila, columna, tecla, texto] : casos) {
        editor.FilaActual = fila;
        editor.ColumnaActual = columna;
        ASSERT_TRUE(editor.AbrirCelda());
        const AccionEntrada accion = editor.TeclaEntrada(tecla, texto);
        acta.Fila("key " + std::to_string(tecla) + " at " + std::to_string(fila) + "," +
                      std::to_string(columna) + " on '" + texto + "'",
                  std::string(acciones[static_cast<int>(accion)]) + ", now at " +
                      std::to_string(editor.FilaActual) + "," +
                      std::to_string(editor.ColumnaActual) +
                      (editor.EntradaAbierta ? ", input open" : ""));
        editor.EntradaAbierta = false;
    }
    acta.Comparar("editor_funcion/teclas_entrada.txt");
    EXPECT_EQ(editor.Filas[1][2], "=20") << "Escape kept the cell";
}

TEST_F(Editor, ErrorMinMaxWantsAZeroAndAOneSomewhere) {
    const std::vector<const char*> casos[] = {
        {"0", "0.5", "1"}, {"1", "0", "1"}, {"1", "0.5", "1"}, {"0"}, {"1"}, {"0", "", "1"}, {},
    };
    Acta acta;
    for (const auto& valores : casos) {
        std::vector<FilaIntervalo> filas;
        std::string listado;
        for (const char* valor : valores) {
            filas.push_back({"", "", "", valor});
            listado += std::string(" '") + valor + "'";
        }
        Escalones(filas);
        if (valores.empty()) {
            editor.CambiarIntervalos(0);
        }
        editor.FilaActual = 2;
        editor.ColumnaActual = 1;
        const bool error = editor.ErrorMinMax();
        acta.Fila("values" + listado, (error ? "refused" : "passes") + std::string(", cell ") +
                                          std::to_string(editor.FilaActual) + "," +
                                          std::to_string(editor.ColumnaActual));
    }
    acta.Comparar("editor_funcion/min_max.txt");
    editor.EntradaAbierta = true;
    EXPECT_FALSE(editor.ErrorMinMax()) << "not while a cell is open";
    editor.EntradaAbierta = false;
    editor.Tipo = kTipoContinua;
    EXPECT_FALSE(editor.ErrorMinMax()) << "only for steps";
}

TEST_F(Editor, TheReferenceLabelsListTheStepsWorthZeroAndOne) {
    const std::pair<const char*, const char*> extremos[] = {
        {"=10", "<20"}, {">0", "=5"}, {"", "=5"}, {"<3", ""}, {"", ""}};
    Acta acta;
    for (const auto& [inicio, fin] : extremos) {
        acta.Fila(std::string("'") + inicio + "' '" + fin + "'", FormatoIntervalo(inicio, fin));
    }
    Escalones({{"1", "=0", "<10", "0"},
               {"2", "=10", "<20", "0.5"},
               {"3", "=20", "=30", "1"},
               {"4", ">30", "<40", ""},
               {"5", "=40", "=50", "0"}});
    editor.ActualizarEtiquetasRef();
    acta.Fila("labels", "'" + editor.lblMinRef + "' '" + editor.lblMaxRef + "'");
    editor.ClickEtiquetaRef(false);
    acta.Fila("click the minimum's", "");
    editor.ClickEtiquetaRef(true);
    acta.Fila("click the maximum's", "");
    acta.Comparar("editor_funcion/etiquetas_ref.txt");
}

TEST_F(Editor, TheCountOfIntervalsGrowsFreelyAndShrinksOnlyWhenConfirmed) {
    editor.Tipo = kTipoEscalon;
    EXPECT_EQ(editor.Filas, (std::vector<FilaIntervalo>{{" -", " -", " -", " -"}}));
    editor.CambiarIntervalos(1);
    EXPECT_EQ(editor.Filas, (std::vector<FilaIntervalo>{{"1", "", "", ""}}));
    EXPECT_TRUE(editor.RejillaHabilitada);
    editor.CambiarIntervalos(3);
    editor.Filas[2][1] = "=20";
    EXPECT_EQ(editor.Filas.back()[0], "3");
    confirmar = false;
    editor.CambiarIntervalos(2);
    EXPECT_EQ(editor.Intervalos, 3) << "declined: the count and the rows stay";
    EXPECT_EQ(editor.Filas.size(), 3U);
    confirmar = true;
    editor.CambiarIntervalos(2);
    EXPECT_EQ(editor.Filas.size(), 2U) << "rows go from the end";
    editor.Aviso = false;
    editor.CambiarIntervalos(0);
    EXPECT_EQ(confirmaciones, 2) << "without the warning nothing is asked";
    EXPECT_EQ(editor.Filas, (std::vector<FilaIntervalo>{{" -", " -", " -", " -"}}));
    EXPECT_FALSE(editor.RejillaHabilitada);
    editor.Aviso = true;
    editor.Cargando = true;
    editor.CambiarIntervalos(2);
    editor.CambiarIntervalos(1);
    EXPECT_EQ(confirmaciones, 2) << "nothing is asked while loading";
    EXPECT_FALSE(editor.AbrirCelda() && editor.ColumnaActual == 0);
    editor.ColumnaActual = 0;
    EXPECT_FALSE(editor.AbrirCelda()) << "the column Id is not edited";
}

TEST_F(Editor, TheKindListAndTheTabsShowTheirPanels) {
    const auto paneles = [](const EditorFuncion& e) {
        const Paneles& p = e.paneles;
        std::string texto;
        for (const auto& [visible, nombre] : {std::pair{p.FondoGrafica, "FondoGrafica"},
                                              {p.Continua, "Continua"},
                                              {p.Escalon, "Escalon"},
                                              {p.Tablas, "Tablas"},
                                              {p.Optativos, "Optativos"},
                                              {p.Error, "Error"},
                                              {p.Referencias, "Referencias"}}) {
            texto += visible ? std::string(" ") + nombre : "";
        }
        return "tab " + std::to_string(e.Pestana) + ":" + texto;
    };
    // The tab before, the kind chosen, the tab clicked afterwards (0: none).
    const std::array<int, 3> casos[] = {
        {1, kTipoContinua, 0},   {2, kTipoContinua, 0},   {2, kTipoEscalon, 0},
        {1, kTipoPuntuacion, 0}, {2, kTipoPuntuacion, 0}, {1, kTipoPuntuacion, 2},
        {1, kTipoContinua, 2},   {1, kTipoEscalon, 2},    {2, kTipoPuntuacion, 1},
    };
    Acta acta;
    for (const auto& [antes, tipo, pestana] : casos) {
        EditorFuncion e;
        e.Pestana = antes;
        e.ClickTipo(tipo);
        if (pestana != 0) {
            e.ClickPestana(pestana);
        }
        acta.Fila("tab " + std::to_string(antes) + ", kind " + std::to_string(tipo) +
                      ", click on tab " + std::to_string(pestana),
                  paneles(e));
    }
    EditorFuncion e;
    e.ClickTipo(kTipoEscalon);
    e.ClickOptativos(true);
    acta.Fila("steps, then the optional indicators",
              paneles(e) + (e.TipoHabilitado ? ", kind list on" : "") +
                  (e.PlantillasHabilitadas ? ", templates on" : ""));
    e.ClickOptativos(false);
    acta.Fila("the optional indicators off", paneles(e));
    acta.Comparar("editor_funcion/paneles.txt");
}

TEST_F(Editor, ReadingAndWritingKeepEveryKindOfRecord) {
    sesion().MostrarAvisoFuncionValor = false;
    FuncionValor continua = pruebas::Continua();
    FuncionValor escalones = pruebas::DeEscalones<FuncionValor>();
    escalones.C = 7.0; // a step function keeps its old parameters
    FuncionValor puntuacion = pruebas::DePuntuacion();
    FuncionValor optativos = pruebas::DeOptativos("I1C1R1");
    for (FuncionValor* original : {&continua, &escalones, &puntuacion, &optativos}) {
        FuncionValor registro = *original;
        EditorFuncion e;
        e.Cargar(registro);
        FuncionValor escrito = *original;
        e.EscribirFuncion(escrito);
        EXPECT_EQ(escrito, *original) << original->Tipo;
        EXPECT_EQ(registro, *original) << "nothing written before acceptance";
    }
    FuncionValor nueva;
    EditorFuncion e;
    e.Cargar(nueva);
    EXPECT_EQ(e.Tipo, kTipoNinguno);
    EXPECT_EQ(e.Intervalos, 0);
    EXPECT_TRUE(e.Aceptar());
    EXPECT_EQ(nueva, FuncionValor{}) << "no kind: no Tipo written, every value empty";
    EXPECT_TRUE(e.PuedeCerrar()) << "accepted: no question";
}

TEST_F(Editor, AcceptingWritesTheRecordAndCancellingRestoresTheFlag) {
    sesion().MostrarAvisoFuncionValor = false;
    FuncionValor registro = pruebas::Continua();
    EditorFuncion e;
    e.Cargar(registro);
    e.Cambio(Campo::K, "0.75");
    EXPECT_TRUE(sesion().modelo.Modificado);
    EXPECT_EQ(registro.K, ValorLibre(0.5));
    e.Cancelar();
    EXPECT_FALSE(sesion().modelo.Modificado);
    Acta acta;
    acta.respuestas = {Respuesta::No, Respuesta::Cancelar, Respuesta::Aceptar};
    acta.Fila("close", e.PuedeCerrar() ? "closes" : "stays");
    EXPECT_FALSE(sesion().modelo.Modificado) << "the cancel's restoring stands";
    ASSERT_TRUE(e.Aceptar());
    EXPECT_EQ(registro.K, ValorLibre(0.75));
    EXPECT_TRUE(sesion().modelo.Modificado);

    // A scoring function without elements is kept as a continuous one if the user agrees.
    FuncionValor vacia = pruebas::DePuntuacion();
    vacia.Puntuaciones.Borrar();
    EditorFuncion p;
    p.Cargar(vacia);
    for (int vez = 0; vez < 2; ++vez) {
        const bool aceptada = p.Aceptar();
        acta.Fila("accept an empty scoring function", std::string(aceptada ? "written" : "kept") +
                                                          ", kind " + std::to_string(p.Tipo) +
                                                          ", record " + std::to_string(vacia.Tipo));
    }
    acta.Comparar("editor_funcion/aceptar.txt");
}

TEST_F(Editor, ActivationReportsALimitThatNoLongerFits) {
    sesion().MostrarAvisoFuncionValor = false;
    FuncionValor registro = pruebas::DeEscalones<FuncionValor>();
    registro.XMax = ">80";
    EditorFuncion e;
    e.Cargar(registro);
    Acta acta;
    e.Activar();
    acta.Fila("activate with the upper limit '>80'",
              "'" + e.Texto(Campo::Max) + "', focus on " +
                  (e.foco ? Nombre(e.foco->campo) : "nothing") +
                  (e.Activando ? ", still activating" : ""));
    acta.Comparar("editor_funcion/activar.txt");
}

TEST_F(Editor, TheSecondInstanceWritesAnOptionalIndicatorsFunction) {
    sesion().MostrarAvisoFuncionValor = false;
    FuncionOptativo registro = pruebas::DeEscalones<FuncionOptativo>();
    EditorFuncion e;
    e.Cargar(registro);
    EXPECT_TRUE(e.EdicionOptativo);
    EXPECT_EQ(e.Tipo, kTipoEscalon);
    e.ClickTipo(kTipoContinua);
    e.Cambio(Campo::C, "40");
    ASSERT_TRUE(e.Aceptar());
    EXPECT_EQ(registro.Tipo, FuncionContinua);
    EXPECT_EQ(registro.C, ValorLibre(40.0));
    EXPECT_EQ(registro.Escalones.Tamano(), 3) << "the grid's rows are still written";
}

TEST_F(Editor, AStepFunctionTakesItsReferenceLimitsFromItsOuterSteps) {
    sesion().MostrarAvisoFuncionValor = false;
    Escalones({{"1", "=0", "<10", "1"}, {"2", "=10", "=30", ""}});
    EscribirCelda(2, 3, "0");
    EXPECT_EQ(editor.Texto(Campo::MinRef), "30") << "decreasing: the zero lies at the end";
    EXPECT_EQ(editor.Texto(Campo::MaxRef), "0");
    EscribirCelda(1, 3, "0");
    EXPECT_EQ(editor.Texto(Campo::MinRef), "0");
    EXPECT_EQ(editor.Texto(Campo::MaxRef), "30");
    EXPECT_EQ(editor.lblMaxRef, "");
    EXPECT_EQ(editor.lblMinRef, "[0,10)[10,30]");
}

} // namespace
} // namespace vadro
