#pragma once

class QWidget;

namespace vadro {

// Gives every label, text box, combo box, frame, button, check box, grid and tree of the
// window the program's font at the size of the session's font size class; labels and text
// boxes also get their height.
void AjustarFuente(QWidget& ventana);
void AjustarFuente(QWidget& ventana, int tamanoFuente);

} // namespace vadro
