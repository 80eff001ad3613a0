#include "editor_sin_ventana.h"

#include <algorithm>
#include <iomanip>
#include <sstream>

namespace vadro {
namespace {

const std::string kTituloError = "VADRO PROGRAMADOR: error";

const char* const kCampos[] = {"Min", "Max", "MinRef", "MaxRef", "Unidades", "C", "K", "P"};
using pruebas::Acta;
using pruebas::Caso;
using pruebas::Casos;

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

class Editor : public pruebas::EditorSinVentana {
protected:
    Editor() {
        editor.MostrarAviso = [this] { ++avisos; };
    }
    // The inputs as a loaded window leaves them, without running their handlers.
    void Limites(const std::string& min, const std::string& max, const std::string& minRef,
                 const std::string& maxRef) {
        editor.Texto(Campo::Min) = min;
        editor.Texto(Campo::Max) = max;
        editor.Texto(Campo::MinRef) = minRef;
        editor.Texto(Campo::MaxRef) = maxRef;
    }
    // A case "leave <input> limits <min> <max> references <min> <max>": the four limits set,
    // then the input left.
    Campo Dejar(const Caso& caso) {
        const std::vector<std::string>& c = caso.campos;
        Limites(c.at(3), c.at(4), c.at(6), c.at(7));
        editor.Salir(DeNombre(c.at(1)));
        return DeNombre(c.at(1));
    }
    // A step grid of these rows, the kind "Escalón".
    void Escalones(std::vector<FilaIntervalo> filas) {
        editor.Tipo = kTipoEscalon;
        editor.Filas = std::move(filas);
        editor.Intervalos = static_cast<int>(editor.Filas.size());
        editor.RejillaHabilitada = true;
    }
    // The current cell at the row and column of a case's fields `k` and `k + 1`.
    void EnCelda(const Caso& caso, std::size_t k) {
        editor.FilaActual = std::stoi(caso.campos.at(k));
        editor.ColumnaActual = std::stoi(caso.campos.at(k + 1));
    }

