#include "core/core/valor_libre.h"
#include "soporte/prueba_sesion.h"
#include "windows/core/conectar.h"
#include "windows/core/texto.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>
#include <QWidget>

#include <gtest/gtest.h>

namespace vadro {
namespace {

// A window that reads a number when its button is clicked, as the editors of the program do.
class VentanaNumero : public QWidget {
public:
    VentanaNumero() {
        auto* columna = new QVBoxLayout(this);
        columna->addWidget(txtValor);
        columna->addWidget(cmdLeer);
        Conectar(cmdLeer, &QPushButton::clicked, this, [this] {
            leido = AEntero16(LeerNumero(ACadena(txtValor->text())).value_or(0));
        });
    }
    QLineEdit* txtValor = new QLineEdit(this);
    QPushButton* cmdLeer = new QPushButton(this);
    int leido = 0;
};

class LimiteFallosVentana : public pruebas::PruebaSesion {};

TEST_F(LimiteFallosVentana, AnAbsurdNumberTypedShowsItsMessageAndTheWindowGoesOn) {
    VentanaNumero ventana;
    ventana.show();
    for (const char* absurdo : {"1e999", "1234567890123456789012345678901234567890"}) {
        ventana.txtValor->clear();
        QTest::keyClicks(ventana.txtValor, Q(absurdo));
        mensajes.Esperar("VADRO PROGRAMADOR", "6: Desbordamiento");
        QTest::mouseClick(ventana.cmdLeer, Qt::LeftButton);
        EXPECT_EQ(ventana.leido, 0) << absurdo;
    }
    ventana.txtValor->clear();
    QTest::keyClicks(ventana.txtValor, Q("12"));
    QTest::mouseClick(ventana.cmdLeer, Qt::LeftButton);
    EXPECT_EQ(ventana.leido, 12) << "the window still answers";
    EXPECT_TRUE(ventana.isVisible());
}

} // namespace
} // namespace vadro
