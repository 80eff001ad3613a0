// From a finding of the compilation report to its place: the main window compiles a model
// with findings of every kind, the user double-clicks a line, and lands where the line says.

#include "ventana_principal.h"

#include "soporte/modelo_hallazgos.h"
#include "windows/compilation/frmCompilacion.h"
#include "windows/core/texto.h"
#include "windows/trees/frmComponentes.h"
#include "windows/trees/frmEtapas.h"
#include "windows/trees/frmRequerimientos.h"
#include "windows/trees/vista_arbol.h"

#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPointer>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

namespace vadro {
namespace {

using pruebas::Hijo;
using Strings = std::vector<std::string>;

const std::string kIncorrecta = "VADRO PROGRAMADOR: compilación incorrecta";
const std::string kErrores = "El modelo contiene errores.\nCorríjalos para poder crear el "
                             "archivo utilizable por el módulo VADRO USUARIO.";

constexpr const char* kR = "frmRequerimientos";
constexpr const char* kC = "frmComponentes";

class Navegacion : public pruebas::VentanaPrincipal {
protected:
    // A new model that holds findings of every kind, walked to the position, and compiled there.
    void CompilarEn(Posicion desde) {
        NuevoModelo();
        sesion().modelo = pruebas::ModeloConHallazgos();
        if (desde != Posicion::Ejes) {
            principal.cmdContinuar->click();
        }
        if (desde == Posicion::Ponderacion || desde == Posicion::Informe) {
            ContinuarAceptandoPermisos();
        }
        if (desde == Posicion::Informe) {
            principal.cmdContinuar->click();
        }
        ASSERT_EQ(principal.Posicion(), desde);
        mensajes.Esperar(kIncorrecta, kErrores);
        PulsarBoton("Compilar");
    }

    frmCompilacion& Informe() const {
        return *dynamic_cast<frmCompilacion*>(Hija("frmCompilacion"));
    }

    // A double click on the first line with that key.
    void DobleClic(const std::string& clave) {
        const QListWidget* claves = Informe().lstClaves;
        int fila = 0;
        while (fila < claves->count() && ACadena(claves->item(fila)->text()) != clave) {
            ++fila;
        }
        ASSERT_LT(fila, claves->count()) << "no report line keyed " << clave;
        QListWidget* lista = Informe().lstErrores;
        QListWidgetItem* item = lista->item(fila);
        lista->scrollToItem(item);
        const QPoint punto = lista->visualItemRect(item).center();
        QTest::mouseClick(lista->viewport(), Qt::LeftButton, {}, punto);
        QTest::mouseDClick(lista->viewport(), Qt::LeftButton, {}, punto);
    }

    std::string Activa() const {
        QMdiSubWindow* marco = principal.mdiCliente->activeSubWindow();
        return marco != nullptr ? ACadena(marco->widget()->objectName()) : "";
    }

    // The selected node of the tree window of that name: key and text, as the logic holds it
    // and as the view shows it current.
    std::string Seleccionado(const std::string& ventana) const {
        QWidget* hija = Hija(ventana.c_str());
        const VistaArbol* vista = Hijo<VistaArbol>(*hija, "tvwArbol");
        const Arbol* arbol = ventana == kR
                                 ? &dynamic_cast<frmRequerimientos*>(hija)->Edicion().tvwArbol
                                 : &dynamic_cast<frmComponentes*>(hija)->Edicion().tvwArbol;
        const NodoArbol* nodo = arbol->Seleccionado();
        if (nodo == nullptr) {
            return "";
        }
        EXPECT_EQ(ACadena(vista->currentIndex().data().toString()), nodo->Text());
        return nodo->Key() + " " + nodo->Text();
    }

