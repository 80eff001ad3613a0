#pragma once

#include "windows/shell/ventana_hija.h"

#include <memory>

class QTableView;

namespace vadro {

class ModeloVistaPonderacion;

// The window of the position "Ponderacion": the weighted tree at a glance, one column per
// level with a parent's cell merged over its descendants, and the door to the weights of a
// sibling set.
class frmPonderacion : public VentanaHija {
    Q_OBJECT
public:
    explicit frmPonderacion(QWidget* padre = nullptr);
    void AjustarControles() override;
    // The requirements were accepted: the grid is loaded again, as the window's load does.
    void ModeloCambiado(ParteModelo parte) override;

    QTableView* grdRequerimientos;
    // The grid's model; none for an empty model, which fills no grid.
    ModeloVistaPonderacion* Vista() const { return vista_; }

    // A click selects the sibling set of the cell; a double click opens its weights.
    void grdRequerimientos_Click(int fila, int columna);
    void grdRequerimientos_DblClick(int fila, int columna);

protected:
    void showEvent(QShowEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;

private:
    void Llenar();
    void Combinar();
    void RepartirColumnas();

    ModeloVistaPonderacion* vista_ = nullptr;
    bool comprobado_ = false;
};

} // namespace vadro
