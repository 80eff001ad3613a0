#include "windows/shell/frmPropiedades.h"

#include "core/core/sesion.h"
#include "windows/core/ajustar_fuente.h"
#include "windows/core/conectar.h"
#include "windows/core/controles.h"
#include "windows/core/texto.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace vadro {

namespace {

constexpr int kDescripcion = kNumPropiedades - 1;

QString Nombre(const char* control, int indice) {
    return Q(std::string(control) + "(" + std::to_string(indice) + ")");
}

} // namespace

frmPropiedades::frmPropiedades(QWidget* padre) : QDialog(padre) {
    setObjectName(Q("frmPropiedades"));
    setWindowTitle(Q("Propiedades del modelo"));
    auto* rejilla = new QGridLayout;
    rejilla->setColumnStretch(1, 1);
    const auto textos = LeerPropiedades(SesionActual().modelo);
    for (int i = 0; i < kNumPropiedades; ++i) {
        const auto indice = static_cast<std::size_t>(i);
        auto* etiqueta = new QLabel(Q(CamposPropiedades()[indice].etiqueta), this);
        etiqueta->setObjectName(Nombre("lblInfo", i));
        // One line each: a line break would break the model file's line of that field.
        auto* campo = new QLineEdit(Q(textos[indice]), this);
        if (i == kDescripcion) {
            // The description runs under its label across the whole dialog.
            rejilla->addWidget(etiqueta, i, 0, 1, 2);
            rejilla->addWidget(campo, i + 1, 0, 1, 2);
        } else {
            rejilla->addWidget(etiqueta, i, 0);
            rejilla->addWidget(campo, i, 1);
        }
        campo->setObjectName(Nombre("txtInfo", i));
        etiqueta->setBuddy(campo);
        lblInfo[indice] = etiqueta;
        txtInfo[indice] = campo;
    }
    cmdAceptar = BotonAceptar(this);
    cmdCancelar = Boton(this, "cmdCancelar", "Cancelar");
    auto* columna = new QVBoxLayout(this);
    columna->addLayout(rejilla);
    columna->addStretch();
    columna->addLayout(FilaBotones({cmdAceptar, cmdCancelar}));
    resize(620, 300);

    Conectar(cmdAceptar, &QPushButton::clicked, this, [this] { cmdAceptar_Click(); });
    Conectar(cmdCancelar, &QPushButton::clicked, this, [this] { reject(); });
    Cargado = true;
    AjustarControles();
}

void frmPropiedades::AjustarControles() {
    AjustarFuente(*this);
    // A larger font needs a larger dialog: no label or button is cut.
    resize(size().expandedTo(sizeHint()));
}

void frmPropiedades::cmdAceptar_Click() {
    std::array<std::string, kNumPropiedades> textos;
    for (int i = 0; i < kNumPropiedades; ++i) {
        textos[static_cast<std::size_t>(i)] = ACadena(txtInfo[static_cast<std::size_t>(i)]->text());
    }
    AceptarPropiedades(SesionActual().modelo, textos);
    accept();
}

void frmPropiedades::done(int resultado) {
    Cargado = false;
    QDialog::done(resultado);
}

} // namespace vadro