    // The text in the label's in-place edit of a tree window; empty when none is open.
    std::string EnEdicion(const std::string& ventana) const {
        auto* vista = Hijo<VistaArbol>(*Hija(ventana.c_str()), "tvwArbol");
        for (const QLineEdit* campo : vista->viewport()->findChildren<QLineEdit*>()) {
            if (campo->isVisible()) {
                return ACadena(campo->text());
            }
        }
        return "";
    }
};

struct Caso {
    const char* clave;
    Posicion desde;
    Strings hijas; // the loaded windows, in the order of their loading; the last on top
    const char* estado;
    const char* ventanaArbol; // the tree window whose node is looked at, or none
    const char* nodo;         // its selected node, key and text
    const char* edicion;      // the text in the label's edit; empty when none
};

class NavegacionPorClave : public Navegacion, public ::testing::WithParamInterface<Caso> {};

TEST_P(NavegacionPorClave, TheDoubleClickLandsOnTheWindowStepAndNodeOfTheKey) {
    const Caso& c = GetParam();
    CompilarEn(c.desde);
    DobleClic(c.clave);
    EXPECT_EQ(Hijas(), c.hijas);
    EXPECT_EQ(Activa(), c.hijas.back()) << "the report stays behind the opened window";
    EXPECT_EQ(Estado(), c.estado);
    if (std::string(c.estado) == "Posición: ejes") {
        EXPECT_EQ(principal.Posicion(), Posicion::Ejes);
        EsperarAjusteA();
        EXPECT_TRUE(principal.mnuImportar->menuAction()->isEnabled());
    } else if (std::string(c.estado) == "Posición: ponderacion") {
        EXPECT_EQ(principal.Posicion(), Posicion::Ponderacion);
        EsperarAjusteB();
    } else {
        EXPECT_EQ(principal.Posicion(), c.desde) << "the step stays";
    }
    if (c.ventanaArbol != nullptr) {
        EXPECT_EQ(Seleccionado(c.ventanaArbol), c.nodo);
        EXPECT_EQ(EnEdicion(c.ventanaArbol), c.edicion);
    }
}

const Strings kReq = {"frmCompilacion", "frmEjes", "frmRequerimientos"};
const Strings kCmp = {"frmCompilacion", "frmEjes", "frmComponentes"};
constexpr const char* kEjes = "Posición: ejes";

// One key of each way; which window and step every key word reaches, from every step, is the
// core's table of the way to a finding. A repeated name, whose label is put in edit, is in the
// tests of a refused close and of a reloaded window below.
INSTANTIATE_TEST_SUITE_P(
    CadaCamino, NavegacionPorClave,
    ::testing::Values(
        // An option's key names no node of the tree: the node of the last index stands for it.
        Caso{"CmpRep Op2Co1", Posicion::Informe, kCmp, kEjes, kC, "Co2 ESTRUCTURA", "ESTRUCTURA"},
        // A node without weight: the overview, at its step, over the report.
        Caso{"PesNul R2", Posicion::Informe, Strings{"frmCompilacion", "frmPonderacion"},
             "Posición: ponderacion", nullptr, "", ""},
        // A matrix: the windows in the way close, the user stays in the report.
        Caso{"NoCons CR1", Posicion::Informe, Strings{"frmInforme", "frmCompilacion"},
             "Posición: informe", nullptr, "", ""}));

TEST_F(Navegacion, AValueFunctionFindingOpensTheEditorOnTheIndicatorOverItsTree) {
    CompilarEn(Posicion::Resumen);
    sesion().MostrarAvisoFuncionValor = false; // the notice before the first drawing
    mensajes.Esperar("VADRO",
                     "Se perderán los últimos valores introducidos. Está seguro que quiere "
                     "cerrar la ventana?",
                     Respuesta::Si);
    modales.Esperar(QStringLiteral("frmFuncionValor"), [this](QDialog& editor) {
        EXPECT_EQ(editor.windowTitle().toStdString(),
                  "Definición de la función de valor - [Energía]");
        EXPECT_EQ(Hijas(), kReq);
        EXPECT_EQ(Estado(), kEjes);
        EXPECT_EQ(Seleccionado(kR), "I1C2R1 Energía");
        auto* r = dynamic_cast<frmRequerimientos*>(Hija(kR));
        const NodoArbol* nodo = r->Edicion().tvwArbol.Seleccionado();
        ASSERT_TRUE(nodo->Tag().has_value());
        EXPECT_EQ(sesion().NodoEdicionActual, *nodo->Tag()) << "the editor works on its row";
        EXPECT_EQ(r->Edicion().TitulosMarcos[3], "Indicadores del criterio 2");
        EXPECT_TRUE(r->cmdFuncion->isEnabled());
        Hijo<QPushButton>(editor, "cmdCancelar")->click();
    });
    DobleClic("FunVal I1C2R1");
    EXPECT_EQ(modales.Vistas().back(), QStringLiteral("frmFuncionValor"));
    EXPECT_EQ(Activa(), kR);
}

TEST_F(Navegacion, ARefusedCloseStopsTheWayAndLeavesEverythingAsItStood) {
    CompilarEn(Posicion::Ejes);
    DobleClic("CmpRep Co2");
    const Strings antes = {"frmEjes", "frmCompilacion", "frmComponentes"};
    ASSERT_EQ(Hijas(), antes);
    const std::string descartar =
        "Está seguro que quiere descartar los cambios realizados en el árbol de componentes?";
    mensajes.Esperar("VADRO PROGRAMADOR: cerrar componentes", descartar, Respuesta::No);
    // The requirements window would close first: it is not open, so only the question stops.
    DobleClic("ReqRep I2S1C2R2");
    EXPECT_EQ(Hijas(), antes);
    EXPECT_EQ(Estado(), kEjes);
    EXPECT_EQ(Seleccionado(kC), "Co2 ESTRUCTURA") << "the tree as the user left it";

    // Nor is the axes window unloaded for the weights' step.
    mensajes.Esperar("VADRO PROGRAMADOR: cerrar componentes", descartar, Respuesta::No);
    DobleClic("PesNul R2");
    EXPECT_EQ(Hijas(), antes);
    EXPECT_EQ(principal.Posicion(), Posicion::Ejes);

    mensajes.Esperar("VADRO PROGRAMADOR: cerrar componentes", descartar, Respuesta::Si);
    DobleClic("ReqRep I2S1C2R2");
    EXPECT_EQ(Hijas(), (Strings{"frmEjes", "frmCompilacion", "frmRequerimientos"}));
    EXPECT_EQ(EnEdicion(kR), "RUIDO");
}

TEST_F(Navegacion, AnOpenRequirementsWindowIsReloadedFromTheModelTheReportWasMadeOf) {
    NuevoModelo();
    sesion().modelo = pruebas::ModeloConHallazgos();
    PulsarEtiqueta(1);
    const QPointer<QWidget> primera = Hija(kR);
    // Compiling stores the open tree first; the finding's window is a fresh load of it.
    mensajes.Esperar(kIncorrecta, kErrores);
    PulsarBoton("Compilar");
    DobleClic("SinHij C1R2");
    EXPECT_EQ(Hijas(), (Strings{"frmEjes", "frmCompilacion", "frmRequerimientos"}));
    EXPECT_TRUE(primera.isNull() || !dynamic_cast<frmRequerimientos&>(*primera).Cargado);
    EXPECT_EQ(Seleccionado(kR), "C1R2 Empleo");
    // A second line leads within the same step: the window goes and comes again.
    DobleClic("ReqRep I2S1C2R2");
    EXPECT_EQ(Seleccionado(kR), "I2S1C2R2 RUIDO");
    EXPECT_EQ(EnEdicion(kR), "RUIDO");
    EXPECT_EQ(Activa(), kR);
}

// The main window's own call, as the report's signal makes it: here no click of the test
// platform takes the activation from the main window afterwards, so what stays once the
// events have run is what the user gets.
TEST_F(Navegacion, TheLabelEditLastsOnceTheEventsOfTheWayHaveRun) {
    CompilarEn(Posicion::Informe);
    // The modal windows on the way here have settled: the main window is the active one.
    principal.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&principal));
    principal.IrAError(QStringLiteral("CmpRep Co2"));
    QApplication::processEvents();
    EXPECT_EQ(EnEdicion(kC), "ESTRUCTURA");
    EXPECT_EQ(Activa(), kC);
    mensajes.Esperar("VADRO PROGRAMADOR: cerrar componentes",
                     "Está seguro que quiere descartar los cambios realizados en el árbol de "
                     "componentes?",
                     Respuesta::Si);
    principal.IrAError(QStringLiteral("ReqRep I2S1C2R2"));
    QApplication::processEvents();
    EXPECT_EQ(EnEdicion(kR), "RUIDO");
    EXPECT_EQ(Hijas(), kReq);
    principal.IrAError(QString());
    EXPECT_EQ(EnEdicion(kR), "RUIDO") << "the empty key does nothing, not even a close";
}

} // namespace
} // namespace vadro
