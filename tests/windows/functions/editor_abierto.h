#pragma once

#include "soporte/prueba_sesion.h"
#include "windows/functions/frmFuncionValor.h"

#include <QTest>

#include <memory>

namespace vadro::pruebas {

// The function editor opened, shown and active on the one row of the working table, without
// the notice before the first drawing.
class EditorAbierto : public PruebaSesion {
protected:
    EditorAbierto() {
        sesion().NodosEdicion.Redimensionar(1);
        sesion().MostrarAvisoFuncionValor = false;
    }

    frmFuncionValor& Abrir(const FuncionValor& funcion) {
        sesion().NodosEdicion(1).Funcion = funcion;
        ventana = std::make_unique<frmFuncionValor>(sesion().NodosEdicion(1).Funcion, "Coste");
        ventana->show();
        ventana->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(ventana.get()));
        return *ventana;
    }
    const FuncionValor& Registro() { return sesion().NodosEdicion(1).Funcion; }

    std::unique_ptr<frmFuncionValor> ventana;
};

} // namespace vadro::pruebas
