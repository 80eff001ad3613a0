#pragma once

#include "windows/core/ventana.h"

#include <QDialog>

#include <functional>

class QCheckBox;
class QLabel;
class QPushButton;

namespace vadro {

// The shape the program's notices share: a caption "VADRO PROGRAMADOR", labels, the check
// box "No volver a mostrar esta ventana." and an Aceptar button (and Cancelar where asked).
// Each click of the check box reports whether the notice should show again.
class DialogoAviso : public QDialog, public Ventana {
    Q_OBJECT
public:
    DialogoAviso(const QStringList& textos, std::function<void(bool mostrar)> alMarcar,
                 bool conCancelar, QWidget* padre);

    // The font size of the preferences does not apply to the notices.
    void AjustarControles() override {}

    QCheckBox* chkAviso;
    QPushButton* cmdAceptar;
    QPushButton* cmdCancelar = nullptr;
    QList<QLabel*> etiquetas;

protected:
    void done(int resultado) override;
};

} // namespace vadro
