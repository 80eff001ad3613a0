#include "windows/reports/frmInforme.h"

#include "core/core/sesion.h"
#include "core/reports/comandos_informe.h"
#include "windows/core/controles.h"
#include "windows/core/texto.h"
#include "windows/reports/documento_informe.h"

#include <QGroupBox>
#include <QProgressDialog>
#include <QTabBar>
#include <QTabWidget>
#include <QTextDocument>
#include <QTextEdit>
#include <QVBoxLayout>

#include <memory>

namespace vadro {

namespace {

// Builds the panes one after the other, showing a progress box when a very large model keeps
// the user waiting for more than a second.
class Progreso {
public:
    explicit Progreso(int total) : total_(std::max(1, total)) {}
    AvanceInforme Avance() {
        return [this](int hechas, int /*total*/) { Mostrar(hechas); };
    }
    void Terminar(int lineas) { hechas_ += lineas; }

private:
    void Mostrar(int hechas) {
        if (!caja_) {
            caja_ =
                std::make_unique<QProgressDialog>(Q(kTextoProgresoInforme), QString(), 0, total_);
            caja_->setObjectName(Q("prgInforme"));
            caja_->setWindowTitle(Q("VADRO PROGRAMADOR"));
            caja_->setWindowModality(Qt::ApplicationModal);
            caja_->setMinimumDuration(kEsperaProgresoMs);
            caja_->setAutoReset(false);
        }
        caja_->setValue(hechas_ + hechas);
    }

    int total_;
    int hechas_ = 0;
    std::unique_ptr<QProgressDialog> caja_;
};

int Lineas(const Informe& informe) {
    return static_cast<int>(informe.Lineas().size());
}

} // namespace

frmInforme::frmInforme(QWidget* padre) : VentanaHija(Hija::Informe, "Informe final", padre) {
    tspInforme = new QTabWidget(this);
    tspInforme->setObjectName(Q("tspInforme"));
    rtfInforme = Panel(tspInforme, "rtfInforme");
    tspInforme->addTab(rtfInforme, Q("Informe completo"));
    fmePropiedades =
        Marco("fmePropiedades", "Descripción del modelo", rtfPropiedades, "rtfPropiedades");
    fmeRequerimientos = Marco("fmeRequerimientos", "Arbol de requerimientos", rtfRequerimientos,
                              "rtfRequerimientos");
    fmeComponentes = Marco("fmeComponentes", "Componentes", rtfComponentes, "rtfComponentes");
    fmeEtapas = Marco("fmeEtapas", "Etapas del ciclo de vida", rtfEtapas, "rtfEtapas");
    tspInforme->addTab(fmePropiedades, Q("Descripción"));
    tspInforme->addTab(fmeRequerimientos, Q("Requerimientos"));
    tspInforme->addTab(fmeComponentes, Q("Componentes"));
    tspInforme->addTab(fmeEtapas, Q("Etapas"));
    auto* columna = new QVBoxLayout(this);
    columna->setContentsMargins(4, 4, 4, 4);
    columna->addWidget(tspInforme);
    ActualizarRTFs();
    AjustarControles();
}

QTextEdit* frmInforme::Panel(QWidget* padre, const char* nombre) {
    auto* panel = new QTextEdit(padre);
    panel->setObjectName(Q(nombre));
    panel->setReadOnly(true);
    panel->setUndoRedoEnabled(false);
    return panel;
}

QGroupBox* frmInforme::Marco(const char* nombre, const char* titulo, QTextEdit*& panel,
                             const char* rtf) {
    QGroupBox* marco = vadro::Marco(tspInforme, nombre, titulo);
    panel = Panel(marco, rtf);
    auto* columna = new QVBoxLayout(marco);
    columna->addWidget(panel);
    return marco;
}

void frmInforme::AjustarControles() {
    VentanaHija::AjustarControles();
    // The tabs read in the window's size of font; the report keeps its own.
    tspInforme->tabBar()->setFont(fmePropiedades->font());
}

void frmInforme::ActualizarRTFs() {
    paneles_ = ActualizarPaneles(SesionActual().modelo);
    const std::array<std::pair<QTextEdit*, const Informe*>, 5> panes{{
        {rtfPropiedades, &paneles_.Propiedades},
        {rtfRequerimientos, &paneles_.Requerimientos},
        {rtfComponentes, &paneles_.Componentes},
        {rtfEtapas, &paneles_.Etapas},
        {rtfInforme, &paneles_.Completo},
    }};
    int total = 0;
    for (const auto& [panel, informe] : panes) {
        total += Lineas(*informe);
    }
    // The panes let their old documents go first: a pane that still showed one would go on
    // laying it out while the progress box lets the events through. The new documents are
    // built apart and laid out by their panes once they are whole; each pane owns its own.
    for (const auto& [panel, informe] : panes) {
        panel->setDocument(new QTextDocument(panel));
    }
    Progreso progreso(total);
    std::array<QTextDocument*, panes.size()> documentos{};
    for (std::size_t i = 0; i < panes.size(); ++i) {
        documentos[i] = new QTextDocument(panes[i].first);
        LlenarDocumento(*documentos[i], *panes[i].second, progreso.Avance());
        progreso.Terminar(Lineas(*panes[i].second));
    }
    for (std::size_t i = 0; i < panes.size(); ++i) {
        panes[i].first->setDocument(documentos[i]);
    }
}

void frmInforme::ModeloCambiado(ParteModelo /*parte*/) {
    ActualizarRTFs();
}

} // namespace vadro
