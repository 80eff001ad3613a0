#include "windows/trees/frmEtapas.h"

#include "core/core/sesion.h"
#include "core/shell/flujo_trabajo.h"
#include "windows/core/conectar.h"
#include "windows/core/controles.h"
#include "windows/core/modal.h"
#include "windows/core/texto.h"
#include "windows/trees/frmNuevaEtapa.h"

#include <QHBoxLayout>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>
#include <QStyle>
#include <QVBoxLayout>

namespace vadro {

frmEtapas::frmEtapas(QWidget* padre)
    : VentanaDiseno(Hija::Etapas, "Etapas del ciclo de vida", padre), ed_(SesionActual()) {
    auto* contenido = new QWidget(this);
    lstEtapas = new QListWidget(contenido);
    lstEtapas->setObjectName(Q("lstEtapas"));
    cmdAgregar = Boton(contenido, "cmdAgregar", "Agregar");
    cmdEliminar = Boton(contenido, "cmdEliminar", "Eliminar");
    cmdSubir = Boton(contenido, "cmdSubir", "");
    cmdSubir->setIcon(style()->standardIcon(QStyle::SP_ArrowUp));
    cmdSubir->setToolTip(Q("Subir"));
    cmdBajar = Boton(contenido, "cmdBajar", "");
    cmdBajar->setIcon(style()->standardIcon(QStyle::SP_ArrowDown));
    cmdBajar->setToolTip(Q("Bajar"));
    auto* botones = new QVBoxLayout;
    for (QPushButton* boton : {cmdAgregar, cmdEliminar, cmdSubir, cmdBajar}) {
        botones->addWidget(boton);
    }
    botones->addStretch();
    auto* fila = new QHBoxLayout(contenido);
    fila->setContentsMargins(0, 0, 0, 0);
    fila->addWidget(lstEtapas, 1);
    fila->addLayout(botones);
    PonerContenido(contenido);

    Conectar(cmdAgregar, &QPushButton::clicked, this, [this] { cmdAgregar_Click(); });
    Conectar(cmdEliminar, &QPushButton::clicked, this, [this] {
        ed_.Eliminar();
        Refrescar();
    });
    Conectar(cmdSubir, &QPushButton::clicked, this, [this] {
        ed_.Subir();
        Refrescar();
    });
    Conectar(cmdBajar, &QPushButton::clicked, this, [this] {
        ed_.Bajar();
        Refrescar();
    });
    Conectar(lstEtapas, &QListWidget::currentRowChanged, this, [this](int posicion) {
        ed_.Seleccionar(posicion);
        Refrescar();
    });
    ed_.Abrir();
    Refrescar();
    AjustarControles();
}

void frmEtapas::Refrescar() {
    const QSignalBlocker bloqueo(lstEtapas);
    QStringList nombres;
    for (const std::string& nombre : ed_.lstEtapas) {
        nombres.push_back(Q(nombre));
    }
    lstEtapas->clear();
    lstEtapas->addItems(nombres);
    lstEtapas->setCurrentRow(ed_.Posicion);
    if (ed_.Posicion < 0) {
        lstEtapas->clearSelection();
    }
    cmdEliminar->setEnabled(ed_.EliminarHabilitado);
    cmdSubir->setEnabled(ed_.SubirHabilitado);
    cmdBajar->setEnabled(ed_.BajarHabilitado);
}

void frmEtapas::cmdAgregar_Click() {
    frmNuevaEtapa nueva(ed_, this);
    MostrarModal(nueva);
    Refrescar();
}

void frmEtapas::AgregarEtapa(const std::string& nombre) {
    ed_.AgregarEtapa(nombre);
    Refrescar();
}

void frmEtapas::cmdAceptar_Click() {
    emit MarcaPaso(EtqCicloVida, !ed_.lstEtapas.empty());
    LlamaLlenarEtapas();
    emit ModeloAceptado(ParteModelo::Etapas);
    Descargar();
}

void frmEtapas::LlamaLlenarEtapas() {
    ed_.LlamaLlenarEtapas();
}

void frmEtapas::ModeloCambiado(ParteModelo parte) {
    if (parte == ParteModelo::Etapas) {
        ed_.Abrir();
        Refrescar();
    }
}

} // namespace vadro