    int avisos = 0;
};

TEST_F(Editor, TheBoundsAndStepOfCFollowTheReferenceLimits) {
    Acta acta;
    for (const Caso& caso : Casos("editor_funcion/limites_c.txt")) {
        if (caso.campos.at(0) != "references") { // the last row: the captions of K and P
            acta.Fila(caso.texto, editor.lblLimitesK + " | " + editor.lblLimitesP);
            continue;
        }
        Limites("", "", caso.campos.at(1), caso.campos.at(2));
        editor.Texto(Campo::C) = caso.campos.at(4);
        editor.ActualizarLimites();
        acta.Fila(caso.texto, Formato(editor.CInferior) + " < C < " + Formato(editor.CSuperior) +
                                  " step " + Formato(editor.PasoC) + ", '" + editor.lblLimitesC +
                                  "', C '" + editor.Texto(Campo::C) + "'");
    }
    acta.Comparar("editor_funcion/limites_c.txt");
}

TEST_F(Editor, TheShapeParametersTakeOnlyNumbersWithinTheirBounds) {
    Limites("", "", "0", "10");
    editor.ActualizarLimites();
    Acta acta;
    for (const Caso& caso : Casos("editor_funcion/parametros.txt")) {
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

// A case "<parameter> <text> up", "... down" (the up-down control) or "... key <code>".
TEST_F(Editor, UpDownStepsStopAtTheBoundsExceptAboveP) {
    Limites("", "", "0", "0.5");
    editor.ActualizarLimites();
    Acta acta;
    for (const Caso& caso : Casos("editor_funcion/subir_bajar.txt")) {
        const Campo campo = DeNombre(caso.campos.at(0));
        editor.Texto(campo) = caso.campos.at(1);
        std::string tecla;
        if (caso.campos.at(2) == "key") {
            tecla = editor.Tecla(campo, std::stoi(caso.campos.at(3))) ? ", used" : ", not used";
        } else if (caso.campos.at(2) == "up") {
            editor.Subir(campo);
        } else {
            editor.Bajar(campo);
        }
        acta.Fila(caso.texto, "'" + editor.Texto(campo) + "'" + tecla);
    }
    acta.Comparar("editor_funcion/subir_bajar.txt");
}

TEST_F(Editor, AShapeButtonActsOnlyOnAUserClickAndDrawsOnce) {
    Acta acta;
    for (const Caso& caso : Casos("editor_funcion/formas.txt")) {
        const int indice = std::stoi(caso.campos.at(1));
        EditorFuncion e;
        e.Texto(Campo::MinRef) = caso.campos.at(3);
        e.Texto(Campo::MaxRef) = caso.campos.at(4);
        e.ActualizarLimites();
        const int dibujos = e.Dibujos;
        e.ClickForma(indice);
        EXPECT_EQ(e.Dibujos, dibujos) << "a click the user did not make";
        e.PulsarForma(indice);
        e.ClickForma(indice);
        EXPECT_EQ(e.Dibujos, dibujos + 1) << caso.texto;
        EXPECT_EQ(e.Tipo, kTipoContinua);
        EXPECT_EQ(e.EtiquetaParametro, (std::array<std::string, 3>{})) << "tags cleared";
        acta.Fila(caso.texto, "P " + e.Texto(Campo::P) + " C " + e.Texto(Campo::C) + " K " +
                                  e.Texto(Campo::K) + ", tag '" +
                                  e.EtiquetaForma[static_cast<std::size_t>(indice)] + "'");
    }
    acta.Comparar("editor_funcion/formas.txt");
}

// Decreasing references ask about the minimum with the word of the maximum; a lower limit
// with a leading symbol is read leniently there, as 0.
TEST_F(Editor, TheReferenceLimitsAskAboutTheValidityLimitsWithTheirOwnWords) {
    Acta acta;
    for (const Caso& caso : Casos("editor_funcion/limites_referencia.txt")) {
        acta.respuestas = {caso.campos.back() == "No" ? Respuesta::No : Respuesta::Si};
        sesion().modelo.Modificado = false;
        const Campo campo = Dejar(caso);
        EXPECT_TRUE(sesion().modelo.Modificado) << caso.texto;
        acta.Fila(caso.texto, "'" + editor.Texto(campo) + "'");
    }
    acta.Comparar("editor_funcion/limites_referencia.txt");
    Limites("", "", "", "");
    editor.Salir(Campo::MaxRef);
    EXPECT_TRUE(editor.chkMaxRefUsuario) << "an empty limit is left to the user";
    EXPECT_FALSE(editor.chkMinRefUsuario);
}

TEST_F(Editor, AReferenceLimitThatIsNoNumberGoesBackToTheLastGoodOne) {
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
    Acta acta;
    for (const Caso& caso : Casos("editor_funcion/limites_validez.txt")) {
        Dejar(caso);
        EXPECT_FALSE(editor.foco) << caso.texto;
        acta.Fila(caso.texto, "");
    }
    acta.Comparar("editor_funcion/limites_validez.txt");
}

// A limit is refused, and emptied, for its symbol or its number; under a step function it must
// also meet the outer step (`celda`, the last end or the first start) with one closed side.
TEST_F(Editor, ErrorLimitesRefusesByEmptyingTheLimit) {
    Acta acta;
    for (const Caso& caso : Casos("editor_funcion/error_limites.txt")) {
        Escalones({{"1", "=0", "<50", "0"}, {"2", "=50", "=100", "1"}});
        const Campo campo = DeNombre(caso.campos.at(0));
        const bool maximo = campo == Campo::Max;
        if (caso.campos.size() < 5) {
            editor.Tipo = kTipoContinua;
        } else {
            editor.Filas[maximo ? 1 : 0][maximo ? 2 : 1] = caso.campos.at(4);
        }
        editor.Texto(campo) = caso.campos.at(1);
        const bool error = editor.ErrorLimites(maximo);
        acta.Fila(caso.texto,
                  (error ? "refused, left '" : "passes, left '") + editor.Texto(campo) + "'");
    }
    acta.Comparar("editor_funcion/error_limites.txt");
}

TEST_F(Editor, LeavingAnEmptyValidityLimitChecksTheOtherAndSendsTheFocusThere) {
    Acta acta;
    for (const Caso& caso : Casos("editor_funcion/limite_vacio.txt")) {
        editor.foco.reset();
        Dejar(caso);
        acta.Fila(caso.texto, "Min '" + editor.Texto(Campo::Min) + "', focus on " +
                                  (editor.foco ? Nombre(editor.foco->campo) : "nothing") +
                                  (editor.chkMaxUsuario ? ", Max left to the user" : ""));
    }
    acta.Comparar("editor_funcion/limite_vacio.txt");
    EXPECT_TRUE(editor.Tecla(Campo::Min, 13)) << "Enter leaves the limit";
}

TEST_F(Editor, TheAdjustBoxesDisableOrRestoreTheReferenceLimits) {
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
    sesion().MostrarAvisoFuncionValor = true;
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
    Acta acta;
    for (const Caso& caso : Casos("editor_funcion/validar_intervalo.txt")) {
        Escalones({{"1", "=0", "<10", "1"}, {"2", "=10", "=20", "0.5"}, {"3", ">20", "=30", "1"}});
        Limites("<0", ">30", "", "");
        EnCelda(caso, 1);
        acta.Fila(caso.texto, editor.ValidarIntervalo(caso.campos.at(3)) ? "refused" : "passes");
    }
    acta.Comparar("editor_funcion/validar_intervalo.txt");
    // A start is checked only when its own end is filled.
    Escalones({{"1", "=0", "<10", "0"}, {"2", "", "", ""}});
    editor.FilaActual = 2;
    editor.ColumnaActual = 1;
    EXPECT_FALSE(editor.ValidarIntervalo(">99"));
}

TEST_F(Editor, LeavingACellCommitsAGoodTextAndKeepsTheOldOneOtherwise) {
    Escalones({{"1", "=0", "<10", "0"}, {"2", "", "", ""}, {"3", "", "", ""}});
    Acta acta;
    for (const Caso& caso : Casos("editor_funcion/salir_celda.txt")) {
        const int fila = std::stoi(caso.campos.at(1));
        const int columna = std::stoi(caso.campos.at(2));
        Escribir(fila, columna, caso.campos.at(3));
        acta.Fila(caso.texto, "'" + editor.Filas[static_cast<std::size_t>(fila - 1)][columna] +
                                  "'" + (editor.EntradaAbierta ? ", input open" : ""));
    }
    acta.Comparar("editor_funcion/salir_celda.txt");
    const int dibujos = editor.Dibujos;
    editor.SalirCelda("=5");
    EXPECT_EQ(editor.Dibujos, dibujos) << "no input open: nothing happens";
}

TEST_F(Editor, TheKeysOfTheFloatingInputValidateCommitAndMove) {
    Escalones({{"1", "=0", "<10", "0"}, {"2", "=10", "=20", "1"}});
    const char* const acciones[] = {"nothing", "committed", "discarded", "moved", "kept open"};
    Acta acta;
    for (const Caso& caso : Casos("editor_funcion/teclas_entrada.txt")) {
        EnCelda(caso, 3);
        ASSERT_TRUE(editor.AbrirCelda());
        const AccionEntrada accion =
            editor.TeclaEntrada(std::stoi(caso.campos.at(1)), caso.campos.at(6));
        acta.Fila(caso.texto, std::string(acciones[static_cast<int>(accion)]) + ", now at " +
                                  std::to_string(editor.FilaActual) + "," +
                                  std::to_string(editor.ColumnaActual) +
                                  (editor.EntradaAbierta ? ", input open" : ""));
        editor.EntradaAbierta = false;
    }
    acta.Comparar("editor_funcion/teclas_entrada.txt");
    EXPECT_EQ(editor.Filas[1][2], "=20") << "Escape kept the cell";
}

TEST_F(Editor, ErrorMinMaxWantsAZeroAndAOneSomewhere) {
    Acta acta;
    for (const Caso& caso : Casos("editor_funcion/min_max.txt")) {
        std::vector<FilaIntervalo> filas;
        for (std::size_t k = 1; k < caso.campos.size(); ++k) {
            filas.push_back({"", "", "", caso.campos[k]});
        }
        Escalones(filas);
        if (filas.empty()) {
            editor.CambiarIntervalos(0);
        }
        editor.FilaActual = 2;
        editor.ColumnaActual = 1;
        const bool error = editor.ErrorMinMax();
        acta.Fila(caso.texto, (error ? "refused" : "passes") + std::string(", cell ") +
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

// The cases of one interval's notation first: "<start> <end>".
TEST_F(Editor, TheReferenceLabelsListTheStepsWorthZeroAndOne) {
    Acta acta;
    for (const Caso& caso : Casos("editor_funcion/etiquetas_ref.txt")) {
        if (caso.campos.size() != 2) {
            break;
        }
        acta.Fila(caso.texto, FormatoIntervalo(caso.campos[0], caso.campos[1]));
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

// A case "tab <before> kind <chosen> click on tab <afterwards, 0: none>" on a fresh editor, or
// "then kind|tab|optional <n>": one more step on one editor, optional 1 ticking the box.
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
    Acta acta;
    EditorFuncion pasos;
    for (const Caso& caso : Casos("editor_funcion/paneles.txt")) {
        const auto numero = [&caso](std::size_t k) { return std::stoi(caso.campos.at(k)); };
        if (caso.campos.at(0) == "then") {
            if (caso.campos.at(1) == "kind") {
                pasos.ClickTipo(numero(2));
            } else if (caso.campos.at(1) == "tab") {
                pasos.ClickPestana(numero(2));
            } else {
                pasos.ClickOptativos(numero(2) == 1);
            }
            acta.Fila(caso.texto, paneles(pasos) + (pasos.TipoHabilitado ? ", kind list on" : "") +
                                      (pasos.PlantillasHabilitadas ? ", templates on" : ""));
            continue;
        }
        EditorFuncion e;
        e.Pestana = numero(1);
        e.ClickTipo(numero(3));
        if (numero(7) != 0) {
            e.ClickPestana(numero(7));
        }
        acta.Fila(caso.texto, paneles(e));
    }
    acta.Comparar("editor_funcion/paneles.txt");
}

TEST_F(Editor, ReadingAndWritingKeepEveryKindOfRecord) {
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

TEST_F(Editor, AcceptingWritesTheRecordCancellingRestoresTheFlagActivatingChecks) {
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

    // The activation reports a limit that no longer fits the steps.
    FuncionValor escalones = pruebas::DeEscalones<FuncionValor>();
    escalones.XMax = ">80";
    EditorFuncion a;
    a.Cargar(escalones);
    a.Activar();
    acta.Fila("activate with the upper limit '>80'",
              "'" + a.Texto(Campo::Max) + "', focus on " +
                  (a.foco ? Nombre(a.foco->campo) : "nothing") +
                  (a.Activando ? ", still activating" : ""));
    acta.Comparar("editor_funcion/aceptar.txt");
}

TEST_F(Editor, TheSecondInstanceWritesAnOptionalIndicatorsFunction) {
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
    Escalones({{"1", "=0", "<10", "1"}, {"2", "=10", "=30", ""}});
    Escribir(2, 3, "0");
    EXPECT_EQ(editor.Texto(Campo::MinRef), "30") << "decreasing: the zero lies at the end";
    EXPECT_EQ(editor.Texto(Campo::MaxRef), "0");
    Escribir(1, 3, "0");
    EXPECT_EQ(editor.Texto(Campo::MinRef), "0");
    EXPECT_EQ(editor.Texto(Campo::MaxRef), "30");
    EXPECT_EQ(editor.lblMaxRef, "");
    EXPECT_EQ(editor.lblMinRef, "[0,10)[10,30]");
}

} // namespace
} // namespace vadro
