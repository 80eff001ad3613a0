#include "windows/reports/frmInforme.h"

namespace vadro {

frmInforme::frmInforme(frmPrincipal& principal)
    : VentanaHija(principal, "frmInforme", "Informe final") {
    AjustarControles();
}

} // namespace vadro
