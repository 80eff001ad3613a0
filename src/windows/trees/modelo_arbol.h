#pragma once

#include "core/trees/arbol.h"

#include <QAbstractItemModel>

#include <functional>
#include <string>
#include <vector>

class QTreeView;

namespace vadro {

// The item model over a keyed tree of the core: one column, the node's text and image. It
// follows the tree through its change notices; what only a view can do (expanding, scrolling,
// the current row) it keeps until `Sincronizar`, so that an operation on many nodes costs the
// view one layout.
class ModeloArbol : public QAbstractItemModel, private ObservadorArbol {
    Q_OBJECT
public:
    explicit ModeloArbol(Arbol& arbol, QObject* padre = nullptr);
    ~ModeloArbol() override;

    // The end of an in-place edit: the window's rename rule; false keeps the old text.
    std::function<bool(NodoArbol*, const std::string&)> AlRenombrar;

    QModelIndex Indice(const NodoArbol* nodo) const;
    static NodoArbol* Nodo(const QModelIndex& indice);

    // Runs a load of the whole tree as one reset instead of a notice per node.
    void Recargar(const std::function<void()>& carga);
    // Brings the view up to the tree: pending expansions, the selected node as the current
    // row, and the last node asked to be shown scrolled into view.
    void Sincronizar(QTreeView& vista);
    // True while `Sincronizar` sets the view's current row, which is no user's choice.
    bool Sincronizando() const { return sincronizando_; }

    QModelIndex index(int fila, int columna, const QModelIndex& padre = {}) const override;
    QModelIndex parent(const QModelIndex& hijo) const override;
    int rowCount(const QModelIndex& padre = {}) const override;
    int columnCount(const QModelIndex& padre = {}) const override;
    QVariant data(const QModelIndex& indice, int rol = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex& indice) const override;
    bool setData(const QModelIndex& indice, const QVariant& valor, int rol = Qt::EditRole) override;

private:
    void AntesDeAñadir(const NodoArbol* padre, int fila) override;
    void DespuesDeAñadir(const NodoArbol* nodo) override;
    void AntesDeQuitar(const NodoArbol* nodo) override;
    void DespuesDeQuitar(const NodoArbol* padre, int fila) override;
    void AntesDeMover(const NodoArbol* nodo, const NodoArbol* nuevoPadre, int fila) override;
    void DespuesDeMover(const NodoArbol* nodo) override;
    void AntesDeVaciar() override;
    void DespuesDeVaciar() override;
    void NodoCambiado(const NodoArbol* nodo) override;
    void ClaveCambiada(const NodoArbol* /*nodo*/) override {}
    void SeleccionCambiada(const NodoArbol* nodo) override;
    void ResaltadoCambiado(const NodoArbol* nodo) override;
    void NodoMostrado(const NodoArbol* nodo) override;

    enum class Movimiento { Ninguno, Filas, Nulo };

    Arbol& arbol_;
    bool suspendido_ = false;
    bool sincronizando_ = false;
    bool expandirTodo_ = false;
    bool seleccionPendiente_ = false;
    Movimiento movimiento_ = Movimiento::Ninguno;
    const NodoArbol* resaltado_ = nullptr;
    const NodoArbol* porMostrar_ = nullptr;
    std::vector<const NodoArbol*> porExpandir_;
};

} // namespace vadro
