#include "windows/functions/modelo_tabla.h"

#include "windows/core/texto.h"

#include <QBrush>
#include <QColor>

namespace vadro {

namespace {

const std::string kCabecerasIntervalos[] = {"Id", "Desde...", "... hasta ...", "Valor R(x)"};

std::size_t Pos(int i) {
    return static_cast<std::size_t>(i);
}

} // namespace

ModeloTabla::ModeloTabla(Fuente fuente, QObject* padre)
    : QAbstractTableModel(padre), fuente_(std::move(fuente)), filas_(fuente_.filas()) {}

ModeloTabla::ModeloTabla(const TablaEdicion& tabla, QObject* padre)
    : ModeloTabla(Fuente{[&tabla] { return static_cast<int>(tabla.Filas.size()); },
                         [&tabla] { return tabla.Columnas(); },
                         [&tabla](int fila, int columna) -> const std::string& {
                             return tabla.Celda(fila + 1, columna);
                         },
                         [&tabla](int columna) -> const std::string& {
                             return tabla.Cabeceras[Pos(columna)];
                         },
                         [&tabla](int fila, int columna) -> std::optional<Color> {
                             return tabla.Fondo(fila + 1, columna);
                         },
                         [&tabla] { return tabla.ConId; }},
                  padre) {}

ModeloTabla::ModeloTabla(const EditorFuncion& editor, QObject* padre)
    : ModeloTabla(
          Fuente{[&editor] { return static_cast<int>(editor.Filas.size()); }, [] { return 4; },
                 [&editor](int fila, int columna) -> const std::string& {
                     return editor.Filas[Pos(fila)][Pos(columna)];
                 },
                 [](int columna) -> const std::string& { return kCabecerasIntervalos[columna]; },
                 [](int, int) -> std::optional<Color> { return std::nullopt; },
                 [] { return true; }},
          padre) {}

int ModeloTabla::rowCount(const QModelIndex& padre) const {
    return padre.isValid() ? 0 : filas_;
}

int ModeloTabla::columnCount(const QModelIndex& padre) const {
    return padre.isValid() ? 0 : fuente_.columnas();
}

QVariant ModeloTabla::data(const QModelIndex& indice, int papel) const {
    if (!indice.isValid() || indice.row() >= fuente_.filas()) {
        return {};
    }
    switch (papel) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return Q(fuente_.celda(indice.row(), indice.column()));
    case Qt::BackgroundRole:
        if (const std::optional<Color> color = fuente_.fondo(indice.row(), indice.column())) {
            return QBrush(QColor(static_cast<int>(*color & 0xFF),
                                 static_cast<int>((*color >> 8) & 0xFF),
                                 static_cast<int>((*color >> 16) & 0xFF)));
        }
        break;
    case Qt::TextAlignmentRole:
        if (fuente_.conId() && indice.column() == 0) {
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
        seccion < fuente_.columnas()) {
        return Q(fuente_.cabecera(seccion));
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
    const int filas = fuente_.filas();
    if (filas != filas_) {
        beginResetModel();
        filas_ = filas;
        endResetModel();
    } else if (filas_ > 0) {
        emit dataChanged(index(0, 0), index(filas_ - 1, fuente_.columnas() - 1));
    }
}

} // namespace vadro
