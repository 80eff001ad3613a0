#pragma once

#include "core/trees/arbol.h"

#include <QPoint>
#include <QTreeView>

namespace vadro {

class ModeloArbol;

// The tree control of the design windows over a `ModelArbol`. It tells its window, in the
// terms of the tree's logic, what the pointer and the keys do: the press, the drag over a
// node, the drop, the release, the key codes of the classic control.
class VistaArbol : public QTreeView {
    Q_OBJECT
public:
    explicit VistaArbol(QWidget* padre = nullptr);

    void setModel(QAbstractItemModel* modelo) override;
    // The node under a point of the viewport, or none.
    NodoArbol* NodoEn(const QPoint& punto) const;
    bool Arrastrando() const { return arrastrando_; }

signals:
    void Pulsado(vadro::NodoArbol* nodo);
    // A move with the left button held, far enough for a drag, over this node (or none).
    void Arrastrado(vadro::NodoArbol* nodo);
    void Soltado();
    void Liberado(vadro::NodoArbol* nodo, Qt::MouseButton boton, const QPoint& global);
    // Arrow keys (37 to 40), Delete (46) and F2 (113), after the control's own move.
    void Tecla(int codigo);
    // Ctrl+C comes as the character 3.
    void Caracter(int caracter);
    // The user moved the current row (by the pointer or the keys).
    void NodoActual(vadro::NodoArbol* nodo);

protected:
    void mousePressEvent(QMouseEvent* evento) override;
    void mouseMoveEvent(QMouseEvent* evento) override;
    void mouseReleaseEvent(QMouseEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;

private:
    QPoint inicio_;
    bool pulsado_ = false;
    bool arrastrando_ = false;
};

} // namespace vadro
