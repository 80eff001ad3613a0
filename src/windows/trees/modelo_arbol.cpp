#include "windows/trees/modelo_arbol.h"

#include "windows/core/texto.h"
#include "windows/trees/imagenes_arbol.h"

#include <QBrush>
#include <QPalette>
#include <QTreeView>

#include <algorithm>

namespace vadro {

ModeloArbol::ModeloArbol(Arbol& arbol, QObject* padre) : QAbstractItemModel(padre), arbol_(arbol) {
    arbol_.Observar(this);
}

ModeloArbol::~ModeloArbol() {
    arbol_.DejarDeObservar(this);
}

QModelIndex ModeloArbol::Indice(const NodoArbol* nodo) const {
    if (nodo == nullptr) {
        return {};
    }
    return createIndex(nodo->Fila(), 0, const_cast<NodoArbol*>(nodo));
}

NodoArbol* ModeloArbol::Nodo(const QModelIndex& indice) {
    return indice.isValid() ? static_cast<NodoArbol*>(indice.internalPointer()) : nullptr;
}

// ---- the item model ----

QModelIndex ModeloArbol::index(int fila, int columna, const QModelIndex& padre) const {
    if (!hasIndex(fila, columna, padre)) {
        return {};
    }
    const NodoArbol* nodoPadre = Nodo(padre);
    const auto& hermanos = nodoPadre != nullptr ? nodoPadre->Hijos() : arbol_.Raices();
    return createIndex(fila, columna, hermanos[static_cast<std::size_t>(fila)]);
}

QModelIndex ModeloArbol::parent(const QModelIndex& hijo) const {
    const NodoArbol* nodo = Nodo(hijo);
    return nodo != nullptr ? Indice(nodo->Padre()) : QModelIndex();
}

int ModeloArbol::rowCount(const QModelIndex& padre) const {
    if (padre.column() > 0) {
        return 0;
    }
    const NodoArbol* nodo = Nodo(padre);
    return nodo != nullptr ? nodo->NumHijos() : static_cast<int>(arbol_.Raices().size());
}

int ModeloArbol::columnCount(const QModelIndex& /*padre*/) const {
    return 1;
}

QVariant ModeloArbol::data(const QModelIndex& indice, int rol) const {
    const NodoArbol* nodo = Nodo(indice);
    if (nodo == nullptr) {
        return {};
    }
    switch (rol) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return Q(nodo->Text());
    case Qt::DecorationRole:
        return ImagenNodo(nodo->Image());
    case Qt::UserRole:
        return Q(nodo->Key());
    case Qt::BackgroundRole:
        // The drop highlight of a drag.
        if (nodo == arbol_.ResaltadoDestino()) {
            return QBrush(QPalette().color(QPalette::Highlight).lighter(160));
        }
        return {};
    default:
        return {};
    }
}

Qt::ItemFlags ModeloArbol::flags(const QModelIndex& indice) const {
    if (!indice.isValid()) {
        return Qt::NoItemFlags;
    }
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsEditable;
}

bool ModeloArbol::setData(const QModelIndex& indice, const QVariant& valor, int rol) {
    NodoArbol* nodo = Nodo(indice);
    if (nodo == nullptr || rol != Qt::EditRole || !AlRenombrar) {
        return false;
    }
    return AlRenombrar(nodo, ACadena(valor.toString()));
}

// ---- the notices of the tree ----

void ModeloArbol::Recargar(const std::function<void()>& carga) {
    beginResetModel();
    suspendido_ = true;
    porExpandir_.clear();
    porMostrar_ = nullptr;
    resaltado_ = nullptr;
    try {
        carga();
    } catch (...) {
        suspendido_ = false;
        endResetModel();
        throw;
    }
    suspendido_ = false;
    expandirTodo_ = true;
    seleccionPendiente_ = true;
    endResetModel();
}

void ModeloArbol::AntesDeAñadir(const NodoArbol* padre, int fila) {
    if (!suspendido_) {
        beginInsertRows(Indice(padre), fila, fila);
    }
}

void ModeloArbol::DespuesDeAñadir(const NodoArbol* nodo) {
    if (!suspendido_) {
        endInsertRows();
        if (nodo->Expandido()) {
            porExpandir_.push_back(nodo);
        }
    }
}

