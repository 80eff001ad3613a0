#pragma once

#include "core/trees/arbol.h"
#include "windows/shell/ventana_hija.h"

#include <memory>

class QGroupBox;
class QListWidget;
class QTreeView;

namespace vadro {

class ModeloArbol;

// The window of the position "Resumen": the model at a glance, read only. The requirements
// tree, the components tree and the list of stages, each in a frame of its own.
class frmResumen : public VentanaHija {
    Q_OBJECT
public:
    explicit frmResumen(QWidget* padre = nullptr);
    ~frmResumen() override;

    // A part of the model was replaced or accepted: its pane is filled again.
    void ModeloCambiado(ParteModelo parte) override;

    QGroupBox* fmeRequerimientos;
    QGroupBox* fmeComponentes;
    QGroupBox* fmeEtapas;
    QTreeView* tvwRequerimientos;
    QTreeView* tvwComponentes;
    QListWidget* lstEtapas;

private:
    QTreeView* Arbol(QGroupBox* marco, const char* nombre, ModeloArbol& modelo);

    vadro::Arbol requerimientos_;
    vadro::Arbol componentes_;
    std::unique_ptr<ModeloArbol> modeloRequerimientos_;
    std::unique_ptr<ModeloArbol> modeloComponentes_;
};

} // namespace vadro
