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

    // The key, the input's text, whether it is selected. Space and the control codes open on the
    // cell's text; any other code is typed.
    for (const auto& [tecla, texto, seleccionado] :
         {std::tuple{32, "0.25", true}, {0, "0.25", true}, {'7', "7", false}, {0xE9, "é", false}}) {
        entrada->hide();
        Editar(rejilla, *entrada, tecla);
        EXPECT_TRUE(entrada->isVisible()) << tecla;
        EXPECT_EQ(entrada->text(), QString::fromUtf8(texto)) << tecla;
        EXPECT_EQ(entrada->hasSelectedText(), seleccionado) << tecla;
        if (!seleccionado) {
            EXPECT_EQ(entrada->cursorPosition(), entrada->text().size()) << "caret behind it";
        }
        const QRect celda = rejilla.visualRect(rejilla.currentIndex());
        EXPECT_TRUE(celda.contains(entrada->geometry())) << "inside the cell";
        EXPECT_GT(entrada->width(), celda.width() - 4) << "at the cell's size";
    }
}

} // namespace
} // namespace vadro
