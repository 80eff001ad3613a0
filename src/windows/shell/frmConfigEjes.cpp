#include "windows/shell/frmConfigEjes.h"

#include "core/core/limite_fallos.h"
#include "core/core/sesion.h"
#include "core/shell/ventanas_shell.h"
#include "windows/core/ajustar_fuente.h"
#include "windows/core/conectar.h"
#include "windows/core/controles.h"
#include "windows/core/texto.h"

#include <QEvent>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

namespace vadro {

frmConfigEjes::frmConfigEjes(QWidget* padre) : QDialog(padre) {
    setObjectName(Q("frmConfigEjes"));
    setWindowTitle(Q("Configuración de ejes"));
    const auto titulos = LeerTitulosEjes(SesionActual().modelo);
    auto* formulario = new QFormLayout;
    const char* const nombres[] = {"txtEjeX", "txtEjeY", "txtEjeZ"};
    const char* const etiquetas[] = {"Eje X", "Eje Y", "Eje Z"};
    QLineEdit* campos[3];
    for (std::size_t i = 0; i < 3; ++i) {
        campos[i] = new QLineEdit(Q(titulos[i]), this);
        campos[i]->setObjectName(Q(nombres[i]));
        campos[i]->installEventFilter(this);
        auto* etiqueta = new QLabel(Q(etiquetas[i]), this);
        etiqueta->setObjectName(Q(std::string("lbl") + (nombres[i] + 3)));
        etiqueta->setBuddy(campos[i]);
        formulario->addRow(etiqueta, campos[i]);
    }
    txtEjeX = campos[0];
    txtEjeY = campos[1];
    txtEjeZ = campos[2];
    // Return in a field presses the default button, which accepts.
    cmdAceptar = BotonAceptar(this);
    cmdCancelar = Boton(this, "cmdCancelar", "Cancelar");
    auto* columna = new QVBoxLayout(this);
    columna->addLayout(formulario);
    columna->addStretch();
    columna->addLayout(FilaBotones({cmdAceptar, cmdCancelar}));
    resize(380, 170);

    Conectar(cmdAceptar, &QPushButton::clicked, this, [this] { cmdAceptar_Click(); });
    Conectar(cmdCancelar, &QPushButton::clicked, this, [this] { reject(); });
    Cargado = true;
    AjustarControles();
}

void frmConfigEjes::AjustarControles() {
    AjustarFuente(*this);
    // A larger font needs a larger dialog: no label or button is cut.
    resize(size().expandedTo(sizeHint()));
}

void frmConfigEjes::cmdAceptar_Click() {
    AceptarTitulosEjes(SesionActual().modelo, {ACadena(txtEjeX->text()), ACadena(txtEjeY->text()),
                                               ACadena(txtEjeZ->text())});
    accept();
}

bool frmConfigEjes::eventFilter(QObject* objeto, QEvent* evento) {
    // A field selects its whole text when it gets the focus, by the keyboard or the mouse; the
    // selection waits for the click that gave the focus to end.
    if (evento->type() == QEvent::FocusIn) {
        if (auto* campo = qobject_cast<QLineEdit*>(objeto)) {
            QTimer::singleShot(0, campo, Protegido([campo] { campo->selectAll(); }));
        }
    }
    return QDialog::eventFilter(objeto, evento);
}

void frmConfigEjes::done(int resultado) {
    Cargado = false;
    QDialog::done(resultado);
}

} // namespace vadro
