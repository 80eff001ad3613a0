#include "ventana_principal.h"

#include "soporte/volcado_ventana.h"
#include "windows/core/frmPreferencias.h"
#include "windows/shell/frmEjes.h"

#include <QComboBox>
#include <QLayout>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QToolBar>

#include <gtest/gtest.h>

#include <functional>

namespace vadro {
namespace {

using pruebas::Hijo;
using Strings = std::vector<std::string>;

class VentanaPrincipal_ : public pruebas::VentanaPrincipal {};

// The menus with their captions and access keys, the tree popups hidden from the bar, the
// step panel, the toolbar: the window as it stands before a model. The walk along the line
// compares it at "Ejes".
TEST_F(VentanaPrincipal_, TheWidgetTreeBeforeAModel) {
    pruebas::CompararVolcado(principal, "frmPrincipal");
}

// The model menu and the axes' buttons name a design window each; the toolbar and the step
// labels go through the tables of commands. An open window is not loaded again: it comes to
// the front.
TEST_F(VentanaPrincipal_, EveryWayToADesignWindowOpensItOnce) {
    NuevoModelo();
    frmEjes& ejes = *dynamic_cast<frmEjes*>(Hija("frmEjes"));
    const std::pair<std::function<void()>, const char*> caminos[] = {
        {[&] { principal.mnuRequerimientos->trigger(); }, "frmRequerimientos"},
        {[&] { principal.mnuComponentes->trigger(); }, "frmComponentes"},
        {[&] { principal.mnuEtapas->trigger(); }, "frmEtapas"},
        {[&] { QTest::mouseClick(ejes.cmdRequerimientos, Qt::LeftButton); }, "frmRequerimientos"},
        {[&] { QTest::mouseClick(ejes.cmdComponentes, Qt::LeftButton); }, "frmComponentes"},
        {[&] { QTest::mouseClick(ejes.cmdTiempo, Qt::LeftButton); }, "frmEtapas"},
        {[&] { PulsarBoton("Alternativas"); }, "frmComponentes"},
        {[&] { PulsarEtiqueta(1); }, "frmRequerimientos"},
    };
    for (const auto& [camino, ventana] : caminos) {
        camino();
        EXPECT_EQ(principal.mdiCliente->activeSubWindow()->widget()->objectName().toStdString(),
                  ventana);
    }
    EXPECT_EQ(Hijas(), (Strings{"frmEjes", "frmRequerimientos", "frmComponentes", "frmEtapas"}));
    EXPECT_EQ(Hija("frmRequerimientos")->windowTitle().toStdString(), "Arbol de requerimientos");
}

TEST_F(VentanaPrincipal_, OrganizarPutsTheChildWindowsInCascadeAtAUsableSize) {
    NuevoModelo();
    PulsarEtiqueta(1);
    PulsarEtiqueta(2);
    principal.mnuOrganizar->trigger();
    const auto marcos = principal.mdiCliente->subWindowList();
    ASSERT_EQ(marcos.size(), 3);
    EXPECT_LT(marcos[0]->pos().y(), marcos[1]->pos().y());
    EXPECT_LT(marcos[1]->pos().y(), marcos[2]->pos().y());
    const QSize cliente = principal.mdiCliente->viewport()->size();
    for (QMdiSubWindow* marco : marcos) {
        EXPECT_GE(marco->width(), cliente.width() / 3) << marco->objectName().toStdString();
        EXPECT_GE(marco->height(), cliente.height() / 3) << marco->objectName().toStdString();
        EXPECT_GE(marco->width(), marco->minimumSizeHint().width());
    }
}

TEST_F(VentanaPrincipal_, TheAutosaveTimerStandsIdle) {
    ASSERT_NE(principal.tmrAutoguardado, nullptr);
    EXPECT_EQ(principal.tmrAutoguardado->objectName().toStdString(), "tmrAutoguardado");
    EXPECT_EQ(principal.tmrAutoguardado->interval(), 1000);
    EXPECT_FALSE(principal.tmrAutoguardado->isActive());
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
    principal.pctPrincipal->layout()->activate();
    for (QPushButton* boton : {principal.cmdRetroceder, principal.cmdContinuar}) {
        EXPECT_GE(boton->width(), boton->sizeHint().width())
            << boton->objectName().toStdString() << " is not cut at the large size";
    }
}

} // namespace
} // namespace vadro
