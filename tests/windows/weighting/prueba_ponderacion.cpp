#include "core/weighting/arbol_ponderado.h"
#include "sesion_pesos.h"
#include "soporte/volcado_ventana.h"
#include "windows/shell/ventana_principal.h"
#include "windows/weighting/frmPonderacion.h"

#include <QHeaderView>
#include <QPushButton>
#include <QRadioButton>

#include <gtest/gtest.h>

namespace vadro {
namespace {

const QColor kMarino(0, 0, 128);
const std::string kTitulo = "VADRO PROGRAMADOR: Ponderación";

class Ponderacion : public pruebas::SesionPesos {
protected:
    Ponderacion() { sesion().modelo = pruebas::ArbolPonderado(); }
    frmPonderacion& Abrir() {
        ventana = std::make_unique<frmPonderacion>();
        ventana->resize(900, 600);
        ventana->show();
        return *ventana;
    }
    QTableView& Rejilla() const { return *ventana->grdRequerimientos; }
    QPoint Centro(int fila, int columna) const {
        return Rejilla().visualRect(Rejilla().model()->index(fila, columna)).center();
    }
    // As the system delivers a double click: press, release, press, double click, release.
    void DoblePulsar(int fila, int columna) {
        QWidget* area = Rejilla().viewport();
        const QPoint punto = Centro(fila, columna);
        QTest::mousePress(area, Qt::LeftButton, {}, punto);
        QTest::mouseRelease(area, Qt::LeftButton, {}, punto);
        QTest::mousePress(area, Qt::LeftButton, {}, punto);
        QTest::mouseDClick(area, Qt::LeftButton, {}, punto);
        QTest::mouseRelease(area, Qt::LeftButton, {}, punto);
    }
    // The cells of a column, each as its back colour's initial: b white, r light red, m navy.
    std::string Colores(int columna) const {
        std::string colores;
        for (int fila = 0; fila < Rejilla().model()->rowCount(); ++fila) {
            const QColor c = Fondo(Rejilla(), fila, columna);
            colores += c == kBlanco ? 'b' : c == kRojoClaro ? 'r' : c == kMarino ? 'm' : '?';
        }
        return colores;
    }
    std::string Ayuda(int fila, int columna) const {
        const QModelIndex celda = Rejilla().model()->index(fila, columna);
        return celda.data(Qt::ToolTipRole).toString().toStdString();
    }

