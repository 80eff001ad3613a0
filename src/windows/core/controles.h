#pragma once

#include <initializer_list>

class QCheckBox;
class QGroupBox;
class QHBoxLayout;
class QLabel;
class QPushButton;
class QRadioButton;
class QWidget;

namespace vadro {

// Controls with a caption, each with the name it has in the program and its caption; a label
// that no one reads by name may go without one (nullptr).
QPushButton* Boton(QWidget* padre, const char* nombre, const char* texto);
QLabel* Etiqueta(QWidget* padre, const char* nombre, const char* texto);
QCheckBox* Casilla(QWidget* padre, const char* nombre, const char* texto);
QRadioButton* Opcion(QWidget* padre, const char* nombre, const char* texto);
QGroupBox* Marco(QWidget* padre, const char* nombre, const char* titulo);

// The "Aceptar" button of a dialog: named, and the default of its window.
QPushButton* BotonAceptar(QWidget* padre);

// A dialog's row of buttons, at its right edge.
QHBoxLayout* FilaBotones(std::initializer_list<QPushButton*> botones);

} // namespace vadro
