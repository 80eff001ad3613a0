#include "windows/core/ventana.h"

#include <QApplication>
#include <QWidget>

namespace vadro {

void AjustarVentanasAbiertas() {
    for (QWidget* widget : QApplication::allWidgets()) {
        if (auto* ventana = dynamic_cast<Ventana*>(widget);
            ventana != nullptr && ventana->Cargado) {
            ventana->AjustarControles();
        }
    }
}

} // namespace vadro
