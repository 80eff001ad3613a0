#include "windows/core/editar_celda.h"

#include <QAbstractItemView>
#include <QLineEdit>

namespace vadro {

namespace {

// Twenty twips, the inset of the input inside the cell's borders.
constexpr int kMargen = 1;

bool EsCaracter(int tecla) {
    return tecla < 0 || tecla > 32;
}

} // namespace

void Editar(QAbstractItemView& rejilla, QLineEdit& entrada, int tecla) {
    const QModelIndex celda = rejilla.currentIndex();
    if (!celda.isValid()) {
        return;
    }
    entrada.setGeometry(rejilla.visualRect(celda).adjusted(kMargen, kMargen, -kMargen, -kMargen));
    if (EsCaracter(tecla)) {
        const auto caracter = static_cast<char32_t>(tecla);
        entrada.setText(QString::fromUcs4(&caracter, 1));
        entrada.setCursorPosition(static_cast<int>(entrada.text().size()));
    } else {
        entrada.setText(celda.data(Qt::DisplayRole).toString());
        entrada.selectAll();
    }
    entrada.show();
    entrada.raise();
    entrada.setFocus();
}

} // namespace vadro
