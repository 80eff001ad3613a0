#include "windows/core/modal.h"

#include <QDialog>

#include <utility>

namespace vadro {

namespace {

ConductorModal& Conductor() {
    static ConductorModal conductor;
    return conductor;
}

} // namespace

int MostrarModal(QDialog& dialogo) {
    if (!Conductor()) {
        return dialogo.exec();
    }
    dialogo.setModal(true);
    dialogo.show();
    Conductor()(dialogo);
    if (dialogo.isVisible()) {
        dialogo.reject();
    }
    return dialogo.result();
}

ConductorModal InstalarConductorModal(ConductorModal conductor) {
    return std::exchange(Conductor(), std::move(conductor));
}

} // namespace vadro
