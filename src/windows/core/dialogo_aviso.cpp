#include "windows/core/dialogo_aviso.h"

#include "windows/core/conectar.h"
#include "windows/core/controles.h"
#include "windows/core/texto.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace vadro {

DialogoAviso::DialogoAviso(const QStringList& textos, std::function<void(bool mostrar)> alMarcar,
                           bool conCancelar, QWidget* padre)
    : QDialog(padre) {
    setWindowTitle(Q("VADRO PROGRAMADOR"));
    auto* columna = new QVBoxLayout(this);
    for (const QString& texto : textos) {
        auto* etiqueta = new QLabel(texto, this);
        etiqueta->setWordWrap(true);
        etiqueta->setTextInteractionFlags(Qt::TextSelectableByMouse);
        etiquetas << etiqueta;
        columna->addWidget(etiqueta);
    }
    chkAviso = new QCheckBox(Q("No volver a mostrar esta ventana."), this);
    chkAviso->setObjectName(Q("chkAviso"));
    columna->addWidget(chkAviso);

    cmdAceptar = BotonAceptar(this);
    if (conCancelar) {
        cmdCancelar = Boton(this, "cmdCancelar", "Cancelar");
        Conectar(cmdCancelar, &QPushButton::clicked, this, [this] { reject(); });
        columna->addLayout(FilaBotones({cmdAceptar, cmdCancelar}));
    } else {
        columna->addLayout(FilaBotones({cmdAceptar}));
    }

    Conectar(chkAviso, &QCheckBox::clicked, this, [alMarcar](bool marcado) { alMarcar(!marcado); });
    Conectar(cmdAceptar, &QPushButton::clicked, this, [this] { accept(); });
    setMinimumWidth(420);
    Cargado = true;
}

void DialogoAviso::done(int resultado) {
    Cargado = false;
    QDialog::done(resultado);
}

} // namespace vadro
