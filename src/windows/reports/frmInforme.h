#pragma once

#include "core/reports/informe_modelo.h"
#include "windows/shell/ventana_hija.h"

#include <array>

class QGroupBox;
class QTabWidget;
class QTextEdit;

namespace vadro {

// The window of the position "Informe": the report of the whole model, as rich text with the
// icons of the trees and a picture of every value function. The complete report is what gets
// printed; the four parts stand each in a frame of its own.
class frmInforme : public VentanaHija {
    Q_OBJECT
public:
    explicit frmInforme(QWidget* padre = nullptr);
    void AjustarControles() override;

    // Empties the five panes and fills them again from the model.
    void ActualizarRTFs();
    // A design window was accepted or a part replaced: the report follows the model.
    void ModeloCambiado(ParteModelo parte) override;

    // The lines the complete report was built from, for printing it.
    const Informe& InformeCompleto() const { return paneles_.Completo; }

    QTabWidget* tspInforme;
    QTextEdit* rtfInforme;
    QGroupBox* fmePropiedades;
    QGroupBox* fmeRequerimientos;
    QGroupBox* fmeComponentes;
    QGroupBox* fmeEtapas;
    QTextEdit* rtfPropiedades;
    QTextEdit* rtfRequerimientos;
    QTextEdit* rtfComponentes;
    QTextEdit* rtfEtapas;

private:
    QTextEdit* Panel(QWidget* padre, const char* nombre);
    QGroupBox* Marco(const char* nombre, const char* titulo, QTextEdit*& panel, const char* rtf);

    PanelesInforme paneles_;
};

} // namespace vadro
