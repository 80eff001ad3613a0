#pragma once

#include "core/weighting/rejilla_ponderacion.h"
#include "core/weighting/ventana_pesos.h"
#include "windows/core/ventana.h"

#include <QDialog>

#include <array>
#include <functional>

class QLabel;
class QPushButton;
class QRadioButton;

namespace vadro {

// The judgement of one pair of the matrix on Saaty's verbal scale: nine degrees of "more
// important" and nine of "less important", in two columns. Its acceptance stores the value
// and its mirror in the session's matrix and shows both on the weights window's grid.
class frmSaaty : public QDialog, public Ventana {
    Q_OBJECT
public:
    // `rejilla` is the matrix grid of the weights window; `alCerrar` runs however the dialog
    // closes.
    frmSaaty(Celda celda, RejillaPonderacion& rejilla, std::function<void()> alCerrar,
             QWidget* padre = nullptr);
    void AjustarControles() override;

    QLabel* lblFila;
    QLabel* lblMasColumna;
    QLabel* lblMenosColumna;
    std::array<QRadioButton*, kOpcionesSaaty> optPeso{};
    std::array<QLabel*, kOpcionesSaaty> lblPeso{};
    QPushButton* cmdAceptar;
    QPushButton* cmdCancelar;

    void cmdAceptar_Click();

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;
    void done(int resultado) override;

private:
    Celda celda_;
    RejillaPonderacion& rejilla_;
    std::function<void()> alCerrar_;
};

} // namespace vadro
