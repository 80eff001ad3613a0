#include "core/core/formato_numero.h"
#include "core/weighting/referencia_ahp.h"
#include "sesion_pesos.h"
#include "soporte/modelo_sano.h"
#include "soporte/volcado_ventana.h"
#include "windows/weighting/frmConsistencia.h"
#include "windows/weighting/frmSaaty.h"

#include <QPushButton>
#include <QRadioButton>
#include <QTimer>

#include <gtest/gtest.h>

namespace vadro {
namespace {

using pruebas::Fraccion;

const QColor kRojo(255, 0, 0);
const QColor kVerde(0, 255, 0);
const QColor kAmarillo(255, 255, 192);
const std::string kAvisoAhp = "La matriz de pesos AHP ha sido modificada y se perderán los "
                              "valores introducidos.\nDesea continuar?";

// The three criteria "Agua", "Energía", "Coste" of one requirement, never weighted.
class VentanaPesos : public pruebas::SesionPesos {
protected:
    VentanaPesos() {
        using namespace pruebas;
        sesion().modelo = ModeloCon({Requerimiento("R", {Criterio("Agua", {Indicador("x")}),
                                                         Criterio("Energía", {Indicador("y")}),
                                                         Criterio("Coste", {Indicador("z")})})});
        for (int c = 1; c <= 3; ++c) {
            Nodo(c).Saaty.Borrar();
            Nodo(c).Peso = ValorLibre();
            Nodo(c).PesoAuxiliar = ValorLibre();
        }
    }
    NodoCriterio& Nodo(int c) { return sesion().modelo.Requerimientos(1).Criterios(c); }
    frmPesos& Abrir() {
        pesos = std::make_unique<frmPesos>(DireccionConjunto{1, {}, {}});
        pesos->show();
        pesos->activateWindow();
        return *pesos;
    }
    void Teclear(int fila, int columna, const char* texto) {
        SesionPesos::Teclear(*pesos, *pesos->grdSaaty, fila, columna, QString::fromUtf8(texto));
    }
    // The weights and the ratio of an exact matrix of three, as the grid and its label should
    // show them, and as they show them.
    static std::string Esperado(const std::vector<std::vector<Fraccion>>& m) {
        const auto ref = pruebas::CalcularReferencia(m);
        std::string texto;
        for (const Fraccion& peso : ref.pesos) {
            texto += peso.Texto00() + " ";
        }
        return texto + "| " + Formato00((Redondeado00(ref.lambda.Doble()) - 3) / 2 / 0.58);
    }
    std::string Mostrado() const { return Pesos(*pesos->grdSaaty) + "| " + Razon(*pesos); }

