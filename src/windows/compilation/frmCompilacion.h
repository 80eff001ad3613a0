#pragma once

#include "core/compilation/informe_errores.h"
#include "windows/shell/ventana_hija.h"

class QListWidget;
class QPushButton;

namespace vadro {

// The compilation window, opened by the compile command from any position. Opening it runs
// the checks, shows the report and leads to the compiled file; its buttons save the report,
// print it or close the window. A double click on a finding asks to be taken to its place.
class frmCompilacion : public VentanaHija {
    Q_OBJECT
public:
    explicit frmCompilacion(QWidget* padre = nullptr);

    void Colocar(QMdiSubWindow& marco, const QRect& cliente) override;
    bool OcupaCliente() const override { return false; }
    void AjustarControles() override;

    // The report as the user reads it, and beside it, hidden, the error key of each line.
    QListWidget* lstErrores;
    QListWidget* lstClaves;
    QPushButton* cmdGuardar;
    QPushButton* cmdImprimir;
    QPushButton* cmdCerrar;

    // Runs the checks over the model, the open design windows stored into it first, and
    // fills both lists with the report.
    void Compilar();
    const InformeErrores& Informe() const { return informe_; }

    void cmdGuardar_Click();
    void cmdImprimir_Click();
    void cmdCerrar_Click();
    // The line under the double click: a line with a place in the model asks to go there.
    void lstErrores_DblClick();

signals:
    // The key of the activated report line; lines without a key never send it.
    void IrAError(const QString& clave);

protected:
    // The first showing opens the window: the report, then its outcome.
    void showEvent(QShowEvent* evento) override;

private:
    void Abrir();
    void MostrarInforme();

    InformeErrores informe_;
    bool abierta_ = false;
};

} // namespace vadro
