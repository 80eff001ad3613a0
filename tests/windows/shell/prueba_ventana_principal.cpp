#include "ventana_principal.h"

#include "windows/core/frmPreferencias.h"

#include <QComboBox>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTimer>
#include <QToolBar>

#include <gtest/gtest.h>

namespace vadro {
namespace {

using pruebas::Hijo;
using Strings = std::vector<std::string>;

class VentanaPrincipal_ : public pruebas::VentanaPrincipal {
protected:
    std::string Texto(const char* entrada) {
        return Hijo<QAction>(principal, entrada)->text().toStdString();
    }
    std::string Titulo(const char* menu) {
        return Hijo<QMenu>(principal, menu)->title().toStdString();
    }
    // The entries of a menu by name, separators left out.
    Strings Entradas(const char* menu) {
        Strings nombres;
        for (QAction* accion : Hijo<QMenu>(principal, menu)->actions()) {
            if (!accion->isSeparator()) {
                nombres.push_back(accion->objectName().toStdString());
            }
        }
        return nombres;
    }
};

TEST_F(VentanaPrincipal_, TheMenuBarWithItsCaptionsAndAccessKeys) {
    Strings barra;
    for (QAction* menu : principal.menuBar()->actions()) {
        barra.push_back(menu->text().toStdString());
    }
    EXPECT_EQ(barra,
              (Strings{"&Archivo", "&Modelo", "&Arbol", "&ArbolComp", "Ve&ntana", "Ay&uda"}));
    EXPECT_EQ(Entradas("mnuArchivo"),
              (Strings{"mnuNuevo", "mnuAbrir", "mnuGuardar", "mnuGuardarComo", "mnuVista",
                       "mnuImprimir", "mnuPreferencias", "mnuSalir"}));
    EXPECT_EQ(Texto("mnuNuevo"), "&Nuevo");
    EXPECT_EQ(Texto("mnuAbrir"), "&Abrir");
    EXPECT_EQ(Texto("mnuGuardar"), "Gua&rdar");
    EXPECT_EQ(Texto("mnuGuardarComo"), "Guar&dar como...");
    EXPECT_EQ(Texto("mnuVista"), "&Vista preliminar");
    EXPECT_EQ(Texto("mnuImprimir"), "&Imprimir");
    EXPECT_EQ(Texto("mnuPreferencias"), "Pre&ferencias");
    EXPECT_EQ(Texto("mnuSalir"), "&Salir");

    EXPECT_EQ(Titulo("mnuImportar"), "I&mportar");
    EXPECT_EQ(Titulo("mnuExportar"), "E&xportar");
    EXPECT_EQ(Entradas("mnuImportar"),
              (Strings{"mnuImportarR", "mnuImportarComp", "mnuImportarEtapas"}));
    EXPECT_EQ(Entradas("mnuExportar"),
              (Strings{"mnuExportarR", "mnuExportarComp", "mnuExportarEtapas"}));
    for (const char* sufijo : {"R", "Comp", "Etapas"}) {
        EXPECT_EQ(Texto(("mnuImportar" + std::string(sufijo)).c_str()),
                  Texto(("mnuExportar" + std::string(sufijo)).c_str()));
    }
    EXPECT_EQ(Texto("mnuImportarR"), "Arbol de &requerimientos");
    EXPECT_EQ(Texto("mnuImportarComp"), "Arbol de c&omponentes");
    EXPECT_EQ(Texto("mnuImportarEtapas"), "&Etapas del ciclo de vida");
    EXPECT_EQ(Texto("mnuPermitirSubcriterios"), "Permitir &subcriterios");
    EXPECT_EQ(Texto("mnuConfiguracionEjes"), "Confi&guración de ejes");
    EXPECT_EQ(Texto("mnuRequerimientos"), "Re&querimientos");
    EXPECT_EQ(Texto("mnuComponentes"), "Co&mponentes");
    EXPECT_EQ(Texto("mnuEtapas"), "E&tapas");
    EXPECT_EQ(Texto("mnuCompilar"), "Compilar");
    EXPECT_EQ(Texto("mnuPropiedades"), "&Propiedades");

    EXPECT_EQ(Texto("mnuOrganizar"), "&Organizar");
    EXPECT_EQ(Texto("mnuManual"), "&Manual de uso");
    EXPECT_EQ(Texto("mnuAcercaDe"), "&Acerca de...");
}

TEST_F(VentanaPrincipal_, TheTreeMenusArePopupsOnly) {
    EXPECT_FALSE(principal.mnuArbolR->menuAction()->isVisible());
    EXPECT_FALSE(principal.mnuArbolC->menuAction()->isVisible());
    EXPECT_EQ(Titulo("mnuArbolR"), "&Arbol");
    EXPECT_EQ(Titulo("mnuArbolC"), "&ArbolComp");
    for (const char* entrada :
         {"mnuInsertarAntes", "mnuInsertarDespues", "sepArbolR1", "mnuEliminar", "mnuAñadirR",
          "mnuAñadirC", "mnuAñadirS", "mnuAñadirI", "mnuCopiar", "mnuPegar", "mnuRenombrar",
          "sepArbolR2", "sepArbolR3"}) {
        EXPECT_EQ(Hijo<QAction>(principal, entrada)->parent(), principal.mnuArbolR) << entrada;
    }
    for (const char* entrada :
         {"mnuInsertarAntesC", "mnuInsertarDespuesC", "mnuEliminarC", "mnuAñadirComp",
          "mnuAñadirSc", "mnuCopiarC", "mnuPegarC", "mnuRenombrarC"}) {
        EXPECT_EQ(Hijo<QAction>(principal, entrada)->parent(), principal.mnuArbolC) << entrada;
    }
}

TEST_F(VentanaPrincipal_, TheToolbarButtonsByPlaceAndKey) {
    const Strings claves = {"Nuevo",
                            "Abrir",
                            "Guardar",
                            "Imprimir",
                            "",
                            "Compilar",
                            "",
                            "Retroceder",
                            "Continuar",
                            "",
                            "Requerimientos",
                            "Alternativas",
                            "Tiempo"};
    ASSERT_EQ(principal.tlbPrincipal->actions().size(), static_cast<qsizetype>(claves.size()));
    for (std::size_t i = 0; i < claves.size(); ++i) {
        QAction* boton = principal.Boton(static_cast<int>(i) + 1);
        EXPECT_EQ(boton, principal.tlbPrincipal->actions().at(static_cast<qsizetype>(i)));
        EXPECT_EQ(boton->data().toString().toStdString(), claves[i]) << "place " << i + 1;
        EXPECT_EQ(boton->isSeparator(), claves[i].empty()) << "place " << i + 1;
    }
}

TEST_F(VentanaPrincipal_, TheDesignGroupOfTheToolbarOpensTheThreeWindows) {
    NuevoModelo();
    PulsarBoton("Requerimientos");
    PulsarBoton("Alternativas");
    PulsarBoton("Tiempo");
    EXPECT_EQ(Hijas(), (Strings{"frmEjes", "frmRequerimientos", "frmComponentes", "frmEtapas"}));
}

TEST_F(VentanaPrincipal_, TheModelMenuOpensTheDesignWindowsAndThePropertiesAfterNuevo) {
    NuevoModelo();
    principal.mnuRequerimientos->trigger();
    principal.mnuComponentes->trigger();
    principal.mnuEtapas->trigger();
    EXPECT_EQ(Hijas(), (Strings{"frmEjes", "frmRequerimientos", "frmComponentes", "frmEtapas"}));
    modales.Esperar(QStringLiteral("frmPropiedades"), [](QDialog& propiedades) {
        EXPECT_EQ(propiedades.windowTitle().toStdString(), "Propiedades del modelo");
        Hijo<QPushButton>(propiedades, "cmdCancelar")->click();
    });
    principal.mnuPropiedades->trigger();
}

TEST_F(VentanaPrincipal_, TheChildWindowsBearTheirCaptions) {
    NuevoModelo();
    EXPECT_EQ(Hija("frmEjes")->windowTitle().toStdString(), "Límites del sistema");
    PulsarEtiqueta(1);
    EXPECT_EQ(Hija("frmRequerimientos")->windowTitle().toStdString(), "Arbol de requerimientos");
    principal.cmdContinuar->click();
    EXPECT_EQ(Hija("frmResumen")->windowTitle().toStdString(), "Resumen del proyecto");
    ContinuarAceptandoPermisos();
    EXPECT_EQ(Hija("frmPonderacion")->windowTitle().toStdString(),
              "Ponderación de elementos del árbol");
    principal.cmdContinuar->click();
    EXPECT_EQ(Hija("frmInforme")->windowTitle().toStdString(), "Informe final");
}

TEST_F(VentanaPrincipal_, OrganizarPutsTheChildWindowsInCascade) {
    NuevoModelo();
    PulsarEtiqueta(1);
    PulsarEtiqueta(2);
    principal.mnuOrganizar->trigger();
    const auto marcos = principal.mdiCliente->subWindowList();
    ASSERT_EQ(marcos.size(), 3);
    EXPECT_LT(marcos[0]->pos().y(), marcos[1]->pos().y());
    EXPECT_LT(marcos[1]->pos().y(), marcos[2]->pos().y());
}

TEST_F(VentanaPrincipal_, TheAutosaveTimerStandsIdle) {
    ASSERT_NE(principal.tmrAutoguardado, nullptr);
    EXPECT_EQ(principal.tmrAutoguardado->objectName().toStdString(), "tmrAutoguardado");
    EXPECT_EQ(principal.tmrAutoguardado->interval(), 1000);
    EXPECT_FALSE(principal.tmrAutoguardado->isActive());
}

TEST_F(VentanaPrincipal_, ASubcriteriaClickDoesNotChangeTheEntryByItself) {
    NuevoModelo();
    principal.mnuPermitirSubcriterios->trigger();
    EXPECT_FALSE(principal.mnuPermitirSubcriterios->isChecked());
    EXPECT_FALSE(sesion().modelo.ConSubcriterios);
}

TEST_F(VentanaPrincipal_, ANewFontSizeKeepsTheLookOfTheStepLabels) {
    NuevoModelo();
    modales.Esperar(QStringLiteral("frmPreferencias"), [](QDialog& preferencias) {
        Hijo<QComboBox>(preferencias, "cbbTamañoFuente")->setCurrentIndex(2);
        Hijo<QPushButton>(preferencias, "cmdAceptar")->click();
    });
    principal.mnuPreferencias->trigger();
    EXPECT_EQ(principal.lblMenu[1]->font().pointSize(), 12);
    EsperarPendiente(1);
    EsperarNormal(4);
}

} // namespace
} // namespace vadro
