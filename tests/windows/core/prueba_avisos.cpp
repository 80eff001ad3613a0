#include "core/core/ini.h"
#include "core/core/version.h"
#include "soporte/guion_modales.h"
#include "soporte/prueba_sesion.h"
#include "soporte/volcado_ventana.h"
#include "windows/core/frmAcercaDe.h"
#include "windows/core/frmAvisoFuncionValor.h"
#include "windows/core/frmAvisoVersionBeta.h"
#include "windows/core/frmConfirmacion.h"
#include "windows/core/frmInicio.h"
#include "windows/core/modal.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>

#include <gtest/gtest.h>

namespace vadro {
namespace {

using pruebas::Hijo;

class Avisos : public pruebas::PruebaSesion {
protected:
    std::string Clave(const std::string& clave) {
        return LeerIni("GENERAL", clave, Ruta("Config.ini")).Texto();
    }
};

QString Texto(const QObject& ventana, const char* nombre) {
    return Hijo<QLabel>(ventana, nombre)->text();
}

TEST_F(Avisos, TheDevelopmentNoticeShowsItsFourLabelsAndWritesItsKeyOnEachClick) {
    frmAvisoVersionBeta aviso;
    pruebas::CompararVolcado(aviso, "frmAvisoVersionBeta");
    auto* chk = Hijo<QCheckBox>(aviso, "chkAviso");
    chk->click();
    EXPECT_FALSE(sesion().configuracion.MostrarAvisoBeta);
    EXPECT_EQ(Clave("MOSTRAR_AVISO_BETA"), "Falso");
    chk->click();
    EXPECT_TRUE(sesion().configuracion.MostrarAvisoBeta);
    EXPECT_EQ(Clave("MOSTRAR_AVISO_BETA"), "Verdadero");
}

TEST_F(Avisos, TheFunctionDrawingNoticeLastsForTheSessionOnly) {
    bool mostrar = true;
    frmAvisoFuncionValor aviso(mostrar);
    pruebas::CompararVolcado(aviso, "frmAvisoFuncionValor");
    Hijo<QCheckBox>(aviso, "chkAviso")->click();
    EXPECT_FALSE(mostrar);
    Hijo<QCheckBox>(aviso, "chkAviso")->click();
    EXPECT_TRUE(mostrar);
    EXPECT_EQ(Contenido(Ruta("Config.ini")), "") << "nothing goes to the configuration";
}

TEST_F(Avisos, TheConfirmationAnswersWithItsButtons) {
    bool mostrar = true;
    frmConfirmacion confirmacion(mostrar);
    pruebas::CompararVolcado(confirmacion, "frmConfirmacion");
    Hijo<QCheckBox>(confirmacion, "chkAviso")->click();
    EXPECT_FALSE(mostrar);
    for (const auto& [boton, resultado] :
         {std::pair{"cmdCancelar", QDialog::Rejected}, {"cmdAceptar", QDialog::Accepted}}) {
        frmConfirmacion otra(mostrar);
        pruebas::GuionModales modales;
        modales.Esperar(QStringLiteral("frmConfirmacion"),
                        [boton = boton](QDialog& d) { Hijo<QPushButton>(d, boton)->click(); });
        EXPECT_EQ(MostrarModal(otra), resultado) << boton;
        EXPECT_FALSE(otra.Cargado) << "closing unloads it";
    }
}

TEST_F(Avisos, TheAboutBoxShowsTheVersion) {
    frmAcercaDe acercaDe;
    EXPECT_EQ(acercaDe.windowTitle().toStdString(), "Acerca de Vadro Programador");
    EXPECT_EQ(Texto(acercaDe, "lblModulo").toStdString(), "módulo programador");
    EXPECT_EQ(Texto(acercaDe, "lblVersion").toStdString(), "Versión " + VersionPrograma());
    EXPECT_FALSE(Texto(acercaDe, "lblDisclaimer").isEmpty());
}

TEST_F(Avisos, TheStartScreenCheckBoxWritesAtOnceAndTheButtonsLead) {
    int nuevos = 0;
    int abiertos = 0;
    frmInicio inicio([&] { ++nuevos; }, [&] { ++abiertos; });
    pruebas::CompararVolcado(inicio, "frmInicio");
    auto* chk = Hijo<QCheckBox>(inicio, "chkNoMostrar");
    chk->click();
    EXPECT_FALSE(sesion().configuracion.MostrarInicio);
    EXPECT_EQ(Clave("MOSTRAR_INICIO"), "Falso");
    Hijo<QPushButton>(inicio, "cmdNuevo")->click();
    Hijo<QPushButton>(inicio, "cmdExistente")->click();
    EXPECT_EQ(nuevos, 1);
    EXPECT_EQ(abiertos, 1);
}

} // namespace
} // namespace vadro
