#pragma once

#include "windows/functions/rejilla_tabla.h"

#include <QWidget>

class QLabel;
class QLineEdit;
class QTableView;

namespace vadro {

class ArribaAbajo;
class LienzoGrafica;

// The optional indicators of the function editor (`pctOptativos`): the total count and the
// selectable count with their up-down controls, the grid of descriptions with its floating
// input, and the drawing of the chosen indicator's function, whose double click asks for
// that function to be edited.
class PanelOptativos : public QWidget {
    Q_OBJECT
public:
    PanelOptativos(EditorFuncion& editor, Manejador manejar, QWidget* padre);

    // Shows the editor's state.
    void Mostrar();

    QLabel* lblOptativos;
    ArribaAbajo* updOptativos;
    QLabel* lblSeleccionables;
    ArribaAbajo* updSeleccionables;
    QTableView* grdOptativos;
    QLineEdit* txtValorOpt;
    LienzoGrafica* pctGraficaOptativos;

signals:
    // The function of this row is to be edited.
    void EditarFila(int fila);

private:
    QWidget* ConstruirGrafica();
    void Conectar();

    EditorFuncion& editor_;
    Manejador manejar_;
    RejillaTabla* rejilla_;
};

} // namespace vadro
