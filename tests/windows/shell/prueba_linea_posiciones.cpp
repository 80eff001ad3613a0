#include "ventana_principal.h"

#include "soporte/volcado_ventana.h"

#include "windows/trees/frmComponentes.h"
#include "windows/trees/frmEtapas.h"
#include "windows/trees/frmRequerimientos.h"

#include <QCheckBox>
#include <QLayout>
#include <QMenu>
#include <QPushButton>

#include <gtest/gtest.h>

namespace vadro {
namespace {

using pruebas::Hijo;
using Strings = std::vector<std::string>;

class LineaPosiciones : public pruebas::VentanaPrincipal {
protected:
    const std::string tituloFinal = "VADRO PROGRAMADOR: final de modelo";
    const std::string completado = "Ya ha completado el diseño del modelo.\n\r";
    const std::string pregunta = "Desea compilarlo para detectar posibles errores?";
    const std::string queHacer =
        "Guarde el modelo y cierre la aplicación, cree un modelo nuevo o abra uno existente.";
};

TEST_F(LineaPosiciones, AWalkFromANewModelToTheEndOfTheLineAndBack) {
    // Nuevo: the panel shows before the properties, the axes window loads after them.
    modales.Esperar(QStringLiteral("frmPropiedades"), [this](QDialog& propiedades) {
        EXPECT_TRUE(principal.pctPrincipal->isVisible());
        EXPECT_EQ(principal.windowTitle().toStdString(), "VADRO PROGRAMADOR - [...]");
        EXPECT_TRUE(Hijas().empty());
        Hijo<QPushButton>(propiedades, "cmdAceptar")->click();
    });
    PulsarBoton("Nuevo");
    // The axes stand in front of the background; the model menu and the design group show.
    pruebas::CompararVolcado(principal, "frmPrincipal_ejes");
    for (int i : {1, 2, 3}) {
        EsperarPendiente(i);
    }

    principal.cmdContinuar->click();
    EXPECT_EQ(Situacion(), "Resumen | Posición: resumen | frmResumen");
    EsperarAjusteB();
    EXPECT_TRUE(principal.mnuImportar->menuAction()->isEnabled());

    UnRequerimiento();
    modales.Esperar(QStringLiteral("frmPreguntarPonderacion"), [this](QDialog& permisos) {
        EXPECT_FALSE(principal.mnuImportar->menuAction()->isEnabled());
        EsperarAjusteB();
        auto* ver = Hijo<QCheckBox>(permisos, "chkVerPesos");
        EXPECT_FALSE(ver->isChecked());
        ver->click();
        Hijo<QPushButton>(permisos, "cmdAceptar")->click();
    });
    principal.cmdContinuar->click();
    EXPECT_TRUE(sesion().modelo.PermisoUsuarioVer);
    EXPECT_EQ(Situacion(), "Ponderacion | Posición: ponderacion | frmPonderacion");

    principal.cmdContinuar->click();
    EXPECT_EQ(Situacion(), "Informe | Posición: informe | frmInforme");
    EsperarAjusteB();
    SinRequerimientos();

    // The end of the line, answered each way.
    mensajes.Esperar(tituloFinal, completado + pregunta, Respuesta::No);
    mensajes.Esperar(tituloFinal, queHacer);
    principal.cmdContinuar->click();
    EXPECT_EQ(mensajes.Vistos().at(0).botones, Botones::SiNo);
    EXPECT_EQ(mensajes.Vistos().at(1).icono, Icono::Informacion);
    EXPECT_EQ(Hijas(), Strings{"frmInforme"});
    EXPECT_TRUE(principal.cmdContinuar->isEnabled());

    mensajes.Esperar(tituloFinal, completado + pregunta, Respuesta::Si);
    mensajes.Esperar("VADRO PROGRAMADOR: Compilar modelo",
                     "Imposible compilar. El modelo está vacío.");
    principal.cmdContinuar->click();
    EXPECT_FALSE(principal.cmdContinuar->isEnabled()) << "no way further once compiling";
    EXPECT_FALSE(Habilitado(9));
    EXPECT_TRUE(principal.cmdRetroceder->isEnabled());
    EXPECT_TRUE(Habilitado(8));
    EsperarPendiente(8);
    EXPECT_EQ(Hijas(), Strings{"frmInforme"}) << "the empty model opened no compilation";
    EXPECT_EQ(mensajes.Vistos().size(), 4u);

    // Back: no requirements, so the weights are skipped.
    principal.cmdRetroceder->click();
    EXPECT_EQ(Situacion(), "Resumen | Posición: resumen | frmResumen");
    EsperarAjusteB();

    principal.cmdRetroceder->click();
    EXPECT_EQ(Situacion(), "Ejes | Posición: ejes | frmEjes");
    EsperarAjusteA();
    EXPECT_FALSE(principal.mnuImportar->menuAction()->isEnabled())
        << "only the way back from the weights enables the import again";
}

TEST_F(LineaPosiciones, RetrocederFromANewModelLeavesForTheEmptyDesk) {
    NuevoModelo();
    PulsarEtiqueta(1);
    sesion().modelo.NumRequerimientos = 2;
    ASSERT_EQ(Hijas(), (Strings{"frmEjes", "frmRequerimientos"}));
    const Modelo antes = sesion().modelo;

    principal.cmdRetroceder->click();
    EXPECT_EQ(Situacion(), "Ejes | Posición: ejes |") << "the position stays, no window";
    EXPECT_FALSE(principal.pctPrincipal->isVisible());
    EXPECT_FALSE(principal.pctFondo->isVisible());
    principal.centralWidget()->layout()->activate();
    EXPECT_EQ(principal.mdiCliente->width(), principal.centralWidget()->width())
        << "the client area takes the whole width";
    // Which entries and buttons go off is the core's table; the walk above shows it applied.
    EXPECT_TRUE(Visible(10) && Visible(11) && Visible(12) && Visible(13)) << "the design group";
    EXPECT_EQ(sesion().modelo, antes) << "the requirements window went unaccepted";
}

TEST_F(LineaPosiciones, TheToolbarMirrorsTheTwoButtons) {
    NuevoModelo();
    PulsarBoton("Retroceder");
    EXPECT_EQ(Hijas(), Strings{"frmEjes"}) << "button 8 is off at a new model";
    PulsarBoton("Continuar");
    EXPECT_EQ(NombrePosicion(principal.Posicion()), "Resumen");
    PulsarBoton("Retroceder");
    EXPECT_EQ(Situacion(), "Ejes | Posición: ejes | frmEjes");
}

TEST_F(LineaPosiciones, ThePermissionDialogShowsTheModelAndOnlyItsAcceptanceMovesOn) {
    NuevoModelo();
    principal.cmdContinuar->click();
    sesion().modelo.PermisoUsuarioVer = true;
    modales.Esperar(QStringLiteral("frmPreguntarPonderacion"), [](QDialog& permisos) {
        EXPECT_EQ(permisos.windowTitle().toStdString(), "Permisos del usuario");
        auto* ver = Hijo<QCheckBox>(permisos, "chkVerPesos");
        EXPECT_EQ(ver->text().toStdString(),
                  "Permitir al usuario ver características significativas del árbol de "
                  "requerimientos (funciones de valor, pesos...)");
        EXPECT_TRUE(ver->isChecked());
        ver->click();
        permisos.reject();
    });
    principal.EscribirEstado(QStringLiteral("pista"));
    principal.cmdContinuar->click();
    EXPECT_TRUE(sesion().modelo.PermisoUsuarioVer) << "nothing is stored without acceptance";
    EXPECT_EQ(Situacion(), "Resumen | Posición: resumen | frmResumen")
        << "the status bar is rewritten all the same";
    EXPECT_FALSE(principal.mnuImportar->menuAction()->isEnabled());
}

TEST_F(LineaPosiciones, LeavingEjesForwardsAcceptsOnlyTheDesignWindowsStillOpen) {
    NuevoModelo();
    PulsarEtiqueta(1);
    PulsarEtiqueta(2);
    PulsarEtiqueta(3);
    // The requirements window is closed by its frame: it is no longer loaded.
    principal.Abierta<frmRequerimientos>()->Descargar();
    sesion().modelo.NumRequerimientos = 1;
    // The two windows still open hold content, which their acceptance writes to the model.
    principal.Abierta<frmComponentes>()->Edicion().AñadirComponente("Bomba");
    principal.Abierta<frmEtapas>()->Edicion().AgregarEtapa("Obra");
    principal.cmdContinuar->click();
    EsperarPendiente(1);
    EsperarNormal(2);
    EsperarNormal(3);
    EXPECT_EQ(Hijas(), Strings{"frmResumen"});
}

TEST_F(LineaPosiciones, AcceptingADesignWindowSetsItsLabelByTheModelAndUnloadsIt) {
    NuevoModelo();
    PulsarEtiqueta(3);
    Hijo<QPushButton>(*Hija("frmEtapas"), "cmdAceptar")->click();
    EsperarPendiente(3);
    EXPECT_EQ(Hijas(), Strings{"frmEjes"});

    sesion().modelo.NumEtapas = 1;
    PulsarBoton("Tiempo");
    Hijo<QPushButton>(*Hija("frmEtapas"), "cmdAceptar")->click();
    EsperarNormal(3);
    EXPECT_EQ(Hijas(), Strings{"frmEjes"});
}

} // namespace
} // namespace vadro
