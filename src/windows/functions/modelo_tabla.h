#pragma once

#include "core/functions/editor_funcion.h"
#include "core/functions/tabla_edicion.h"

#include <QAbstractTableModel>

#include <functional>
#include <optional>
#include <string>

namespace vadro {

// A grid of the function editor as a table: the rows the editor holds, its column headers,
// the column "Id" centred and the background of each cell where the editor colours it. The
// editor owns the cells; `Refrescar` tells the views what changed after a handler.
class ModeloTabla : public QAbstractTableModel {
    Q_OBJECT
public:
    // A table grid, coloured by its table.
    ModeloTabla(const TablaEdicion& tabla, QObject* padre = nullptr);
    // The interval grid: four columns, the first the "Id", with no colours of their own.
    ModeloTabla(const EditorFuncion& editor, QObject* padre = nullptr);

    int rowCount(const QModelIndex& padre = {}) const override;
    int columnCount(const QModelIndex& padre = {}) const override;
    QVariant data(const QModelIndex& indice, int papel) const override;
    QVariant headerData(int seccion, Qt::Orientation orientacion, int papel) const override;
    Qt::ItemFlags flags(const QModelIndex& indice) const override;

    // After a handler: a new row count resets the views, anything else repaints the cells.
    void Refrescar();

private:
    // What the grid reads from the editor, rows and columns counted from 0.
    struct Fuente {
        std::function<int()> filas;
        std::function<int()> columnas;
        std::function<const std::string&(int, int)> celda;
        std::function<const std::string&(int)> cabecera;
        std::function<std::optional<Color>(int, int)> fondo;
        std::function<bool()> conId;
    };
    ModeloTabla(Fuente fuente, QObject* padre);

    Fuente fuente_;
    int filas_ = 0;
};

} // namespace vadro
