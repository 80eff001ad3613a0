#include "core/core/ini.h"
#include "soporte/guion_modales.h"
#include "soporte/prueba_sesion.h"
#include "soporte/volcado_ventana.h"
#include "windows/core/frmPreferencias.h"
#include "windows/shell/frmPrincipal.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QMenu>
#include <QPushButton>

#include <gtest/gtest.h>

namespace vadro {
namespace {

using pruebas::Hijo;

class Preferencias : public pruebas::PruebaSesion {
protected:
    std::string Clave(const std::string& clave) {
        return LeerIni("GENERAL", clave, Ruta("Config.ini")).Texto();
    }
};

TEST_F(Preferencias, OpensWithTheSessionValuesAndKeepsASizeOutOfRange) {
    sesion().configuracion.MostrarInicio = false;
    sesion().configuracion.TamanoFuente = 1;
    pruebas::CompararVolcado(frmPreferencias(), "frmPreferencias");
    sesion().configuracion.TamanoFuente = 5;
    frmPreferencias preferencias;
    EXPECT_EQ(Hijo<QComboBox>(preferencias, "cbbTamañoFuente")->currentIndex(), -1)
        << "a size out of range shows none";
    Hijo<QPushButton>(preferencias, "cmdAceptar")->click();
    EXPECT_EQ(sesion().configuracion.TamanoFuente, 5) << "and stays unless one is chosen";
}

TEST_F(Preferencias, AceptarWritesBothKeysAndTheSizeOnlyWhenChanged) {
    frmPreferencias preferencias;
    Hijo<QCheckBox>(preferencias, "chkMostrarInicio")->click();
    Hijo<QPushButton>(preferencias, "cmdAceptar")->click();
    EXPECT_FALSE(sesion().configuracion.MostrarInicio);
    EXPECT_EQ(Clave("MOSTRAR_INICIO"), "Falso");
    EXPECT_EQ(Clave("MOSTRAR_AVISO_BETA"), "Verdadero") << "written unconditionally";
    EXPECT_EQ(Clave("TAMAÑO_FUENTE"), "-1") << "an unchanged size is not written";
}

TEST_F(Preferencias, ANewSizeIsAppliedToEveryOpenWindow) {
    frmPrincipal principal;
    frmPreferencias otra;
    auto* etiquetaDeOtra = Hijo<QLabel>(otra, "lblIdioma");
    EXPECT_EQ(etiquetaDeOtra->font().pointSize(), 8);
    frmPreferencias preferencias(&principal);
    Hijo<QComboBox>(preferencias, "cbbTamañoFuente")->setCurrentIndex(2);
    Hijo<QPushButton>(preferencias, "cmdAceptar")->click();
    EXPECT_EQ(sesion().configuracion.TamanoFuente, 2);
    EXPECT_EQ(Clave("TAMAÑO_FUENTE"), "2");
    EXPECT_EQ(etiquetaDeOtra->font().pointSize(), 12);
    EXPECT_EQ(etiquetaDeOtra->minimumHeight(), 295 / 15);
    EXPECT_EQ(Hijo<QPushButton>(preferencias, "cmdCancelar")->font().pointSize(), 12)
        << "the dialog itself too";
}

TEST_F(Preferencias, CancelarChangesNothing) {
    frmPreferencias preferencias;
    Hijo<QCheckBox>(preferencias, "chkMostrarInicio")->click();
    Hijo<QComboBox>(preferencias, "cbbTamañoFuente")->setCurrentIndex(1);
    Hijo<QPushButton>(preferencias, "cmdCancelar")->click();
    EXPECT_TRUE(sesion().configuracion.MostrarInicio);
    EXPECT_EQ(sesion().configuracion.TamanoFuente, 0);
    EXPECT_EQ(Contenido(Ruta("Config.ini")), "");
}

TEST_F(Preferencias, TheMainWindowMenuOpensPreferencesModally) {
    frmPrincipal principal;
    pruebas::GuionModales modales;
    modales.Esperar(QStringLiteral("frmPreferencias"),
                    [](QDialog& d) { Hijo<QPushButton>(d, "cmdCancelar")->click(); });
    modales.Esperar(QStringLiteral("frmAcercaDe"),
                    [](QDialog& d) { Hijo<QPushButton>(d, "cmdAceptar")->click(); });
    principal.findChild<QAction*>(QStringLiteral("mnuPreferencias"))->trigger();
    principal.findChild<QAction*>(QStringLiteral("mnuAcercaDe"))->trigger();
}

} // namespace
} // namespace vadro
