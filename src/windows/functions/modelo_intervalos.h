#pragma once

#include "core/functions/editor_funcion.h"

#include <QAbstractTableModel>

namespace vadro {

// The interval grid of the function editor as a table: the editor's rows, four columns with
// their headers, the column "Id" not editable. The editor owns the cells; `Refrescar` tells
// the views what changed after a handler.
class ModeloIntervalos : public QAbstractTableModel {
    Q_OBJECT
public:
    ModeloIntervalos(const EditorFuncion& editor, QObject* padre = nullptr);

    int rowCount(const QModelIndex& padre = {}) const override;
    int columnCount(const QModelIndex& padre = {}) const override;
    QVariant data(const QModelIndex& indice, int papel) const override;
    QVariant headerData(int seccion, Qt::Orientation orientacion, int papel) const override;
    Qt::ItemFlags flags(const QModelIndex& indice) const override;

    // After a handler: a new row count resets the views, anything else repaints the cells.
    void Refrescar();

private:
    const EditorFuncion& editor_;
    int filas_ = 0;
};

} // namespace vadro
