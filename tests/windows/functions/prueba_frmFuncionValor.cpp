#include "core/core/ini.h"
#include "editor_abierto.h"
#include "soporte/guion_dialogos.h"
#include "soporte/guion_modales.h"
#include "soporte/modelo_sano.h"
#include "soporte/volcado_ventana.h"
#include "windows/functions/frmFuncionValor.h"

#include <QAbstractItemModelTester>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>

namespace vadro {
namespace {

using pruebas::Celda;
using pruebas::Flecha;
using pruebas::Hijo;
using pruebas::Teclear;

class VentanaFuncion : public pruebas::EditorAbierto {
protected:
    QString Etiqueta(const char* nombre) { return Hijo<QLabel>(*ventana, nombre)->text(); }
    // Leaves the input for the unit box.
    void Salir() { Entrada("txtUnidades")->setFocus(Qt::TabFocusReason); }
};

TEST_F(VentanaFuncion, ANewFunctionShowsTheNoticeAtOnceAndItsOptionLastsTheSession) {
    sesion().MostrarAvisoFuncionValor = true;
    pruebas::GuionModales modales;
    modales.Esperar(QStringLiteral("frmAvisoFuncionValor"), [](QDialog& aviso) {
        Hijo<QCheckBox>(aviso, "chkAviso")->click();
        Hijo<QPushButton>(aviso, "cmdAceptar")->click();
    });
    Abrir(FuncionValor{});
    EXPECT_FALSE(sesion().MostrarAvisoFuncionValor);
    EXPECT_EQ(ventana->windowTitle().toStdString(), "Definición de la función de valor - [Coste]");
    EXPECT_EQ(ventana->cbbTipoFuncionPrimaria->currentIndex(), -1);
    EXPECT_FALSE(sesion().modelo.Modificado) << "opening changes nothing";
}

TEST_F(VentanaFuncion, CBoundsWithEmptyAndNarrowLimitsLettersInKAndTheRecordWritten) {
    Abrir(FuncionValor{});
    Teclear(Entrada("txtC"), QStringLiteral("50"));
    EXPECT_EQ(ventana->cbbTipoFuncionPrimaria->currentText().toStdString(), "Continua");
    Flecha(ventana->upd[0], true);
    EXPECT_EQ(Entrada("txtC")->text(), QStringLiteral("51.00")) << "a step of 1 from 0 to 100";
    Teclear(Entrada("txtMinRef"), QStringLiteral("0"));
    Salir();
    Teclear(Entrada("txtMaxRef"), QStringLiteral("0.5"));
    Salir();
    EXPECT_EQ(Etiqueta("lblLimitesC").toStdString(), "Pto. inflexión en abcisa (0 < C < 0.5)");
    EXPECT_EQ(Entrada("txtC")->text(), QStringLiteral("0"))
        << "clamped at each key: while the limit read 0, C had to lie between 0 and 0";
    Teclear(Entrada("txtC"), QStringLiteral("0.25"));
    Flecha(ventana->upd[0], true);
    EXPECT_EQ(Entrada("txtC")->text(), QStringLiteral("0.26")) << "the step is raised to 0.01";
    Teclear(Entrada("txtK"), QStringLiteral("0.5"));
    mensajes.Esperar("VADRO PROGRAMADOR: error", "Debe introducir un número.");
    QTest::keyClicks(Entrada("txtK"), QStringLiteral("x"));
    EXPECT_EQ(Entrada("txtK")->text(), QStringLiteral("0.50"));
    QTest::keyClick(Entrada("txtK"), Qt::Key_Up);
    EXPECT_EQ(Entrada("txtK")->text(), QStringLiteral("0.51"));
    EXPECT_TRUE(mensajes.Completo());
    Aceptar();
    EXPECT_FALSE(ventana->isVisible());
    const FuncionValor& f = Registro();
    EXPECT_EQ(f.Tipo, FuncionContinua);
    EXPECT_EQ(f.RMin, ValorLibre(0.0));
    EXPECT_EQ(f.RMax, ValorLibre(0.5));
    EXPECT_EQ(f.C, ValorLibre(0.26));
    EXPECT_EQ(f.K, ValorLibre(0.51));
    EXPECT_TRUE(f.P.EsVacio());
    EXPECT_TRUE(sesion().modelo.Modificado);
}

TEST_F(VentanaFuncion, AThreeRowStepFunctionIsTypedAndAccepted) {
    Abrir(FuncionValor{});
    pruebas::ElegirTipo(*ventana, kTipoEscalon);
    EXPECT_TRUE(ventana->fmeEscalon->isVisible());
    EXPECT_FALSE(ventana->fmeContinua->isVisible());
    EXPECT_FALSE(ventana->grdIntervalos->isEnabled());
    EXPECT_EQ(pruebas::Texto(ventana->grdIntervalos, 1, 2), QStringLiteral(" -"));
    QAbstractItemModelTester comprobador(ventana->grdIntervalos->model());
    pruebas::Escalones(*ventana, {{"=0", "<10", "0"}, {"=10", "<20", "0.5"}, {"=20", "=30", "1"}});
    EXPECT_EQ(Etiqueta("lblIntervalos"), QStringLiteral("3"));
    EXPECT_EQ(Etiqueta("lblMinRef"), QStringLiteral("[0,10)"));
    EXPECT_EQ(Etiqueta("lblMaxRef"), QStringLiteral("[20,30]"));
    EXPECT_TRUE(Hijo<QLabel>(*ventana, "lblMinRef")->isVisible());
    EXPECT_FALSE(Entrada("txtMinRef")->isVisible());
    Teclear(Entrada("txtMax"), QStringLiteral(">30"));
    Salir();
    Aceptar();
    const FuncionValor& f = Registro();
    EXPECT_EQ(f.Tipo, FuncionEscalon);
    ASSERT_EQ(f.Escalones.Tamano(), 3);
    EXPECT_EQ(f.Escalones(2), (Escalon{"=10", "<20", 0.5}));
    EXPECT_EQ(f.Escalones(3), (Escalon{"=20", "=30", 1.0}));
    EXPECT_EQ(f.XMax, ValorLibre(">30"));
    EXPECT_EQ(f.RMin, ValorLibre(0.0)) << "the reference limits follow the outer steps";
    EXPECT_EQ(f.RMax, ValorLibre(30.0));
}

TEST_F(VentanaFuncion, ReducingTheCountAsksThroughTheConfirmation) {
    Abrir(pruebas::DeEscalones<FuncionValor>());
    pruebas::GuionModales modales;
    modales.Esperar(QStringLiteral("frmConfirmacion"),
                    [](QDialog& d) { Hijo<QPushButton>(d, "cmdCancelar")->click(); });
    Flecha(ventana->updIntervalos, false);
    EXPECT_EQ(Etiqueta("lblIntervalos"), QStringLiteral("3"));
    EXPECT_EQ(ventana->grdIntervalos->model()->rowCount(), 3);
    modales.Esperar(QStringLiteral("frmConfirmacion"), [](QDialog& d) {
        Hijo<QCheckBox>(d, "chkAviso")->click();
        Hijo<QPushButton>(d, "cmdAceptar")->click();
    });
    Flecha(ventana->updIntervalos, false);
    Flecha(ventana->updIntervalos, false);
    EXPECT_EQ(Etiqueta("lblIntervalos"), QStringLiteral("1"));
    EXPECT_EQ(modales.Vistas().size(), 2U) << "the box switched the question off";
}

TEST_F(VentanaFuncion, AStepFunctionSavedAsATemplateComesBack) {
    const std::string ruta = Ruta("escalones.fva");
    Abrir(pruebas::DeEscalones<FuncionValor>());
    {
        pruebas::GuionDialogos dialogos;
        dialogos.Elegir("Exportar función de valor", ruta);
        QTest::mouseClick(ventana->cmdGuardar, Qt::LeftButton);
        EXPECT_EQ(dialogos.Peticiones().at(0).filtro,
                  "Plantillas de función de valor (*.fva)|*.fva");
    }
    EXPECT_EQ(LeerIni("DIRECTORIOS", "FUNCION_VALOR", Ruta("Config.ini")).Texto(), Directorio());
    mensajes.Esperar("VADRO",
                     "Se perderán los últimos valores introducidos. Está seguro que "
                     "quiere cerrar la ventana?",
                     Respuesta::Si);
    ventana->close();

    Abrir(pruebas::Continua());
    {
        pruebas::GuionDialogos dialogos;
        dialogos.Elegir("Importar función de valor", ruta);
        QTest::mouseClick(ventana->cmdCargar, Qt::LeftButton);
        EXPECT_EQ(dialogos.Peticiones().at(0).directorioInicial, Directorio());
    }
    // The window shows what it loaded: its kind and its grid (the inputs as the dump of a step
    // function shows them).
    EXPECT_EQ(ventana->cbbTipoFuncionPrimaria->currentText().toStdString(), "Escalón");
    EXPECT_EQ(pruebas::Texto(ventana->grdIntervalos, 3, 1), QStringLiteral(">60"));
    EXPECT_EQ(Registro(), pruebas::Continua()) << "nothing stored before acceptance";
    Aceptar();
    FuncionValor esperada = pruebas::DeEscalones<FuncionValor>();
    esperada.Clave = "I1C1R1";
    esperada.C = 50.0; // the step function keeps the parameters the record had
    esperada.K = 0.5;
    esperada.P = 2.0;
    EXPECT_EQ(Registro(), esperada);
}

TEST_F(VentanaFuncion, EditarFuncionOpensModallyOnTheRowAndTellsWhetherItWasAccepted) {
    sesion().NodosEdicion.Redimensionar(2);
    sesion().NodosEdicion(2).Funcion = pruebas::Continua();
    pruebas::GuionModales modales;
    modales.Esperar(QStringLiteral("frmFuncionValor"), [](QDialog& d) {
        EXPECT_EQ(d.windowTitle().toStdString(), "Definición de la función de valor - [Plazo]");
        auto* k = Hijo<QLineEdit>(d, "txtK");
        k->setFocus();
        k->selectAll();
        QTest::keyClicks(k, QStringLiteral("0.9"));
        Hijo<QPushButton>(d, "cmdAceptar")->click();
    });
    EXPECT_TRUE(EditarFuncion(2, "Plazo", nullptr));
    EXPECT_EQ(sesion().NodoEdicionActual, 2);
    EXPECT_EQ(sesion().NodosEdicion(2).Funcion.K, ValorLibre(0.9));
}

TEST_F(VentanaFuncion, OneDumpPerKind) {
    Abrir(pruebas::Continua());
    pruebas::CompararVolcado(*ventana, "frmFuncionValor_continua");
    Abrir(pruebas::DeEscalones<FuncionValor>());
    pruebas::CompararVolcado(*ventana, "frmFuncionValor_escalon");
    Abrir(pruebas::DePuntuacion());
    pruebas::CompararVolcado(*ventana, "frmFuncionValor_puntuacion");
}

} // namespace
} // namespace vadro
