// The function editor's optional indicators and scoring elements, worked as a user works them.
#include "editor_abierto.h"
#include "soporte/guion_modales.h"
#include "soporte/modelo_sano.h"
#include "soporte/volcado_ventana.h"
#include "windows/functions/frmFuncionValor.h"
#include "windows/functions/panel_optativos.h"
#include "windows/functions/panel_puntuacion.h"
#include "windows/functions/pintar_grafica.h"

#include <QAbstractItemModelTester>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabBar>
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
using pruebas::Texto;

const std::string kTitulo = "VADRO PROGRAMADOR";

void ClickPestana(frmFuncionValor& ventana, int indice) {
    QTabBar* pestanas = ventana.tspSeleccion;
    QTest::mouseClick(pestanas, Qt::LeftButton, {}, pestanas->tabRect(indice).center());
}

// The second window, as a scripted modal window hands it over: active, its checks of the
// limits done.
frmFuncionValor& Segunda(QDialog& d) {
    d.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&d));
    return static_cast<frmFuncionValor&>(d);
}

class Optativos : public pruebas::EditorAbierto {
protected:
    PanelOptativos& Panel() { return *ventana->pctOptativos; }
    PanelPuntuacion& Tablas() { return *ventana->pctTablas; }
    void Optativo(int fila, const QString& texto) {
        Celda(Panel().grdOptativos, Panel().txtValorOpt, fila, 0, texto);
    }
    void Elegir(int fila) {
        QTableView* rejilla = Panel().grdOptativos;
        const QRect celda = rejilla->visualRect(rejilla->model()->index(fila - 1, 0));
        QTest::mouseClick(rejilla->viewport(), Qt::LeftButton, {}, celda.center());
    }
    void DobleClickGrafica() { QTest::mouseDClick(Panel().pctGraficaOptativos, Qt::LeftButton); }
};

TEST_F(Optativos, ThreeIndicatorsTwoSelectableEachWithItsFunction) {
    Abrir(FuncionValor{});
    QTest::mouseClick(ventana->chkOptativos, Qt::LeftButton);
    QAbstractItemModelTester comprobador(Panel().grdOptativos->model());

    Flecha(Panel().updOptativos, true);
    Flecha(Panel().updSeleccionables, true);
    Flecha(Panel().updSeleccionables, true);
    EXPECT_EQ(Panel().lblOptativos->text(), QStringLiteral("3"));
    EXPECT_EQ(Panel().lblSeleccionables->text(), QStringLiteral("2")) << "at most the total - 1";
    Optativo(1, QStringLiteral("Caudal"));
    Optativo(2, QStringLiteral("Presión"));
    Optativo(3, QStringLiteral("Nivel"));
    EXPECT_EQ(Texto(Panel().grdOptativos, 2, 0), QStringLiteral("Presión"));

    pruebas::GuionModales modales;
    modales.Esperar(QStringLiteral("frmFuncionValor"), [](QDialog& d) {
        frmFuncionValor& segunda = Segunda(d);
        // Its caption names the row; its kind list holds two kinds; no optional indicators.
        pruebas::CompararVolcado(segunda, "frmFuncionValor_optativo");
        EXPECT_EQ(segunda.size(), QSize(792, 578));
        Teclear(Hijo<QLineEdit>(d, "txtUnidades"), QStringLiteral("l/s"));
        Teclear(Hijo<QLineEdit>(d, "txtMinRef"), QStringLiteral("0"));
        Teclear(Hijo<QLineEdit>(d, "txtMaxRef"), QStringLiteral("200"));
        QTest::mouseClick(segunda.cmdFuncion[0], Qt::LeftButton); // "Lineal"
        QTest::mouseClick(segunda.cmdAceptar, Qt::LeftButton);
    });
    Elegir(1);
    DobleClickGrafica();
    EXPECT_EQ(sesion().FuncionesEdicion(1).Tipo, FuncionContinua);
    EXPECT_FALSE(ventana->editor.GraficaOptativo.Visibles().empty()) << "drawn on return";
    EXPECT_EQ(ventana->editor.GraficaOptativo, GraficarOptativo(sesion().FuncionesEdicion(1)));

    Elegir(2);
    EXPECT_TRUE(ventana->editor.GraficaOptativo.Visibles().empty()) << "row 2 has no function";
    Aceptar();
    const FuncionValor& f = Registro();
    EXPECT_EQ(f.Tipo, FuncionOptativos);
    EXPECT_EQ(f.OptativoSeleccionado, 2);
    ASSERT_EQ(f.Optativos.Tamano(), 3);
    EXPECT_EQ(f.Optativos(3).Nombre, "Nivel");
    EXPECT_EQ(f.Optativos(1).Funcion, sesion().FuncionesEdicion(1));
}

