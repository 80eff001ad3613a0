#include "windows/reports/frmResumen.h"

#include "windows/shell/frmPrincipal.h"

namespace vadro {

namespace {

constexpr int kEtiquetaResumen = 4;

} // namespace

frmResumen::frmResumen(frmPrincipal& principal)
    : VentanaHija(principal, "frmResumen", "Resumen del proyecto") {
    // The summary covers the background, and its step label marks the step in hand.
    Principal().pctFondo->hide();
    Principal().EtiquetaNegrita(kEtiquetaResumen, true);
    AjustarControles();
}

void frmResumen::AlDescargar() {
    Principal().EtiquetaNegrita(kEtiquetaResumen, false);
    Principal().pctFondo->show();
}

} // namespace vadro
