#include "windows/functions/modelo_intervalos.h"

#include "windows/core/texto.h"

namespace vadro {

ModeloIntervalos::ModeloIntervalos(const EditorFuncion& editor, QObject* padre)
    : QAbstractTableModel(padre), editor_(editor), filas_(static_cast<int>(editor.Filas.size())) {}

int ModeloIntervalos::rowCount(const QModelIndex& padre) const {
    return padre.isValid() ? 0 : filas_;
}

int ModeloIntervalos::columnCount(const QModelIndex& padre) const {
    return padre.isValid() ? 0 : 4;
}

QVariant ModeloIntervalos::data(const QModelIndex& indice, int papel) const {
    if (!indice.isValid() || indice.row() >= static_cast<int>(editor_.Filas.size())) {
        return {};
    }
    if (papel == Qt::DisplayRole || papel == Qt::EditRole) {
        return Q(editor_.Filas[static_cast<std::size_t>(indice.row())]
                              [static_cast<std::size_t>(indice.column())]);
    }
    if (papel == Qt::TextAlignmentRole && indice.column() == 0) {
        return QVariant::fromValue(Qt::AlignCenter);
    }
    return {};
}

QVariant ModeloIntervalos::headerData(int seccion, Qt::Orientation orientacion, int papel) const {
    static const char* const kCabeceras[] = {"Id", "Desde...", "... hasta ...", "Valor R(x)"};
    if (orientacion == Qt::Horizontal && papel == Qt::DisplayRole && seccion >= 0 && seccion < 4) {
        return Q(kCabeceras[seccion]);
    }
    return QAbstractTableModel::headerData(seccion, orientacion, papel);
}

Qt::ItemFlags ModeloIntervalos::flags(const QModelIndex& indice) const {
    if (!indice.isValid()) {
        return Qt::NoItemFlags;
    }
    // The cells are edited through the grid's floating input, never by the view itself.
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable;
}

void ModeloIntervalos::Refrescar() {
    const int filas = static_cast<int>(editor_.Filas.size());
    if (filas != filas_) {
        beginResetModel();
        filas_ = filas;
        endResetModel();
    } else if (filas_ > 0) {
        emit dataChanged(index(0, 0), index(filas_ - 1, 3));
    }
}

} // namespace vadro
