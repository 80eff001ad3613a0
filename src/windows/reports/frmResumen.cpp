#include "windows/reports/frmResumen.h"

#include "core/core/sesion.h"
#include "core/reports/resumen.h"
#include "windows/core/controles.h"
#include "windows/core/texto.h"
#include "windows/trees/modelo_arbol.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QListWidget>
#include <QTreeView>
#include <QVBoxLayout>

namespace vadro {

namespace {

QGroupBox* MarcoEnColumna(QWidget* padre, const char* nombre, const char* titulo) {
    QGroupBox* marco = Marco(padre, nombre, titulo);
    new QVBoxLayout(marco);
    return marco;
}

} // namespace

frmResumen::frmResumen(QWidget* padre)
    : VentanaHija(Hija::Resumen, "Resumen del proyecto", padre),
      modeloRequerimientos_(std::make_unique<ModeloArbol>(requerimientos_)),
      modeloComponentes_(std::make_unique<ModeloArbol>(componentes_)) {
    fmeRequerimientos = MarcoEnColumna(this, "fmeRequerimientos", "Arbol de requerimientos");
    fmeComponentes = MarcoEnColumna(this, "fmeComponentes", "Arbol de componentes");
    fmeEtapas = MarcoEnColumna(this, "fmeEtapas", "Etapas del ciclo de vida");
    tvwRequerimientos = Arbol(fmeRequerimientos, "tvwRequerimientos", *modeloRequerimientos_);
    tvwComponentes = Arbol(fmeComponentes, "tvwComponentes", *modeloComponentes_);
    lstEtapas = new QListWidget(fmeEtapas);
    lstEtapas->setObjectName(Q("lstEtapas"));
    lstEtapas->setSelectionMode(QAbstractItemView::NoSelection);
    fmeEtapas->layout()->addWidget(lstEtapas);

    // The requirements take the left half, whole height; components and stages share the
    // right half. The frames follow the window as it is resized.
    auto* rejilla = new QGridLayout(this);
    rejilla->setContentsMargins(6, 6, 6, 6);
    rejilla->addWidget(fmeRequerimientos, 0, 0, 2, 1);
    rejilla->addWidget(fmeComponentes, 0, 1);
    rejilla->addWidget(fmeEtapas, 1, 1);
    rejilla->setColumnStretch(0, 1);
    rejilla->setColumnStretch(1, 1);
    rejilla->setRowStretch(0, 3);
    rejilla->setRowStretch(1, 2);

    for (ParteModelo parte :
         {ParteModelo::Requerimientos, ParteModelo::Componentes, ParteModelo::Etapas}) {
        ModeloCambiado(parte);
    }
    AjustarControles();
}

frmResumen::~frmResumen() {
    tvwRequerimientos->setModel(nullptr);
    tvwComponentes->setModel(nullptr);
}

QTreeView* frmResumen::Arbol(QGroupBox* marco, const char* nombre, ModeloArbol& modelo) {
    auto* arbol = new QTreeView(marco);
    arbol->setObjectName(Q(nombre));
    arbol->setHeaderHidden(true);
    arbol->setEditTriggers(QAbstractItemView::NoEditTriggers);
    arbol->setSelectionMode(QAbstractItemView::NoSelection);
    arbol->setModel(&modelo);
    marco->layout()->addWidget(arbol);
    return arbol;
}

void frmResumen::ModeloCambiado(ParteModelo parte) {
    const Modelo& modelo = SesionActual().modelo;
    switch (parte) {
    case ParteModelo::Requerimientos:
        modeloRequerimientos_->Recargar(
            [&] { LlenarResumenRequerimientos(requerimientos_, modelo); });
        modeloRequerimientos_->Sincronizar(*tvwRequerimientos);
        break;
    case ParteModelo::Componentes:
        modeloComponentes_->Recargar([&] { LlenarResumenComponentes(componentes_, modelo); });
        modeloComponentes_->Sincronizar(*tvwComponentes);
        break;
    case ParteModelo::Etapas:
        lstEtapas->clear();
        for (const std::string& etapa : LineasResumenEtapas(modelo)) {
            lstEtapas->addItem(Q(etapa));
        }
        break;
    }
}

} // namespace vadro
