#include "windows/reports/frmResumen.h"

namespace vadro {

frmResumen::frmResumen(QWidget* padre)
    : VentanaHija(Hija::Resumen, "Resumen del proyecto", padre) {
    AjustarControles();
}

} // namespace vadro
