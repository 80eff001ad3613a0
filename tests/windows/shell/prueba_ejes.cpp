#include "ventana_principal.h"

#include "core/core/comunes.h"
#include "core/core/configuracion.h"
#include "soporte/volcado_ventana.h"
#include "windows/core/texto.h"
#include "windows/shell/frmConfigEjes.h"
#include "windows/shell/frmEjes.h"
#include "windows/shell/frmPropiedades.h"

#include <QApplication>
#include <QEnterEvent>
#include <QFocusEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QMouseEvent>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

#include <cstdlib>

namespace vadro {
namespace {

using pruebas::Hijo;

class Ejes : public pruebas::VentanaPrincipal {
protected:
    frmEjes& VentanaEjes() { return *dynamic_cast<frmEjes*>(Hija("frmEjes")); }
    // The captions of the three axes: time, requirements, components.
    static std::string Botones(const frmEjes& ejes) {
        return ACadena(ejes.cmdTiempo->text() + u'|' + ejes.cmdRequerimientos->text() + u'|' +
                       ejes.cmdComponentes->text());
    }

    static void Entrar(QWidget* control) {
        QEnterEvent entrada(QPointF(2, 2), QPointF(2, 2), QPointF(2, 2));
        QApplication::sendEvent(control, &entrada);
    }
    static void Mover(QWidget* zona) {
        QMouseEvent movimiento(QEvent::MouseMove, QPointF(3, 3), QPointF(3, 3), Qt::NoButton,
                               Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(zona, &movimiento);
    }

    // Screenshots to look at, when asked for: VADRO_CAPTURAS=1.
    static void Capturar(QWidget& ventana, const char* nombre) {
        if (std::getenv("VADRO_CAPTURAS") != nullptr) {
            ventana.grab().save(QString::fromUtf8("/tmp/") + QString::fromUtf8(nombre) +
                                QStringLiteral(".png"));
        }
    }
};

TEST_F(Ejes, TheButtonsShowTheAxesOfTheModel) {
    sesion().modelo.EjeX = "Años";
    NuevoModelo(); // blanks the model: the default titles
    frmEjes& ejes = VentanaEjes();
    pruebas::CompararVolcado(ejes, "frmEjes");
    EXPECT_EQ(ejes.windowTitle(), QStringLiteral("Límites del sistema"));
    sesion().modelo.EjeX = "Años";
    sesion().modelo.EjeZ = "";
    ejes.MostrarEjes();
    EXPECT_EQ(Botones(ejes), "Años|Requerimientos|");
}

TEST_F(Ejes, HintsStayUntilThePointerMovesOnTheBackground) {
    NuevoModelo();
    frmEjes& ejes = VentanaEjes();
    // Which hint each axis has is the core's; which button is which axis, their captions show.
    const char* ayuda = "Definición de componentes o elementos que describen la decisión";
    Entrar(ejes.cmdComponentes);
    EXPECT_EQ(Estado(), ayuda);
    Mover(ejes.cmdComponentes);
    EXPECT_EQ(Estado(), ayuda) << "the hint stays over its button";
    for (QWidget* zona : {static_cast<QWidget*>(&ejes), ejes.pctFondo, ejes.imgEjes}) {
        Entrar(ejes.cmdTiempo);
        Mover(zona);
        EXPECT_EQ(Estado(), "Posición: ejes") << zona->objectName().toStdString();
    }
}

TEST_F(Ejes, ResizingKeepsPictureAndButtonsInProportion) {
    NuevoModelo();
    frmEjes& ejes = VentanaEjes();
    auto* marco = qobject_cast<QMdiSubWindow*>(ejes.parentWidget());
    marco->resize(500, 400);
    const QSize chico = ejes.size();
    const QRect antes = ejes.cmdTiempo->geometry();
    Capturar(*marco, "frmEjes_chico");
    marco->resize(1000, 760);
    const QSize grande = ejes.size();
    const QRect despues = ejes.cmdTiempo->geometry();
    Capturar(*marco, "frmEjes_grande");
    EXPECT_EQ(ejes.imgEjes->size(), grande);
    const double fx = static_cast<double>(grande.width()) / chico.width();
    const double fy = static_cast<double>(grande.height()) / chico.height();
    EXPECT_NEAR(despues.x(), antes.x() * fx, 1.5);
    EXPECT_NEAR(despues.y(), antes.y() * fy, 1.5);
    EXPECT_NEAR(despues.width(), antes.width() * fx, 2.5);
    for (QPushButton* boton :
         {ejes.cmdTiempo, ejes.cmdRequerimientos, ejes.cmdComponentes, ejes.cmdEjes}) {
        EXPECT_TRUE(ejes.rect().contains(boton->geometry()));
    }
}

TEST_F(Ejes, TheAxesDialogFromTheWindowAndFromTheMenu) {
    NuevoModelo();
    sesion().modelo.Modificado = false;
    sesion().modelo.EjeY = "";
    frmEjes& ejes = VentanaEjes();
    modales.Esperar(QStringLiteral("frmConfigEjes"), [](QDialog& d) {
        pruebas::CompararVolcado(d, "frmConfigEjes");
        Capturar(d, "frmConfigEjes");
        auto* x = Hijo<QLineEdit>(d, "txtEjeX");
        auto* y = Hijo<QLineEdit>(d, "txtEjeY");
        EXPECT_EQ(y->text(), QStringLiteral("Requerimientos")) << "the default of a missing title";
        QFocusEvent foco(QEvent::FocusIn, Qt::MouseFocusReason);
        QApplication::sendEvent(x, &foco);
        QApplication::processEvents();
        EXPECT_EQ(x->selectedText(), QStringLiteral("Tiempo")) << "the text selected on focus";
        QTest::keyClicks(x, QStringLiteral("Plazo"));
        Hijo<QLineEdit>(d, "txtEjeZ")->clear();
        QTest::keyClick(x, Qt::Key_Return);
    });
    QTest::mouseClick(ejes.cmdEjes, Qt::LeftButton);
    const Modelo& m = sesion().modelo;
    EXPECT_EQ(m.EjeX + "|" + m.EjeY + "|" + m.EjeZ, "Plazo|Requerimientos|")
        << "the typing replaced the selected text";
    EXPECT_TRUE(m.Modificado);
    EXPECT_EQ(Botones(ejes), "Plazo|Requerimientos|");

    // From the menu: cancel changes nothing, acceptance shows on the buttons.
    for (const auto& [boton, eje] :
         {std::pair("cmdCancelar", ""), std::pair("cmdAceptar", "Partes")}) {
        sesion().modelo.Modificado = false;
        modales.Esperar(QStringLiteral("frmConfigEjes"), [boton = boton](QDialog& d) {
            Hijo<QLineEdit>(d, "txtEjeZ")->setText(QStringLiteral("Partes"));
            Hijo<QPushButton>(d, boton)->click();
        });
        principal.mnuConfiguracionEjes->trigger();
        EXPECT_EQ(std::tuple(m.EjeZ, m.Modificado, ACadena(ejes.cmdComponentes->text())),
                  std::tuple(eje, *eje != '\0', eje));
    }
}

TEST_F(Ejes, ThePropertiesDialogLoadsAcceptsAndCancels) {
    NuevoModelo();
    Modelo& m = sesion().modelo;
    m.Nombre = "Depuradora";
    m.Version = "3";
    modales.Esperar(QStringLiteral("frmPropiedades"), [](QDialog& d) {
        pruebas::CompararVolcado(d, "frmPropiedades");
        Capturar(d, "frmPropiedades");
        auto* dialogo = dynamic_cast<frmPropiedades*>(&d);
        ASSERT_NE(dialogo, nullptr);
        for (int i = 0; i < 7; ++i) {
            dialogo->txtInfo[static_cast<std::size_t>(i)]->clear();
            QTest::keyClicks(dialogo->txtInfo[static_cast<std::size_t>(i)],
                             QStringLiteral("campo ") + QString::number(i));
        }
        QTest::mouseClick(dialogo->cmdAceptar, Qt::LeftButton);
    });
    principal.mnuPropiedades->trigger();
    EXPECT_EQ(Unir({m.Nombre, "|", m.Fecha, "|", m.Localizacion, "|", m.Autor, "|", m.Referencia,
                    "|", m.Version, "|", m.Descripcion}),
              "campo 0|campo 1|campo 2|campo 3|campo 4|campo 5|campo 6");

    modales.Esperar(QStringLiteral("frmPropiedades"), [](QDialog& d) {
        Hijo<QLineEdit>(d, "txtInfo(0)")->setText(QStringLiteral("otro"));
        Hijo<QPushButton>(d, "cmdCancelar")->click();
    });
    principal.mnuPropiedades->trigger();
    EXPECT_EQ(m.Nombre, "campo 0");
}

TEST_F(Ejes, TheLargeFontLeavesTheDialogsReadable) {
    sesion().configuracion.TamanoFuente = 2;
    NuevoModelo();
    frmEjes& ejes = VentanaEjes();
    ejes.AjustarControles();
    Capturar(*ejes.parentWidget(), "frmEjes_grande_letra");
    for (QPushButton* boton : {ejes.cmdTiempo, ejes.cmdRequerimientos, ejes.cmdComponentes}) {
        EXPECT_GE(boton->width(), boton->fontMetrics().horizontalAdvance(boton->text()))
            << boton->objectName().toStdString();
    }
    modales.Esperar(QStringLiteral("frmPropiedades"), [](QDialog& d) {
        Capturar(d, "frmPropiedades_grande");
        for (QLabel* etiqueta : d.findChildren<QLabel*>()) {
            EXPECT_GE(etiqueta->width(), etiqueta->minimumSizeHint().width())
                << etiqueta->objectName().toStdString();
        }
        d.reject();
    });
    principal.mnuPropiedades->trigger();
}

} // namespace
} // namespace vadro
