#pragma once

#include <initializer_list>

class QHBoxLayout;
class QPushButton;
class QWidget;

namespace vadro {

// A push button with the name it has in the program and its caption.
QPushButton* Boton(QWidget* padre, const char* nombre, const char* texto);

// The "Aceptar" button of a dialog: named, and the default of its window.
QPushButton* BotonAceptar(QWidget* padre);

// A dialog's row of buttons, at its right edge.
QHBoxLayout* FilaBotones(std::initializer_list<QPushButton*> botones);

} // namespace vadro
