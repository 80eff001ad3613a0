#include "windows/weighting/rejillas_pesos.h"

#include "core/weighting/ventana_pesos.h"
#include "windows/core/texto.h"

#include <QColor>
#include <QGuiApplication>
#include <QPalette>

namespace vadro {

QColor QColorDe(ColorRGB color) {
    return {color.Rojo, color.Verde, color.Azul};
}

namespace {

bool Fija(const QModelIndex& indice) {
    return indice.row() == 0 || indice.column() == 0;
}

} // namespace

void AdaptadorRejilla::Dimensionar(int filas, int columnas) {
    beginResetModel();
    celdas_.Dimensionar(filas, columnas);
    endResetModel();
}

std::string AdaptadorRejilla::Texto(int fila, int columna) const {
    return celdas_.Texto(fila, columna);
}

void AdaptadorRejilla::PonerTexto(int fila, int columna, const std::string& texto) {
    celdas_.PonerTexto(fila, columna, texto);
    const QModelIndex celda = index(fila, columna);
    emit dataChanged(celda, celda, {Qt::DisplayRole, Qt::ToolTipRole});
}

void AdaptadorRejilla::PonerColorFondo(int fila, int columna, ColorRGB color) {
    celdas_.PonerColorFondo(fila, columna, color);
    const QModelIndex celda = index(fila, columna);
    emit dataChanged(celda, celda, {Qt::BackgroundRole});
}

int AdaptadorRejilla::rowCount(const QModelIndex& padre) const {
    return padre.isValid() ? 0 : celdas_.Filas();
}

int AdaptadorRejilla::columnCount(const QModelIndex& padre) const {
    return padre.isValid() ? 0 : celdas_.Columnas();
}

QVariant AdaptadorRejilla::data(const QModelIndex& indice, int rol) const {
    if (!indice.isValid()) {
        return {};
    }
    const int fila = indice.row();
    const int columna = indice.column();
    switch (rol) {
    case Qt::DisplayRole:
        return Q(celdas_.Texto(fila, columna));
    case Qt::BackgroundRole:
        if (Fija(indice)) {
            return QGuiApplication::palette().color(QPalette::Button);
        }
        return QColorDe(celdas_.ColorFondo(fila, columna));
    case Qt::ToolTipRole: {
        const std::string ayuda = AyudaCelda(*this, fila, columna);
        return ayuda.empty() ? QVariant() : QVariant(Q(ayuda));
    }
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(Qt::Alignment(Qt::AlignCenter));
    default:
        return {};
    }
}

Qt::ItemFlags AdaptadorRejilla::flags(const QModelIndex& indice) const {
    if (!indice.isValid() || Fija(indice)) {
        return Qt::ItemIsEnabled;
    }
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable;
}

ModeloVistaPonderacion::ModeloVistaPonderacion(const Modelo& modelo, VistaPonderacion vista,
                                               QObject* padre)
    : QAbstractTableModel(padre), modelo_(modelo), vista_(std::move(vista)) {}

void ModeloVistaPonderacion::Seleccionar(const SeleccionConjunto& seleccion) {
    if (seleccion_) {
        const SeleccionConjunto anterior = *seleccion_;
        RepintarConjunto(modelo_, vista_, anterior);
        seleccion_.reset();
        Avisar(anterior);
    }
    seleccion_ = seleccion;
    Avisar(seleccion);
}

void ModeloVistaPonderacion::Reconstruir(const SeleccionConjunto& seleccion) {
    // The rebuilt cells take their colours by weight again: the navy of the set goes.
    ReconstruirConjunto(modelo_, vista_, seleccion);
    seleccion_.reset();
    Avisar(seleccion);
}

void ModeloVistaPonderacion::Avisar(const SeleccionConjunto& seleccion) {
    emit dataChanged(index(seleccion.Primera, seleccion.Columna),
                     index(seleccion.Ultima, seleccion.Columna));
}

bool ModeloVistaPonderacion::Seleccionada(int fila, int columna) const {
    return seleccion_ && seleccion_->Columna == columna && fila >= seleccion_->Primera &&
           fila <= seleccion_->Ultima;
}

int ModeloVistaPonderacion::rowCount(const QModelIndex& padre) const {
    return padre.isValid() ? 0 : vista_.NumFilas();
}

int ModeloVistaPonderacion::columnCount(const QModelIndex& padre) const {
    return padre.isValid() ? 0 : vista_.NumColumnas();
}

QVariant ModeloVistaPonderacion::data(const QModelIndex& indice, int rol) const {
    if (!indice.isValid()) {
        return {};
    }
    const int fila = indice.row();
    const int columna = indice.column();
    switch (rol) {
    case Qt::DisplayRole:
        return Q(vista_.Celda(fila, columna).Texto);
    case Qt::BackgroundRole:
        return QColorDe(Seleccionada(fila, columna) ? ColorMarino
                                                    : vista_.Celda(fila, columna).Fondo);
    case Qt::ForegroundRole:
        if (Seleccionada(fila, columna)) {
            return QGuiApplication::palette().color(QPalette::Window);
        }
        return {};
    case Qt::ToolTipRole: {
        const std::string global = TextoPesoGlobal(modelo_, vista_, fila, columna);
        return global.empty() ? QVariant() : QVariant(Q(global));
    }
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(Qt::Alignment(Qt::AlignCenter));
    default:
        return {};
    }
}

QVariant ModeloVistaPonderacion::headerData(int seccion, Qt::Orientation orientacion,
                                            int rol) const {
    if (orientacion == Qt::Horizontal && rol == Qt::DisplayRole && seccion >= 0 &&
        seccion < vista_.NumColumnas()) {
        return Q(vista_.Cabeceras[static_cast<std::size_t>(seccion)]);
    }
    return QAbstractTableModel::headerData(seccion, orientacion, rol);
}

Qt::ItemFlags ModeloVistaPonderacion::flags(const QModelIndex& indice) const {
    return indice.isValid() ? Qt::ItemIsEnabled : Qt::NoItemFlags;
}

} // namespace vadro
