#pragma once

#include "core/weighting/rejilla_ponderacion.h"
#include "windows/core/ventana.h"

#include <QDialog>

class QLabel;
class QPushButton;
class QTableView;

namespace vadro {

class AdaptadorRejilla;

// The matrix of perfect consistency derived from the first row of the user's matrix, with its
// weights, and the offer to take it over into the weights window.
class frmConsistencia : public QDialog, public Ventana {
    Q_OBJECT
public:
    // `principal` is the matrix grid of the weights window and `lblCRPrincipal` its ratio.
    frmConsistencia(RejillaPonderacion& principal, QLabel& lblCRPrincipal,
                    QWidget* padre = nullptr);
    void AjustarControles() override;

    QTableView* grdSaaty;
    QLabel* lblCR;
    QPushButton* cmdAceptar;
    QPushButton* cmdCancelar;

    AdaptadorRejilla& Rejilla() { return *rejilla_; }
    void cmdAceptar_Click();

protected:
    void done(int resultado) override;
    void resizeEvent(QResizeEvent* evento) override;

private:
    RejillaPonderacion& principal_;
    QLabel& lblCRPrincipal_;
    AdaptadorRejilla* rejilla_;
};

} // namespace vadro
