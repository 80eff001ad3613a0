#pragma once

#include <string>

class QWidget;

namespace vadro::pruebas {

// The widget tree of a window as text, one line per named widget or action, indented by its
// depth among the named: class, object name, its text (caption, title, current text or
// items), and "deshabilitado" or "oculto" where it is so. Qt's own inner objects are left out.
std::string VolcarVentana(const QWidget& ventana);

// Compares the window's dump with the data file tests/datos/ventanas/<nombre>.txt.
void CompararVolcado(const QWidget& ventana, const std::string& nombre);

} // namespace vadro::pruebas
