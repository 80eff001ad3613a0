#include "windows/core/editar_celda.h"

#include <QLineEdit>
#include <QTableWidget>

#include <gtest/gtest.h>

namespace vadro {
namespace {

TEST(EditarCelda, TheInputOpensOverTheCurrentCellWithItsTextOrTheTypedCharacter) {
    QTableWidget rejilla(3, 3);
    rejilla.resize(400, 200);
    rejilla.setItem(1, 2, new QTableWidgetItem(QStringLiteral("0.25")));
    auto* entrada = new QLineEdit(rejilla.viewport());
    entrada->hide();
    rejilla.show();
    rejilla.setCurrentCell(1, 2);

    struct Caso {
        int tecla;
        const char* texto;
        bool seleccionado;
    };
    // Space and the control codes open on the cell's text; any other code is typed.
    for (const Caso& caso : {Caso{32, "0.25", true}, Caso{0, "0.25", true}, Caso{'7', "7", false},
                             Caso{0xE9, "é", false}}) {
        entrada->hide();
        Editar(rejilla, *entrada, caso.tecla);
        EXPECT_TRUE(entrada->isVisible()) << caso.tecla;
        EXPECT_EQ(entrada->text(), QString::fromUtf8(caso.texto)) << caso.tecla;
        EXPECT_EQ(entrada->hasSelectedText(), caso.seleccionado) << caso.tecla;
        if (!caso.seleccionado) {
            EXPECT_EQ(entrada->cursorPosition(), entrada->text().size()) << "caret behind it";
        }
        const QRect celda = rejilla.visualRect(rejilla.currentIndex());
        EXPECT_TRUE(celda.contains(entrada->geometry())) << "inside the cell";
        EXPECT_GT(entrada->width(), celda.width() - 4) << "at the cell's size";
    }
}

} // namespace
} // namespace vadro
