#pragma once

class QAbstractItemModel;
class QTableView;
class QWidget;

namespace vadro {

// A weights grid: a table view over its model with no headers of its own (row 0 and column 0
// of the model are the fixed heads), single current cell, no editing by the view.
QTableView* RejillaPesos(QWidget* padre, const char* nombre, QAbstractItemModel& modelo);

// Columns share the width of the grid and rows its height, down to a size that still shows
// a figure; the current cell stays.
void FormatearRejilla(QTableView& rejilla);

} // namespace vadro
