#include "core/core/ini.h"
#include "editor_abierto.h"
#include "soporte/guion_dialogos.h"
#include "soporte/guion_modales.h"
#include "soporte/modelo_sano.h"
#include "soporte/prueba_sesion.h"
#include "soporte/volcado_ventana.h"
#include "windows/functions/arriba_abajo.h"
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
#include <QToolButton>

#include <gtest/gtest.h>

#include <memory>

namespace vadro {
namespace {

using pruebas::Hijo;

class VentanaFuncion : public pruebas::EditorAbierto {
protected:
    QLineEdit* Entrada(const char* nombre) { return Hijo<QLineEdit>(*ventana, nombre); }
    QString Etiqueta(const char* nombre) { return Hijo<QLabel>(*ventana, nombre)->text(); }
    // Types into an input in place of its text, as a user who selected it all.
    void Escribir(const char* nombre, const QString& texto) {
        QLineEdit* entrada = Entrada(nombre);
        entrada->setFocus();
        entrada->selectAll();
        QTest::keyClicks(entrada, texto);
    }
    // Leaves the input for the unit box.
    void Salir() { Entrada("txtUnidades")->setFocus(Qt::TabFocusReason); }
    void Flecha(const char* control, bool arriba) {
        const auto botones = Hijo<ArribaAbajo>(*ventana, control)->findChildren<QToolButton*>();
        botones[arriba ? 0 : 1]->click();
    }
    void ElegirTipo(int indice) {
        auto* combo = ventana->cbbTipoFuncionPrimaria;
        combo->setFocus();
        while (combo->currentIndex() < indice) {
            QTest::keyClick(combo, Qt::Key_Down);
        }
    }
    // Types a cell through the grid's floating input and ends with a key.
    void Celda(int fila, int columna, const QString& texto, Qt::Key fin = Qt::Key_Return) {
        QTableView* rejilla = ventana->grdIntervalos;
        rejilla->setFocus();
        rejilla->setCurrentIndex(rejilla->model()->index(fila - 1, columna));
        QTest::keyClick(rejilla, texto.at(0).toLatin1());
        ASSERT_TRUE(ventana->txtValor->isVisible());
        QTest::keyClicks(ventana->txtValor, texto.mid(1));
        QTest::keyClick(ventana->txtValor, fin);
    }
    QString TextoCelda(int fila, int columna) {
        return ventana->grdIntervalos->model()->index(fila - 1, columna).data().toString();
    }
    void Aceptar() { QTest::mouseClick(ventana->cmdAceptar, Qt::LeftButton); }
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
    EXPECT_EQ(Etiqueta("lblLimitesC").toStdString(), "Pto. inflexión en abcisa (0 < C < 100)");
    Escribir("txtC", QStringLiteral("50"));
    EXPECT_EQ(ventana->cbbTipoFuncionPrimaria->currentText().toStdString(), "Continua");
    Flecha("updC", true);
    EXPECT_EQ(Entrada("txtC")->text(), QStringLiteral("51.00")) << "a step of 1 from 0 to 100";
    Escribir("txtMinRef", QStringLiteral("0"));
    Salir();
    Escribir("txtMaxRef", QStringLiteral("0.5"));
    Salir();
    EXPECT_EQ(Etiqueta("lblLimitesC").toStdString(), "Pto. inflexión en abcisa (0 < C < 0.5)");
    EXPECT_EQ(Entrada("txtC")->text(), QStringLiteral("0"))
        << "clamped at each key: while the limit read 0, C had to lie between 0 and 0";
    Escribir("txtC", QStringLiteral("0.25"));
    Flecha("updC", true);
    EXPECT_EQ(Entrada("txtC")->text(), QStringLiteral("0.26")) << "the step is raised to 0.01";
    Escribir("txtK", QStringLiteral("0.5"));
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
    ElegirTipo(kTipoEscalon);
    EXPECT_TRUE(ventana->fmeEscalon->isVisible());
    EXPECT_FALSE(ventana->fmeContinua->isVisible());
    EXPECT_FALSE(ventana->grdIntervalos->isEnabled());
    EXPECT_EQ(TextoCelda(1, 2), QStringLiteral(" -"));
    for (int i = 0; i < 3; ++i) {
        Flecha("updIntervalos", true);
    }
    EXPECT_EQ(Etiqueta("lblIntervalos"), QStringLiteral("3"));
    QAbstractItemModelTester comprobador(ventana->grdIntervalos->model());
    Celda(1, 1, QStringLiteral("=0"), Qt::Key_Right);
    Celda(1, 2, QStringLiteral("<10"), Qt::Key_Right);
    Celda(1, 3, QStringLiteral("0"));
    Celda(2, 1, QStringLiteral("=10"));
    Celda(2, 2, QStringLiteral("<20"));
    Celda(2, 3, QStringLiteral("0.5"));
    Celda(3, 1, QStringLiteral("=20"));
    Celda(3, 2, QStringLiteral("=30"));
    Celda(3, 3, QStringLiteral("1"));
    EXPECT_EQ(Etiqueta("lblMinRef"), QStringLiteral("[0,10)"));
    EXPECT_EQ(Etiqueta("lblMaxRef"), QStringLiteral("[20,30]"));
    EXPECT_TRUE(Hijo<QLabel>(*ventana, "lblMinRef")->isVisible());
    EXPECT_FALSE(Entrada("txtMinRef")->isVisible());
    Escribir("txtMax", QStringLiteral(">30"));
    Salir();
    Aceptar();
    EXPECT_FALSE(ventana->isVisible());
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
    Flecha("updIntervalos", false);
    EXPECT_EQ(Etiqueta("lblIntervalos"), QStringLiteral("3"));
    EXPECT_EQ(ventana->grdIntervalos->model()->rowCount(), 3);
    modales.Esperar(QStringLiteral("frmConfirmacion"), [](QDialog& d) {
        Hijo<QCheckBox>(d, "chkAviso")->click();
        Hijo<QPushButton>(d, "cmdAceptar")->click();
    });
    Flecha("updIntervalos", false);
    Flecha("updIntervalos", false);
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
    EXPECT_EQ(ventana->cbbTipoFuncionPrimaria->currentText().toStdString(), "Escalón");
    EXPECT_EQ(Entrada("txtMin")->text(), QStringLiteral("<0"));
    EXPECT_EQ(Entrada("txtMax")->text(), QStringLiteral(">90"));
    EXPECT_EQ(Etiqueta("lblIntervalos"), QStringLiteral("3"));
    EXPECT_EQ(TextoCelda(3, 1), QStringLiteral(">60"));
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
