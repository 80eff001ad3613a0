#include "windows/weighting/frmPonderacion.h"

#include "core/core/limite_fallos.h"
#include "core/core/sesion.h"
#include "core/weighting/vista_ponderacion.h"
#include "windows/core/ajustar_fuente.h"
#include "windows/core/conectar.h"
#include "windows/core/modal.h"
#include "windows/core/texto.h"
#include "windows/weighting/frmPesos.h"
#include "windows/weighting/rejillas_pesos.h"

#include <QFontMetrics>
#include <QHeaderView>
#include <QTableView>
#include <QVBoxLayout>

#include <utility>

namespace vadro {

frmPonderacion::frmPonderacion(QWidget* padre)
    : VentanaHija(Hija::Ponderacion, "Ponderación de elementos del árbol", padre) {
    grdRequerimientos = new QTableView(this);
    grdRequerimientos->setObjectName(Q("grdRequerimientos"));
    grdRequerimientos->verticalHeader()->hide();
    grdRequerimientos->setSelectionMode(QAbstractItemView::NoSelection);
    grdRequerimientos->setEditTriggers(QAbstractItemView::NoEditTriggers);
    grdRequerimientos->setWordWrap(true);
    auto* columna = new QVBoxLayout(this);
    columna->setContentsMargins(0, 0, 0, 0);
    columna->addWidget(grdRequerimientos);

    Llenar();
    Conectar(grdRequerimientos, &QTableView::clicked, this, [this](const QModelIndex& celda) {
        grdRequerimientos_Click(celda.row(), celda.column());
    });
    Conectar(grdRequerimientos, &QTableView::doubleClicked, this, [this](const QModelIndex& celda) {
        grdRequerimientos_DblClick(celda.row(), celda.column());
    });
    AjustarControles();
}

void frmPonderacion::Llenar() {
    Sesion& sesion = SesionActual();
    sesion.FilasPonderacion.clear();
    grdRequerimientos->setModel(nullptr);
    grdRequerimientos->clearSpans();
    delete std::exchange(vista_, nullptr);
    if (ModeloPonderable(sesion.modelo)) {
        VistaPonderacion vista = ConstruirVistaPonderacion(sesion.modelo);
        sesion.FilasPonderacion = vista.Rutas;
        vista_ = new ModeloVistaPonderacion(sesion.modelo, std::move(vista), this);
        grdRequerimientos->setModel(vista_);
        Combinar();
    }
}

void frmPonderacion::ModeloCambiado(ParteModelo parte) {
    if (parte != ParteModelo::Requerimientos) {
        return;
    }
    Llenar();
    AjustarControles();
    // As at the load: an empty model has nothing to weigh.
    comprobado_ = false;
    if (isVisible()) {
        comprobado_ = true;
        if (!ModeloPonderable(SesionActual().modelo)) {
            emit PideTransicion(PreguntarModeloVacio());
        }
    }
}

void frmPonderacion::AjustarControles() {
    AjustarFuente(*this);
    // Every row holds two lines: the node and its weight.
    const int alto = QFontMetrics(grdRequerimientos->font()).lineSpacing() * 2 + 8;
    grdRequerimientos->verticalHeader()->setDefaultSectionSize(alto);
    RepartirColumnas();
}

// A parent's cell spans the rows of all its descendants.
void frmPonderacion::Combinar() {
    const VistaPonderacion& vista = vista_->Vista();
    for (int columna = 0; columna + 1 < vista.NumColumnas(); ++columna) {
        for (int fila = 0; fila < vista.NumFilas();) {
            const int extension = vista.Extension(fila, columna);
            if (extension > 1) {
                grdRequerimientos->setSpan(fila, columna, extension, 1);
            }
            fila += extension;
        }
    }
}

void frmPonderacion::RepartirColumnas() {
    if (vista_ == nullptr || vista_->columnCount() == 0) {
        return;
    }
    const int ancho = grdRequerimientos->viewport()->width() / vista_->columnCount();
    for (int c = 0; c < vista_->columnCount(); ++c) {
        grdRequerimientos->setColumnWidth(c, ancho);
    }
}

void frmPonderacion::grdRequerimientos_Click(int fila, int columna) {
    if (vista_ == nullptr) {
        return;
    }
    if (const auto seleccion = SeleccionarConjunto(vista_->Vista(), fila, columna)) {
        vista_->Seleccionar(*seleccion);
    }
}

void frmPonderacion::grdRequerimientos_DblClick(int fila, int columna) {
    if (vista_ == nullptr) {
        return;
    }
    const auto direccion = DireccionDeCelda(vista_->Vista(), fila, columna);
    const auto seleccion = ConjuntoDeCelda(vista_->Vista(), fila, columna);
    if (!direccion || !seleccion) {
        return;
    }
    Sesion& sesion = SesionActual();
    const auto nodos = NodosConjunto(sesion.modelo, *direccion);
    if (nodos.empty()) {
        return;
    }
    frmPesos pesos(*direccion, this);
    pesos.MostrarMetodo(nodos.front()->Calculo == CalculoDirecto ? CalculoDirecto : CalculoSaaty);
    MostrarModal(pesos);
    vista_->Reconstruir(*seleccion);
}

void frmPonderacion::showEvent(QShowEvent* evento) {
    VentanaHija::showEvent(evento);
    if (comprobado_) {
        return;
    }
    comprobado_ = true;
    // An empty model has nothing to weigh: the main window leaves for the tree's design or
    // for the report, and this window goes.
    EjecutarProtegido([this] {
        if (!ModeloPonderable(SesionActual().modelo)) {
            emit PideTransicion(PreguntarModeloVacio());
        }
    });
}

void frmPonderacion::resizeEvent(QResizeEvent* evento) {
    VentanaHija::resizeEvent(evento);
    RepartirColumnas();
}

} // namespace vadro
