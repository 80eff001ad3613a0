#include "soporte/guion_modales.h"

#include "windows/core/modal.h"

#include <gtest/gtest.h>

namespace vadro::pruebas {

GuionModales::GuionModales() {
    InstalarConductorModal([this](QDialog& dialogo) { Conducir(dialogo); });
}

GuionModales::~GuionModales() {
    InstalarConductorModal(nullptr);
    for (const auto& falta : esperadas_) {
        ADD_FAILURE() << "Expected modal window never shown: " << falta.first.toStdString();
    }
}

GuionModales& GuionModales::Esperar(const QString& ventana, std::function<void(QDialog&)> accion) {
    esperadas_.emplace_back(ventana, std::move(accion));
    return *this;
}

void GuionModales::Conducir(QDialog& dialogo) {
    vistas_.push_back(dialogo.objectName());
    if (esperadas_.empty()) {
        ADD_FAILURE() << "Unexpected modal window: " << dialogo.objectName().toStdString();
        return;
    }
    auto [nombre, accion] = std::move(esperadas_.front());
    esperadas_.pop_front();
    EXPECT_EQ(dialogo.objectName().toStdString(), nombre.toStdString());
    accion(dialogo);
}

} // namespace vadro::pruebas
