#include "windows/functions/modelo_tabla.h"

#include "windows/core/texto.h"

#include <QBrush>
#include <QColor>

namespace vadro {

ModeloTabla::ModeloTabla(const TablaEdicion& tabla, QObject* padre)
    : QAbstractTableModel(padre), tabla_(tabla), filas_(static_cast<int>(tabla.Filas.size())) {}

int ModeloTabla::rowCount(const QModelIndex& padre) const {
    return padre.isValid() ? 0 : filas_;
}

int ModeloTabla::columnCount(const QModelIndex& padre) const {
    return padre.isValid() ? 0 : tabla_.Columnas();
}

QVariant ModeloTabla::data(const QModelIndex& indice, int papel) const {
    if (!indice.isValid() || indice.row() >= static_cast<int>(tabla_.Filas.size())) {
        return {};
    }
    const int fila = indice.row() + 1;
    switch (papel) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return Q(tabla_.Celda(fila, indice.column()));
    case Qt::BackgroundRole: {
        const Color color = tabla_.Fondo(fila, indice.column());
        return QBrush(QColor(static_cast<int>(color & 0xFF), static_cast<int>((color >> 8) & 0xFF),
                             static_cast<int>((color >> 16) & 0xFF)));
    }
    case Qt::TextAlignmentRole:
        if (tabla_.ConId && indice.column() == 0) {
            return QVariant::fromValue(Qt::AlignCenter);
        }
        break;
    default:
        break;
    }
    return {};
}

QVariant ModeloTabla::headerData(int seccion, Qt::Orientation orientacion, int papel) const {
    if (orientacion == Qt::Horizontal && papel == Qt::DisplayRole && seccion >= 0 &&
        seccion < tabla_.Columnas()) {
        return Q(tabla_.Cabeceras[static_cast<std::size_t>(seccion)]);
    }
    return QAbstractTableModel::headerData(seccion, orientacion, papel);
}

Qt::ItemFlags ModeloTabla::flags(const QModelIndex& indice) const {
    if (!indice.isValid()) {
        return Qt::NoItemFlags;
    }
    // The cells are edited through the grid's floating input, never by the view itself.
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable;
}

void ModeloTabla::Refrescar() {
    const int filas = static_cast<int>(tabla_.Filas.size());
    if (filas != filas_) {
        beginResetModel();
        filas_ = filas;
        endResetModel();
    } else if (filas_ > 0) {
        emit dataChanged(index(0, 0), index(filas_ - 1, tabla_.Columnas() - 1));
    }
}

} // namespace vadro
