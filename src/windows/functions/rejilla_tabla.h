#pragma once

#include "core/functions/editor_funcion.h"

#include <QObject>

#include <functional>

class QEvent;
class QLabel;
class QLineEdit;
class QTableView;
class QWidget;

namespace vadro {

class ArribaAbajo;
class ModeloTabla;

// Runs a handler of the function editor and shows what it left.
using Manejador = std::function<void(const std::function<void()>&)>;

// The classic key code of a key the editor's rules speak of (Enter 13, Escape 27, the arrows
// 37 to 40); 0 for any other.
int CodigoTecla(int tecla);

// A focus lost to a message box or a menu is no leaving of an input.
bool SalidaReal(const QEvent* evento);

// The label that shows a count, sunken, its number at the right.
QLabel* EtiquetaCuenta(QWidget* padre, const char* nombre);

// A grid's count follows its up-down control, from 0 to 1000.
void ConectarCuenta(ArribaAbajo& arribaAbajo, EditorFuncion& editor, Tabla tabla,
                    const Manejador& manejar);

// One table grid of the function editor at work: the view over its adapter, the floating
// input over the current cell, and the grid's events handed to the editor: a cell entered, a
// double click or a typed key that opens the input, the keys in the input and its leaving.
class RejillaTabla : public QObject {
    Q_OBJECT
public:
    RejillaTabla(EditorFuncion& editor, Tabla tabla, QTableView& rejilla, QLineEdit& entrada,
                 Manejador manejar);

    // Shows the editor's rows, current cell and input.
    void Mostrar();

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    void Abrir(int tecla);
    bool FiltrarRejilla(QEvent* evento);
    bool FiltrarEntrada(QEvent* evento);

    EditorFuncion& editor_;
    Tabla tabla_;
    QTableView& rejilla_;
    QLineEdit& entrada_;
    ModeloTabla* modelo_;
    Manejador manejar_;
    bool mostrando_ = false;
};

} // namespace vadro
