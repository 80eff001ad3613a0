#include "ventana_principal.h"

#include "soporte/modelo_sano.h"
#include "windows/trees/frmComponentes.h"
#include "windows/trees/frmRequerimientos.h"

#include <QMenu>

#include <gtest/gtest.h>

namespace vadro {
namespace {

using Strings = std::vector<std::string>;

class SaltosPanel : public pruebas::VentanaPrincipal {};

TEST_F(SaltosPanel, TheHeadingsDoNothing) {
    NuevoModelo();
    for (int i : {0, 5, 7}) {
        PulsarEtiqueta(i);
    }
    EXPECT_EQ(Situacion(), "Ejes | Posición: ejes | frmEjes");
}

TEST_F(SaltosPanel, TheFirstThreeLabelsOpenTheDesignWindowsOnce) {
    NuevoModelo();
    PulsarEtiqueta(1);
    PulsarEtiqueta(2);
    PulsarEtiqueta(3);
    PulsarEtiqueta(1);
    EXPECT_EQ(Hijas(), (Strings{"frmEjes", "frmRequerimientos", "frmComponentes", "frmEtapas"}));
    EXPECT_EQ(principal.mdiCliente->activeSubWindow()->widget(),
              principal.Abierta<frmRequerimientos>())
        << "an open window comes to the front";
}

TEST_F(SaltosPanel, ResumenFromEjesAcceptsTheDesignWindows) {
    NuevoModelo();
    // Back at "Ejes" from the summary, Retroceder of the panel is off.
    principal.cmdContinuar->click();
    principal.cmdRetroceder->click();
    PulsarEtiqueta(2);
    PulsarEtiqueta(3);
    // The components window holds one component, which its acceptance writes to the model.
    principal.Abierta<frmComponentes>()->Edicion().AñadirComponente("Bomba");
    PulsarEtiqueta(4);
    EXPECT_EQ(Situacion(), "Resumen | Posición: resumen | frmResumen");
    EsperarNormal(2);
    EsperarPendiente(3);
    EXPECT_FALSE(principal.pctFondo->isVisible());
    for (QAction* entrada : {principal.mnuConfiguracionEjes, principal.mnuRequerimientos,
                             principal.mnuComponentes, principal.mnuEtapas}) {
        EXPECT_FALSE(entrada->isEnabled());
    }
    EXPECT_TRUE(Habilitado(8) && Habilitado(9));
    EXPECT_FALSE(Visible(10) || Visible(11) || Visible(12) || Visible(13));
    EXPECT_FALSE(principal.cmdRetroceder->isEnabled()) << "the panel's buttons are not touched";
    EXPECT_TRUE(principal.cmdContinuar->isEnabled());
}

TEST_F(SaltosPanel, ResumenUnloadsTheWeightsButNotTheReport) {
    NuevoModelo();
    principal.cmdContinuar->click();
    UnRequerimiento();
    ContinuarAceptandoPermisos();
    PulsarEtiqueta(4);
    EXPECT_EQ(Hijas(), Strings{"frmResumen"});
    ContinuarAceptandoPermisos();
    principal.cmdContinuar->click();
    PulsarEtiqueta(4);
    EXPECT_EQ(Situacion(), "Resumen | Posición: resumen | frmInforme frmResumen");
}

TEST_F(SaltosPanel, PesosFromEjesSkipsTheQuestionAndLeavesTheAxes) {
    NuevoModelo();
    UnRequerimiento();
    PulsarEtiqueta(6); // the script of modal windows would fail on the question
    EXPECT_EQ(Situacion(), "Ponderacion | Posición: ponderacion | frmEjes frmPonderacion");
    EXPECT_FALSE(principal.mnuImportar->menuAction()->isEnabled());
    EsperarAjusteB();
}

TEST_F(SaltosPanel, PesosFromResumenUnloadsTheSummaryAndItsMark) {
    NuevoModelo();
    principal.cmdContinuar->click();
    EXPECT_TRUE(Negrita(4)) << "the summary marks its label while it is open";
    UnRequerimiento();
    PulsarEtiqueta(6);
    EXPECT_EQ(Hijas(), Strings{"frmPonderacion"});
    EXPECT_FALSE(Negrita(4));
}

TEST_F(SaltosPanel, CompilationLabelRefusesAnEmptyModelAndKeepsItsColour) {
    NuevoModelo();
    for (const ValorLibre& cuenta : {ValorLibre(), ValorLibre(0)}) {
        sesion().modelo.NumRequerimientos = cuenta;
        mensajes.Esperar("VADRO PROGRAMADOR: Compilar modelo",
                         "Imposible compilar. El modelo está vacío.");
        PulsarEtiqueta(8);
        EXPECT_EQ(mensajes.Vistos().back().icono, Icono::Critico);
        EsperarPendiente(8);
        EXPECT_EQ(Hijas(), Strings{"frmEjes"});
    }
}

TEST_F(SaltosPanel, CompilationPaintsItsLabelBlackAndOpensTheWindowAnew) {
    NuevoModelo();
    sesion().modelo = pruebas::ModeloCorrecto();
    const std::string correcta = "VADRO PROGRAMADOR: compilación correcta";
    const std::string pregunta =
        "El modelo no contiene errores.\n"
        "Desea crear el archivo compilado (*.vdc) utilizable por el módulo VADRO USUARIO?";
    mensajes.Esperar(correcta, pregunta, Respuesta::No).Esperar(correcta, pregunta, Respuesta::No);
    PulsarEtiqueta(8);
    EXPECT_EQ(Color(8), QColor(0, 0, 0));
    EXPECT_FALSE(Negrita(8));
    EXPECT_EQ(Hijas(), (Strings{"frmEjes", "frmCompilacion"}));
    QWidget* primera = Hija("frmCompilacion");
    EXPECT_EQ(primera->windowTitle().toStdString(), "Compilación");

    principal.mnuCompilar->trigger();
    EXPECT_EQ(Hijas(), (Strings{"frmEjes", "frmCompilacion"}));
    EXPECT_NE(Hija("frmCompilacion"), primera) << "the open one is unloaded and loaded again";
    EXPECT_EQ(NombrePosicion(principal.Posicion()), "Ejes")
        << "compiling does not move along the line";
}

} // namespace
} // namespace vadro
