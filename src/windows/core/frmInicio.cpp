#include "windows/core/frmInicio.h"

#include "core/core/configuracion.h"
#include "windows/core/conectar.h"
#include "windows/core/texto.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

namespace vadro {

namespace {

frmInicio*& Instancia() {
    static frmInicio* abierto = nullptr;
    return abierto;
}

QPushButton* BotonConImagen(QWidget* padre, const char* nombre, const char* texto,
                            QStyle::StandardPixmap imagen) {
    auto* boton = new QPushButton(padre->style()->standardIcon(imagen), Q(texto), padre);
    boton->setObjectName(Q(nombre));
    boton->setIconSize(QSize(48, 48));
    boton->setMinimumSize(160, 90);
    return boton;
}

} // namespace

frmInicio::frmInicio(std::function<void()> nuevo, std::function<void()> abrir, QWidget* padre)
    : QDialog(padre) {
    setObjectName(Q("frmInicio"));
    setWindowTitle(Q("Iniciar Vadro Programador"));
    auto* iniciar = new QLabel(Q("INICIAR"), this);
    iniciar->setObjectName(Q("lblIniciar"));
    QFont grande = iniciar->font();
    grande.setPointSize(20);
    grande.setBold(true);
    iniciar->setFont(grande);
    auto* programador = new QLabel(Q("programador"), this);
    programador->setObjectName(Q("lblProgramador"));
    cmdNuevo = BotonConImagen(this, "cmdNuevo", "NUEVO", QStyle::SP_FileIcon);
    cmdExistente = BotonConImagen(this, "cmdExistente", "EXISTENTE", QStyle::SP_DialogOpenButton);
    chkNoMostrar = new QCheckBox(Q("No mostrar este cuadro de diálogo en el futuro"), this);
    chkNoMostrar->setObjectName(Q("chkNoMostrar"));
    chkNoMostrar->setChecked(!SesionActual().configuracion.MostrarInicio);

    auto* rejilla = new QGridLayout(this);
    rejilla->addWidget(iniciar, 0, 0);
    rejilla->addWidget(programador, 1, 0);
    rejilla->addWidget(cmdNuevo, 2, 0);
    rejilla->addWidget(cmdExistente, 2, 1);
    rejilla->addWidget(chkNoMostrar, 3, 0, 1, 2);

    Conectar(cmdNuevo, &QPushButton::clicked, this, [nuevo = std::move(nuevo)] { nuevo(); });
    Conectar(cmdExistente, &QPushButton::clicked, this, [abrir = std::move(abrir)] { abrir(); });
    Conectar(chkNoMostrar, &QCheckBox::clicked, this,
             [](bool marcado) { GuardarMostrarInicio(SesionActual(), !marcado); });
    Cargado = true;
    Instancia() = this;
}

frmInicio::~frmInicio() {
    if (Instancia() == this) {
        Instancia() = nullptr;
    }
}

frmInicio* frmInicio::Abierto() {
    frmInicio* abierto = Instancia();
    return abierto != nullptr && abierto->Cargado ? abierto : nullptr;
}

void frmInicio::showEvent(QShowEvent* evento) {
    QDialog::showEvent(evento);
    cmdNuevo->setFocus();
}

void frmInicio::done(int resultado) {
    Cargado = false;
    QDialog::done(resultado);
}

} // namespace vadro
