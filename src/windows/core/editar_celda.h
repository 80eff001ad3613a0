#pragma once

class QAbstractItemView;
class QLineEdit;

namespace vadro {

// Opens the floating input of a grid over its current cell, slightly inset, visible and with
// the focus. A key code below 0 or above 32 is a typed character: it replaces the cell's text
// and leaves the caret behind it. Any other code copies the cell's text into the input, wholly
// selected. The input must be a child of the grid's viewport. The same operation serves every
// grid of the program.
void Editar(QAbstractItemView& rejilla, QLineEdit& entrada, int tecla);

} // namespace vadro
