#include "windows/weighting/formato_rejilla.h"

#include "windows/core/texto.h"

#include <QFontMetrics>
#include <QHeaderView>
#include <QTableView>

#include <algorithm>

namespace vadro {

QTableView* RejillaPesos(QWidget* padre, const char* nombre, QAbstractItemModel& modelo) {
    auto* rejilla = new QTableView(padre);
    rejilla->setObjectName(Q(nombre));
    rejilla->setModel(&modelo);
    rejilla->horizontalHeader()->hide();
    rejilla->verticalHeader()->hide();
    rejilla->setSelectionMode(QAbstractItemView::NoSelection);
    rejilla->setEditTriggers(QAbstractItemView::NoEditTriggers);
    rejilla->setWordWrap(true);
    return rejilla;
}

void FormatearRejilla(QTableView& rejilla) {
    const QAbstractItemModel* modelo = rejilla.model();
    const int columnas = modelo->columnCount();
    const int filas = modelo->rowCount();
    if (columnas == 0 || filas == 0) {
        return;
    }
    const QFontMetrics medida(rejilla.font());
    const int anchoMinimo = medida.horizontalAdvance(QStringLiteral("000.00")) + 12;
    const int altoMinimo = medida.height() + 8;
    const QSize area = rejilla.viewport()->size();
    const int ancho = std::max(anchoMinimo, (area.width() - 2) / columnas);
    const int alto = std::max(altoMinimo, (area.height() - 2) / filas);
    for (int c = 0; c < columnas; ++c) {
        rejilla.setColumnWidth(c, ancho);
    }
    for (int f = 0; f < filas; ++f) {
        rejilla.setRowHeight(f, alto);
    }
}

} // namespace vadro
