#pragma once

#include "core/weighting/conjunto_pesos.h"
#include "core/weighting/ventana_pesos.h"
#include "windows/core/ventana.h"

#include <QDialog>

class QCheckBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QTableView;
class QTimer;

namespace vadro {

class AdaptadorRejilla;

// "Matriz de pesos": one sibling set weighted both ways at once, as a pairwise matrix and as
// direct scores, of which one is on show. Acceptance writes back the data of both and the
// result of the one on show.
class frmPesos : public QDialog, public Ventana {
    Q_OBJECT
public:
    // Loads the set: both grids filled from the model, both flags clear.
    explicit frmPesos(const DireccionConjunto& direccion, QWidget* padre = nullptr);
    void AjustarControles() override;

    // Shows the grid and option of a method, as the set's `Calculo` says at the opening.
    void MostrarMetodo(MetodoCalculo metodo);
    MetodoCalculo Metodo() const;

    QTableView* grdSaaty;
    QTableView* grdDirecto;
    QGroupBox* fmePonderado;
    QRadioButton* optSaaty;
    QRadioButton* optDirecto;
    QPushButton* cmdConsistencia;
    QLabel* lblConsistencia;
    QLabel* lblCR;
    QLineEdit* txtValor;
    QCheckBox* chkPermitirCambios;
    QPushButton* cmdAceptar;
    QPushButton* cmdCancelar;
    QTimer* tmrIntermitencia;

    AdaptadorRejilla& RejillaSaaty() { return *saaty_; }
    AdaptadorRejilla& RejillaDirecto() { return *directo_; }
    const EdicionPesos& Edicion() const { return edicion_; }

    // The floating input over the current cell of a grid, if that cell takes it.
    void Editar(QTableView& rejilla, int tecla);
    // Commits the floating input to the grid on show.
    void Confirmar();
    void grdSaaty_DblClick();
    void cmdConsistencia_Click();
    void cmdAceptar_Click();
    void cmdCancelar_Click();
    // One tick of the blinking, with the second of the clock.
    void Parpadear(int segundo);

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;
    void done(int resultado) override;
    void resizeEvent(QResizeEvent* evento) override;

private:
    QTableView& Visible() const;
    AdaptadorRejilla& RejillaVisible() const;
    void MostrarConsistencia(const AspectoConsistencia& aspecto);
    bool TeclaEnEntrada(int tecla, const QString& texto);
    void TeclaEnRejilla(QTableView& rejilla, int tecla, const QString& texto);
    void IrA(Celda celda);
    Celda Actual() const;

    EdicionPesos edicion_;
    AdaptadorRejilla* saaty_;
    AdaptadorRejilla* directo_;
    Celda celdaEdicion_;
    Intermitencia intermitencia_;
    bool confirmando_ = false;
};

} // namespace vadro