TEST_F(Optativos, TheSecondWindowCancelledLeavesTheRowsFunctionAsItWas) {
    Abrir(pruebas::DeOptativos("I1C1R1"));
    const FuncionOptativo antes = sesion().FuncionesEdicion(1);
    pruebas::GuionModales modales;
    modales.Esperar(QStringLiteral("frmFuncionValor"), [this](QDialog& d) {
        frmFuncionValor& segunda = Segunda(d);
        EXPECT_EQ(segunda.cbbTipoFuncionPrimaria->currentText(), QStringLiteral("Continua"));
        Teclear(Hijo<QLineEdit>(d, "txtK"), QStringLiteral("0.75"));
        mensajes.Esperar("VADRO",
                         "Se perderán los últimos valores introducidos. Está seguro que quiere "
                         "cerrar la ventana?",
                         Respuesta::Si);
        QTest::mouseClick(segunda.cmdCancelar, Qt::LeftButton);
    });
    Elegir(1);
    DobleClickGrafica();
    EXPECT_EQ(sesion().FuncionesEdicion(1), antes);
    EXPECT_TRUE(ventana->isVisible());
}

TEST_F(Optativos, TwoBooleansAndANumericWithItsMinimumAboveItsMaximumAreStored) {
    Abrir(pruebas::Continua());
    pruebas::ElegirTipo(*ventana, kTipoPuntuacion);
    ClickPestana(*ventana, 1);
    ASSERT_TRUE(Tablas().isVisible());
    EXPECT_FALSE(ventana->pctFondoGrafica->isVisible());
    QAbstractItemModelTester b(Tablas().grdBooleanos->model());
    QAbstractItemModelTester n(Tablas().grdNumericos->model());

    mensajes.Esperar(kTitulo, "Introduzca primero el número de elementos booleanos deseado.");
    QTest::keyClick(Tablas().grdBooleanos, Qt::Key_Return);

    Flecha(Tablas().updBooleanos, true);
    Flecha(Tablas().updBooleanos, true);
    Flecha(Tablas().updNumericos, true);
    EXPECT_EQ(Tablas().lblBooleanos->text(), QStringLiteral("2"));
    EXPECT_EQ(Texto(Tablas().grdBooleanos, 2, 0), QStringLiteral("2"));
    const char* const booleanos[2][3] = {{"¿Tiene licencia?", "0", "2.50"}, {"Seguro", "1", "4"}};
    for (int fila = 1; fila <= 2; ++fila) {
        for (int columna = 1; columna <= 3; ++columna) {
            Celda(Tablas().grdBooleanos, Tablas().txtValorB, fila, columna,
                  QString::fromUtf8(booleanos[fila - 1][columna - 1]));
        }
    }
    const auto numerico = [this](int columna, const char* texto, Qt::Key fin = Qt::Key_Return) {
        Celda(Tablas().grdNumericos, Tablas().txtValorN, 1, columna, QString::fromUtf8(texto), fin);
    };
    EXPECT_EQ(Texto(Tablas().grdBooleanos, 1, 3), QStringLiteral("2.5")) << "plain number form";
    // The cleared cell: Enter opens it with its text selected, Backspace empties it.
    QTableView* grd = Tablas().grdBooleanos;
    grd->setFocus();
    grd->setCurrentIndex(grd->model()->index(1, 3));
    QTest::keyClick(grd, Qt::Key_Return);
    EXPECT_EQ(Tablas().txtValorB->selectedText(), QStringLiteral("4"));
    QTest::keyClick(Tablas().txtValorB, Qt::Key_Backspace);
    QTest::keyClick(Tablas().txtValorB, Qt::Key_Return);
    EXPECT_EQ(Texto(grd, 2, 3), QString());

    numerico(1, "Antigüedad", Qt::Key_Right);
    numerico(2, "10", Qt::Key_Right);
    numerico(3, "5");
    mensajes.Esperar("VADRO PROGRAMADOR: error", "Debe introducir un numero válido.");
    numerico(4, "1x");
    EXPECT_EQ(Texto(Tablas().grdNumericos, 1, 4), QString()) << "the refused text is dropped";
    EXPECT_FALSE(Tablas().txtValorN->isVisible());
    numerico(4, "-1");
    numerico(5, "3");
    EXPECT_TRUE(mensajes.Completo());

    Aceptar();
    const FuncionValor& f = Registro();
    EXPECT_EQ(f.Tipo, FuncionPuntuacion);
    ASSERT_EQ(f.Puntuaciones.Tamano(), 3);
    EXPECT_EQ(f.Puntuaciones(1),
              (Puntuacion{PuntuacionBooleana, "¿Tiene licencia?", {}, {}, 0.0, 2.5}));
    EXPECT_EQ(f.Puntuaciones(2), (Puntuacion{PuntuacionBooleana, "Seguro", {}, {}, 1.0, {}}));
    EXPECT_EQ(f.Puntuaciones(3),
              (Puntuacion{PuntuacionNumerica, "Antigüedad", 10.0, 5.0, -1.0, 3.0}));
    EXPECT_EQ(f.C, ValorLibre(50.0)) << "the continuous part as it stood";
}

TEST_F(Optativos, OneDumpPerPanel) {
    Abrir(pruebas::DeOptativos("I1C1R1"));
    Elegir(1);
    pruebas::CompararVolcado(Panel(), "frmFuncionValor_pctOptativos");
    Abrir(pruebas::DePuntuacion());
    ClickPestana(*ventana, 1);
    pruebas::CompararVolcado(Tablas(), "frmFuncionValor_pctTablas");
}

} // namespace
} // namespace vadro
