#pragma once

#include "core/functions/tabla_edicion.h"

#include <QAbstractTableModel>

namespace vadro {

// A table grid of the function editor as a table: the editor's rows and headers, the
// background of each cell as the editor colours it. The editor owns the cells; `Refrescar`
// tells the views what changed after a handler.
class ModeloTabla : public QAbstractTableModel {
    Q_OBJECT
public:
    ModeloTabla(const TablaEdicion& tabla, QObject* padre = nullptr);

    int rowCount(const QModelIndex& padre = {}) const override;
    int columnCount(const QModelIndex& padre = {}) const override;
    QVariant data(const QModelIndex& indice, int papel) const override;
    QVariant headerData(int seccion, Qt::Orientation orientacion, int papel) const override;
    Qt::ItemFlags flags(const QModelIndex& indice) const override;

    // After a handler: a new row count resets the views, anything else repaints the cells.
    void Refrescar();

private:
    const TablaEdicion& tabla_;
    int filas_ = 0;
};

} // namespace vadro