    std::unique_ptr<frmPesos> pesos;
};

TEST_F(VentanaPesos, TypedValuesShowTheirMirrorsTheWeightsAndTheRatio) {
    frmPesos& w = Abrir();
    pruebas::CompararVolcado(w, "frmPesos");
    EXPECT_EQ(Celda(*w.grdSaaty, 2, 0), "Energía");
    EXPECT_EQ(Fondo(*w.grdSaaty, 2, 2), kAmarillo);
    EXPECT_EQ(Razon(w), "") << "an incomplete matrix";
    EXPECT_EQ(ColorRazon(w), kRojo);
    EXPECT_EQ(w.grdSaaty->currentIndex(), w.grdSaaty->model()->index(1, 2));

    Teclear(1, 2, "3");
    EXPECT_EQ(Celda(*w.grdSaaty, 1, 2), "3.00");
    EXPECT_EQ(Celda(*w.grdSaaty, 2, 1), "0.33");
    EXPECT_EQ(Pesos(*w.grdSaaty), "   ") << "no weights while a cell is empty";
    Teclear(3, 1, "0.2"); // below the diagonal: Coste is a fifth of Agua
    EXPECT_EQ(Celda(*w.grdSaaty, 1, 3), "5.00");
    Teclear(2, 3, "3");
    EXPECT_EQ(w.grdSaaty->currentIndex(), w.grdSaaty->model()->index(2, 3));
    EXPECT_TRUE(w.txtValor->isHidden());
    EXPECT_EQ(Mostrado(), Esperado({{1, 3, 5}, {{1, 3}, 1, 3}, {{1, 5}, {1, 3}, 1}}));
    EXPECT_EQ(ColorRazon(w), kAmarillo) << Razon(w);

    // The colours of the ratio and the tooltips are the core's; the adapter carries them.
    EXPECT_TRUE(w.Edicion().ModificadoAHP);
    EXPECT_EQ(w.grdSaaty->model()->index(2, 3).data(Qt::ToolTipRole).toString().toStdString(),
              "3.00");
}

TEST_F(VentanaPesos, OneThirdChosenOnTheSaatyScaleWithTheCellBlinking) {
    frmPesos& w = Abrir();
    Teclear(1, 3, "2");
    Teclear(2, 3, "2");
    w.grdSaaty->setCurrentIndex(w.grdSaaty->model()->index(1, 2));
    modales.Esperar(QStringLiteral("frmSaaty"), [&w](QDialog& d) {
        auto& escala = static_cast<frmSaaty&>(d);
        pruebas::CompararVolcado(escala, "frmSaaty"); // an empty cell opens on 1
        EXPECT_EQ(escala.optPeso[11]->property("Tag").toString().toStdString(),
                  "0.333333333333333");
        // The cell under judgement blinks once a second while the scale is open.
        EXPECT_TRUE(w.tmrIntermitencia->isActive());
        EXPECT_EQ(w.tmrIntermitencia->interval(), 50);
        w.Parpadear(10);
        EXPECT_EQ(Fondo(*w.grdSaaty, 1, 2), kRojoClaro);
        QTest::mouseClick(escala.lblPeso[11], Qt::LeftButton);
        EXPECT_TRUE(escala.optPeso[11]->isChecked()) << "a click on the words";
        escala.cmdAceptar->click();
    });
    w.grdSaaty_DblClick();
    EXPECT_TRUE(modales.Vistas().size() == 1);
    EXPECT_FALSE(w.tmrIntermitencia->isActive());
    EXPECT_EQ(Fondo(*w.grdSaaty, 1, 2), kBlanco) << "left white";
    EXPECT_EQ(Celda(*w.grdSaaty, 1, 2), "0.33");
    EXPECT_EQ(Mostrado(), Esperado({{1, {1, 3}, 2}, {3, 1, 2}, {{1, 2}, {1, 2}, 1}}));

    // A shown figure matches no tag: no option is on; a double click on the words accepts.
    modales.Esperar(QStringLiteral("frmSaaty"), [](QDialog& d) {
        auto& escala = static_cast<frmSaaty&>(d);
        for (QRadioButton* opcion : escala.optPeso) {
            EXPECT_FALSE(opcion->isChecked()) << opcion->objectName().toStdString();
        }
        QTest::mouseDClick(escala.lblPeso[4], Qt::LeftButton);
        EXPECT_FALSE(escala.isVisible());
    });
    w.grdSaaty_DblClick();
    EXPECT_EQ(Celda(*w.grdSaaty, 1, 2), "5.00");

    // Below the diagonal, and on the weights, there is no scale.
    w.grdSaaty->setCurrentIndex(w.grdSaaty->model()->index(2, 1));
    w.grdSaaty_DblClick();
    w.grdSaaty->setCurrentIndex(w.grdSaaty->model()->index(1, 4));
    w.grdSaaty_DblClick();
    EXPECT_EQ(modales.Vistas().size(), 2u);
}

TEST_F(VentanaPesos, ThePerfectMatrixIsRefusedThenShownAndTakenOver) {
    frmPesos& w = Abrir();
    Teclear(1, 2, "2");
    mensajes.Esperar("VADRO PROGRAMADOR: consistencia perfecta",
                     "Al menos uno de los valores de la primera fila es cero o está vacío. No es "
                     "posible calcular la consistencia perfecta!!");
    w.cmdConsistencia->click();
    EXPECT_TRUE(modales.Vistas().empty());

    Teclear(1, 3, "4");
    Teclear(2, 3, "7");
    w.grdSaaty->setCurrentIndex(w.grdSaaty->model()->index(2, 3));
    mensajes.Esperar("VADRO PROGRAMADOR: Consistencia perfecta",
                     "Desea traspasar los valores hallados a la matriz de pesos?\nSe perderán los "
                     "valores introducidos inicialmente.",
                     Respuesta::Si);
    modales.Esperar(QStringLiteral("frmConsistencia"), [&w](QDialog& d) {
        auto& perfecta = static_cast<frmConsistencia&>(d);
        pruebas::CompararVolcado(perfecta, "frmConsistencia");
        const QTableView& g = *perfecta.grdSaaty;
        EXPECT_EQ(Pesos(g), "57.14 28.57 14.29 ");
        EXPECT_EQ(Celda(*w.grdSaaty, 2, 3), "7.00") << "nothing taken over yet";
        perfecta.cmdAceptar->click();
        EXPECT_EQ(Celda(*w.grdSaaty, 2, 3), "2.00") << "taken over at once";
        EXPECT_EQ(Celda(*w.grdSaaty, 0, 4), "Peso") << "the fixed cells too";
        EXPECT_EQ(Razon(w), "0.00");
        EXPECT_EQ(ColorRazon(w), kRojo) << "the colour waits for the recomputation";
    });
    w.cmdConsistencia->click();
    EXPECT_EQ(Pesos(*w.grdSaaty), "57.14 28.57 14.29 ");
    EXPECT_EQ(ColorRazon(w), kVerde);
    EXPECT_EQ(w.grdSaaty->currentIndex(), w.grdSaaty->model()->index(2, 3)) << "restored";
}

TEST_F(VentanaPesos, DirectScoresTheirPercentagesAndTheWarningsAfterAcceptance) {
    frmPesos& w = Abrir();
    Teclear(1, 2, "3"); // the matrix is typed in, then the direct method is chosen
    w.optDirecto->click();
    pruebas::CompararVolcado(w, "frmPesos_directo");
    const QTableView& g = *w.grdDirecto;

    // A click on a score opens the input on its text.
    const auto pulsar = [&w](int fila, int columna, const char* texto) {
        const QRect celda = w.grdDirecto->visualRect(w.grdDirecto->model()->index(fila, columna));
        QTest::mouseClick(w.grdDirecto->viewport(), Qt::LeftButton, {}, celda.center());
        EXPECT_FALSE(w.txtValor->isHidden()) << fila;
        w.txtValor->selectAll();
        QTest::keyClicks(w.txtValor, QString::fromUtf8(texto));
        QTest::keyClick(w.txtValor, Qt::Key_Return);
    };
    pulsar(1, 1, "1");
    pulsar(3, 2, "3"); // typed in the percentage column: the row's score
    EXPECT_EQ(Celda(g, 1, 2) + " " + Celda(g, 2, 2) + " " + Celda(g, 3, 2), "25.00  75.00");
    EXPECT_EQ(Celda(g, 4, 1) + " " + Celda(g, 4, 2), "4.00 100.00 %");
    const QRect total = w.grdDirecto->visualRect(w.grdDirecto->model()->index(4, 1));
    QTest::mouseClick(w.grdDirecto->viewport(), Qt::LeftButton, {}, total.center());
    EXPECT_TRUE(w.txtValor->isHidden()) << "the total row takes no input";

    pulsar(2, 1, "1");
    EXPECT_EQ(Celda(g, 1, 2) + " " + Celda(g, 2, 2) + " " + Celda(g, 3, 2), "20.00 20.00 60.00");
    // The third score was typed in the percentage column: its score cell still shows nothing,
    // so the list is incomplete. Yes writes; the matrix was typed in, so the first warning
    // follows, and No keeps the window with the data written.
    mensajes.Esperar("VADRO PROGRAMADOR",
                     "La matriz de ponderación en modo directo no está completa. Desea continuar?",
                     Respuesta::Si);
    mensajes.Esperar("VADRO PROGRAMADOR: matriz de pesos", kAvisoAhp, Respuesta::No);
    w.cmdAceptar->click();
    EXPECT_TRUE(w.isVisible());
    EXPECT_EQ(Nodo(3).Peso, ValorLibre(60.0));
    EXPECT_EQ(Nodo(3).Directo, ValorLibre(3.0));
    EXPECT_EQ(Nodo(1).Calculo, CalculoDirecto);
    EXPECT_EQ(Nodo(1).Saaty(2), ValorLibre("3")) << "the matrix is written too";

    // Cancel leaves through the same warning.
    mensajes.Esperar("VADRO PROGRAMADOR: cerrar matriz de pesos",
                     "Se perderán los últimos datos introducidos. Desea continuar?", Respuesta::Si);
    mensajes.Esperar("VADRO PROGRAMADOR: matriz de pesos", kAvisoAhp, Respuesta::Si);
    w.cmdCancelar->click();
    EXPECT_FALSE(w.isVisible());
}

TEST_F(VentanaPesos, ASetOfOneIsWeighedAtOnce) {
    using namespace pruebas;
    sesion().modelo = ModeloCon({Requerimiento("Único", {Criterio("Solo", {Indicador("x")})})});
    frmPesos solo(DireccionConjunto{1, {}, {}});
    EXPECT_EQ(Pesos(*solo.grdSaaty), "100.00 ");
    EXPECT_EQ(Celda(*solo.grdSaaty, 1, 1), "1");
    EXPECT_EQ(solo.lblCR->text().toStdString(), "0.00");
    EXPECT_EQ(solo.lblCR->palette().color(QPalette::Window), kVerde);
    QTest::keyClicks(solo.grdSaaty, QStringLiteral("5"));
    EXPECT_TRUE(solo.txtValor->isHidden()) << "the diagonal cannot be edited";
}

} // namespace
} // namespace vadro
