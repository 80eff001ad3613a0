#pragma once

#include "core/functions/editor_funcion.h"
#include "soporte/acta.h"
#include "soporte/modelo_sano.h"
#include "soporte/prueba_sesion.h"

#include <gtest/gtest.h>

#include <string>

namespace vadro::pruebas {

// The function editor without its window: the notice before the first drawing switched off,
// and every reduction's confirmation counted and answered with `confirmar`.
class EditorSinVentana : public PruebaSesion {
protected:
    EditorSinVentana() {
        sesion().MostrarAvisoFuncionValor = false;
        editor.ConfirmarReduccion = [this] {
            ++confirmaciones;
            return confirmar;
        };
    }
    // Types a text into a cell of the step grid through its floating input and leaves the cell.
    void Escribir(int fila, int columna, const std::string& texto) {
        editor.FilaActual = fila;
        editor.ColumnaActual = columna;
        ASSERT_TRUE(editor.AbrirCelda());
        editor.SalirCelda(texto);
    }
    // The same in a table grid.
    void Escribir(Tabla tabla, int fila, int columna, const std::string& texto) {
        editor.EntrarCelda(tabla, fila, columna);
        ASSERT_TRUE(editor.AbrirCelda(tabla));
        editor.SalirCelda(tabla, texto);
    }

    EditorFuncion editor;
    int confirmaciones = 0;
    bool confirmar = true;
};

} // namespace vadro::pruebas