    std::unique_ptr<frmPonderacion> ventana;
};

TEST_F(Ponderacion, TheAdapterMergesEachParentOverItsDescendants) {
    pruebas::CompararVolcado(Abrir(), "frmPonderacion");
    QTableView& g = Rejilla();
    ASSERT_EQ(g.model()->columnCount(), 4);
    ASSERT_EQ(g.model()->rowCount(), 7);
    EXPECT_EQ(g.model()->headerData(2, Qt::Horizontal).toString(), QStringLiteral("Subcriterios"));
    const std::tuple<int, int, int> uniones[] = {{0, 0, 6}, {6, 0, 1}, {0, 1, 3},
                                                 {3, 1, 2}, {5, 1, 1}, {0, 2, 2},
                                                 {2, 2, 1}, {3, 2, 1}, {0, 3, 1}};
    for (const auto& [fila, columna, filas] : uniones) {
        EXPECT_EQ(g.rowSpan(fila, columna), filas) << fila << "," << columna;
        EXPECT_EQ(g.columnSpan(fila, columna), 1);
    }
    // What each cell shows, colours and selects is the core's table of the overview.
    EXPECT_EQ(Celda(g, 0, 3), "(I1S1C1R1) Hormigón\nPeso: 25.00 %");
    EXPECT_EQ(Colores(3), "bbbbrbb");
    EXPECT_EQ(Ayuda(0, 3), "Peso global: 3.00 %");
}

TEST_F(Ponderacion, ADoubleClickWeighsTheSetAndItsCellsComeBackWithTheirWeights) {
    Abrir();
    sesion().modelo.Modificado = false;
    modales.Esperar(QStringLiteral("frmPesos"), [](QDialog& d) {
        auto& pesos = static_cast<frmPesos&>(d);
        EXPECT_TRUE(pesos.optSaaty->isChecked());
        EXPECT_EQ(Celda(*pesos.grdSaaty, 1, 0) + "|" + Celda(*pesos.grdSaaty, 0, 2), "Meses|Hitos");
        EXPECT_EQ(Pesos(*pesos.grdSaaty), "50.00 50.00 ") << "recomputed, not read";
        Teclear(pesos, *pesos.grdSaaty, 2, 1, QStringLiteral("0.25"));
        EXPECT_EQ(Pesos(*pesos.grdSaaty), "80.00 20.00 ");
        EXPECT_EQ(Razon(pesos), "0.00");
        pesos.cmdAceptar->click();
    });
    DoblePulsar(4, 3);
    ASSERT_EQ(modales.Vistas().size(), 1u);
    EXPECT_EQ(Celda(Rejilla(), 3, 3), "(I1C2R1) Meses\nPeso: 80.00 %");
    EXPECT_EQ(Celda(Rejilla(), 4, 3), "(I2C2R1) Hitos\nPeso: 20.00 %");
    EXPECT_EQ(Colores(3), "bbbbbbb") << "the light red is gone";
    EXPECT_EQ(Ayuda(4, 3), "Peso global: 6.00 %");
    EXPECT_TRUE(sesion().modelo.Modificado);
}

TEST_F(Ponderacion, TheDirectMethodOpensOnItsGridAndACancelWritesNothing) {
    sesion().modelo.Requerimientos(1).Calculo = CalculoDirecto;
    const Modelo antes = sesion().modelo;
    Abrir();
    modales.Esperar(QStringLiteral("frmPesos"), [](QDialog& d) {
        auto& pesos = static_cast<frmPesos&>(d);
        EXPECT_TRUE(pesos.optDirecto->isChecked());
        EXPECT_TRUE(pesos.grdDirecto->isVisible());
        EXPECT_FALSE(pesos.grdSaaty->isVisible());
        // No scores: the percentages are made from them, not from the stored weights.
        EXPECT_EQ(Celda(*pesos.grdDirecto, 2, 0) + "|" + Celda(*pesos.grdDirecto, 2, 2) + "|" +
                      Celda(*pesos.grdDirecto, 3, 2),
                  "Social||");
        pesos.cmdCancelar->click();
    });
    mensajes.Esperar("VADRO PROGRAMADOR: cerrar matriz de pesos",
                     "Se perderán los últimos datos introducidos. Desea continuar?", Respuesta::Si);
    DoblePulsar(6, 0);
    EXPECT_EQ(sesion().modelo, antes);
    EXPECT_EQ(Celda(Rejilla(), 6, 0), "(R2) Social\nPeso: 40.00 %");

    // An empty cell opens nothing.
    mensajes.Esperar(kTitulo, "Esta rama del árbol no está completa. Solucione el problema en la "
                              "ventana de diseño del árbol de requerimientos.");
    ventana->grdRequerimientos_Click(6, 1);
    ventana->grdRequerimientos_DblClick(6, 1);
    EXPECT_EQ(modales.Vistas().size(), 1u);
}

class PonderacionVacia : public pruebas::VentanaPrincipal {};

// The question's two answers are the core's; the main window takes the step of No.
TEST_F(PonderacionVacia, NoGoesToTheReport) {
    NuevoModelo();
    principal.cmdContinuar->click();
    mensajes.Esperar(kTitulo,
                     "Imposible ponderar. El modelo está vacío.\nDesea volver a la pantalla de "
                     "diseño del árbol de requerimientos?",
                     Respuesta::No);
    ContinuarAceptandoPermisos();
    EXPECT_EQ(Situacion(), "Informe | Posición: informe | frmInforme");
    EsperarAjusteB();
}

} // namespace
} // namespace vadro
