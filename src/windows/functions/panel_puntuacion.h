#pragma once

#include "windows/functions/rejilla_tabla.h"

#include <QWidget>

class QGroupBox;
class QLabel;
class QLineEdit;
class QTableView;

namespace vadro {

class ArribaAbajo;

// The scoring elements of the function editor (`pctTablas`): a frame of boolean elements and
// a frame of numeric ones, each with its count, its up-down control and its grid with a
// floating input.
class PanelPuntuacion : public QWidget {
    Q_OBJECT
public:
    PanelPuntuacion(EditorFuncion& editor, Manejador manejar, QWidget* padre);

    // Shows the editor's state.
    void Mostrar();

    QGroupBox* fmeBooleanos;
    QLabel* lblBooleanos;
    ArribaAbajo* updBooleanos;
    QTableView* grdBooleanos;
    QLineEdit* txtValorB;

    QGroupBox* fmeNumericos;
    QLabel* lblNumericos;
    ArribaAbajo* updNumericos;
    QTableView* grdNumericos;
    QLineEdit* txtValorN;

private:
    struct Marco {
        QGroupBox* marco;
        QLabel* cuenta;
        ArribaAbajo* arribaAbajo;
        QTableView* rejilla;
        QLineEdit* entrada;
        RejillaTabla* trabajo;
    };
    Marco Construir(Tabla tabla, const char* const (&nombres)[6], const char* titulo,
                    const char* leyenda);

    EditorFuncion& editor_;
    Manejador manejar_;
    RejillaTabla* rejillaBooleanos_;
    RejillaTabla* rejillaNumericos_;
};

} // namespace vadro