void ModeloArbol::AntesDeQuitar(const NodoArbol* nodo) {
    const auto dentro = [nodo](const NodoArbol* otro) {
        return otro != nullptr && otro->DentroDe(nodo);
    };
    std::erase_if(porExpandir_, dentro);
    if (dentro(porMostrar_)) {
        porMostrar_ = nullptr;
    }
    if (dentro(resaltado_)) {
        resaltado_ = nullptr;
    }
    seleccionPendiente_ = true;
    if (!suspendido_) {
        beginRemoveRows(Indice(nodo->Padre()), nodo->Fila(), nodo->Fila());
    }
}

void ModeloArbol::DespuesDeQuitar(const NodoArbol* /*padre*/, int /*fila*/) {
    if (!suspendido_) {
        endRemoveRows();
    }
}

void ModeloArbol::AntesDeMover(const NodoArbol* nodo, const NodoArbol* nuevoPadre, int fila) {
    movimiento_ = Movimiento::Ninguno;
    if (suspendido_) {
        return;
    }
    // The last child moved to the end of its own parent stays where it is: that is no move
    // for a view, and a view refuses it.
    if (nodo->Padre() == nuevoPadre && nodo->Fila() + 1 == fila) {
        movimiento_ = Movimiento::Nulo;
        return;
    }
    const QModelIndex origen = Indice(nodo->Padre());
    if (beginMoveRows(origen, nodo->Fila(), nodo->Fila(), Indice(nuevoPadre), fila)) {
        movimiento_ = Movimiento::Filas;
    } else {
        beginResetModel();
    }
}

void ModeloArbol::DespuesDeMover(const NodoArbol* /*nodo*/) {
    if (suspendido_ || movimiento_ == Movimiento::Nulo) {
        return;
    }
    if (movimiento_ == Movimiento::Filas) {
        endMoveRows();
    } else {
        endResetModel();
        expandirTodo_ = true;
    }
    seleccionPendiente_ = true;
}

void ModeloArbol::AntesDeVaciar() {
    porExpandir_.clear();
    porMostrar_ = nullptr;
    resaltado_ = nullptr;
    if (!suspendido_) {
        beginResetModel();
    }
}

void ModeloArbol::DespuesDeVaciar() {
    if (!suspendido_) {
        endResetModel();
    }
}

void ModeloArbol::NodoCambiado(const NodoArbol* nodo) {
    if (!suspendido_) {
        if (nodo->Expandido()) {
            porExpandir_.push_back(nodo);
        }
        const QModelIndex indice = Indice(nodo);
        emit dataChanged(indice, indice);
    }
}

void ModeloArbol::SeleccionCambiada(const NodoArbol* /*nodo*/) {
    seleccionPendiente_ = true;
}

void ModeloArbol::ResaltadoCambiado(const NodoArbol* nodo) {
    const NodoArbol* anterior = resaltado_;
    resaltado_ = nodo;
    if (suspendido_) {
        return;
    }
    for (const NodoArbol* n : {anterior, nodo}) {
        if (n != nullptr) {
            const QModelIndex indice = Indice(n);
            emit dataChanged(indice, indice, {Qt::BackgroundRole});
        }
    }
}

void ModeloArbol::NodoMostrado(const NodoArbol* nodo) {
    porMostrar_ = nodo;
}

void ModeloArbol::Sincronizar(QTreeView& vista) {
    sincronizando_ = true;
    if (expandirTodo_) {
        for (int i = 1; i <= arbol_.Cuenta(); ++i) {
            if (const NodoArbol* nodo = arbol_.Nodo(i); nodo->Expandido()) {
                vista.setExpanded(Indice(nodo), true);
            }
        }
        expandirTodo_ = false;
    }
    for (const NodoArbol* nodo : porExpandir_) {
        vista.setExpanded(Indice(nodo), true);
    }
    porExpandir_.clear();
    if (seleccionPendiente_) {
        const QModelIndex actual = Indice(arbol_.Seleccionado());
        if (actual.isValid()) {
            vista.setCurrentIndex(actual);
        } else {
            vista.clearSelection();
            vista.setCurrentIndex({});
        }
        seleccionPendiente_ = false;
    }
    if (porMostrar_ != nullptr) {
        vista.scrollTo(Indice(porMostrar_));
        porMostrar_ = nullptr;
    }
    sincronizando_ = false;
}

} // namespace vadro
