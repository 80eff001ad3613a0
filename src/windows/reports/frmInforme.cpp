#include "windows/reports/frmInforme.h"

namespace vadro {

frmInforme::frmInforme(QWidget* padre)
    : VentanaHija(Hija::Informe, "Informe final", padre) {
    AjustarControles();
}

} // namespace vadro
