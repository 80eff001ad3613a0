#include "windows/trees/vista_arbol.h"

#include "core/core/limite_fallos.h"
#include "windows/core/conectar.h"
#include "windows/trees/imagenes_arbol.h"
#include "windows/trees/modelo_arbol.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>

namespace vadro {

VistaArbol::VistaArbol(QWidget* padre) : QTreeView(padre) {
    setHeaderHidden(true);
    setSelectionMode(QAbstractItemView::SingleSelection);
    // The label is edited on F2 and on the menu's rename, as the window decides.
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setDragEnabled(false);
    setUniformRowHeights(true);
    setExpandsOnDoubleClick(true);
}

void VistaArbol::setModel(QAbstractItemModel* modelo) {
    QTreeView::setModel(modelo);
    Conectar(selectionModel(), &QItemSelectionModel::currentChanged, this,
             [this](const QModelIndex& actual, const QModelIndex& /*anterior*/) {
                 auto* arbol = dynamic_cast<ModeloArbol*>(model());
                 if (arbol != nullptr && !arbol->Sincronizando()) {
                     emit NodoActual(ModeloArbol::Nodo(actual));
                 }
             });
}

NodoArbol* VistaArbol::NodoEn(const QPoint& punto) const {
    return ModeloArbol::Nodo(indexAt(punto));
}

void VistaArbol::mousePressEvent(QMouseEvent* evento) {
    EjecutarProtegido([&] {
        QTreeView::mousePressEvent(evento);
        if (evento->button() == Qt::LeftButton) {
            inicio_ = evento->position().toPoint();
            pulsado_ = true;
            arrastrando_ = false;
        }
        emit Pulsado(NodoEn(evento->position().toPoint()));
    });
}

void VistaArbol::mouseMoveEvent(QMouseEvent* evento) {
    EjecutarProtegido([&] {
        const QPoint punto = evento->position().toPoint();
        if (!pulsado_ || !(evento->buttons() & Qt::LeftButton)) {
            QTreeView::mouseMoveEvent(evento);
            return;
        }
        // A shaking hand is no drag.
        if (!arrastrando_ &&
            (punto - inicio_).manhattanLength() < QApplication::startDragDistance()) {
            return;
        }
        if (!arrastrando_) {
            arrastrando_ = true;
            viewport()->setCursor(QCursor(IconoArrastre(), 0, 0));
        }
        emit Arrastrado(NodoEn(punto));
    });
}

void VistaArbol::mouseReleaseEvent(QMouseEvent* evento) {
    EjecutarProtegido([&] {
        QTreeView::mouseReleaseEvent(evento);
        const bool eraArrastre = arrastrando_;
        pulsado_ = false;
        arrastrando_ = false;
        if (eraArrastre) {
            viewport()->unsetCursor();
            emit Soltado();
            return;
        }
        emit Liberado(NodoEn(evento->position().toPoint()), evento->button(),
                      evento->globalPosition().toPoint());
    });
}

void VistaArbol::keyPressEvent(QKeyEvent* evento) {
    EjecutarProtegido([&] {
        if (evento->matches(QKeySequence::Copy)) {
            emit Caracter(3);
            return;
        }
        switch (evento->key()) {
        case Qt::Key_Left:
        case Qt::Key_Up:
        case Qt::Key_Right:
        case Qt::Key_Down: {
            QTreeView::keyPressEvent(evento);
            static const int codigos[] = {37, 38, 39, 40};
            emit Tecla(codigos[evento->key() - Qt::Key_Left]);
            return;
        }
        case Qt::Key_Delete:
            emit Tecla(46);
            return;
        case Qt::Key_F2:
            emit Tecla(113);
            return;
        default:
            QTreeView::keyPressEvent(evento);
        }
    });
}

} // namespace vadro
