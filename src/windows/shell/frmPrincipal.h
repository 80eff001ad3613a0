#pragma once

#include "windows/core/ventana.h"

#include <QMainWindow>

class QAction;
class QMdiArea;
class QMenu;

namespace vadro {

// The one multiple-document window of the program.
class frmPrincipal : public QMainWindow, public Ventana {
    Q_OBJECT
public:
    explicit frmPrincipal(QWidget* padre = nullptr);
    void AjustarControles() override;

    // The model commands that the start screen leads to.
    void Nuevo();
    void Abrir();

    // Whether the notice before the first function drawing shows; for this session only.
    bool MostrarAvisoFuncionValor = true;

    QMdiArea* pctFondo;
    QMenu* mnuArchivo;
    QAction* mnuPreferencias;
    QAction* mnuSalir;
    QMenu* mnuAyuda;
    QAction* mnuAcercaDe;

protected:
    void closeEvent(QCloseEvent* evento) override;

private:
    void CerrarPantallaInicio();
};

} // namespace vadro
