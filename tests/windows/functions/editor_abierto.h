#pragma once

#include "soporte/guion_modales.h"
#include "soporte/prueba_sesion.h"
#include "windows/functions/arriba_abajo.h"
#include "windows/functions/frmFuncionValor.h"

#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <vector>

namespace vadro::pruebas {

// One click on an up-down control.
inline void Flecha(ArribaAbajo* control, bool arriba) {
    const auto botones = control->findChildren<QToolButton*>();
    botones[arriba ? 0 : 1]->click();
}

// Typed letters, each as the text of a key: the test's key tables know only ASCII.
inline void Letras(QWidget* destino, const QString& texto) {
    for (const QChar letra : texto) {
        QKeyEvent pulsada(QEvent::KeyPress, 0, Qt::NoModifier, QString(letra));
        QApplication::sendEvent(destino, &pulsada);
        QKeyEvent soltada(QEvent::KeyRelease, 0, Qt::NoModifier, QString(letra));
        QApplication::sendEvent(destino, &soltada);
    }
}

// Types into an input in place of its text, as a user who selected it all.
inline void Teclear(QLineEdit* entrada, const QString& texto) {
    entrada->setFocus();
    entrada->selectAll();
    Letras(entrada, texto);
}

// Types a cell through a grid's floating input, the first key on the grid, and ends with a key.
inline void Celda(QTableView* rejilla, QLineEdit* entrada, int fila, int columna,
                  const QString& texto, Qt::Key fin = Qt::Key_Return) {
    rejilla->setFocus();
    rejilla->setCurrentIndex(rejilla->model()->index(fila - 1, columna));
    Letras(rejilla, texto.left(1));
    ASSERT_TRUE(entrada->isVisible());
    Letras(entrada, texto.mid(1));
    QTest::keyClick(entrada, fin);
}

inline QString Texto(QTableView* rejilla, int fila, int columna) {
    return rejilla->model()->index(fila - 1, columna).data().toString();
}

inline void ElegirTipo(frmFuncionValor& ventana, int indice) {
    auto* combo = ventana.cbbTipoFuncionPrimaria;
    combo->setFocus();
    while (combo->currentIndex() < indice) {
        QTest::keyClick(combo, Qt::Key_Down);
    }
}

// Counts the interval grid up to these rows with its up-down control, then types them cell by
// cell, start and end left with the right arrow and the value with Enter.
inline void Escalones(frmFuncionValor& ventana,
                      const std::vector<std::array<const char*, 3>>& filas) {
    for (std::size_t i = 0; i < filas.size(); ++i) {
        Flecha(ventana.updIntervalos, true);
    }
    for (int fila = 1; fila <= static_cast<int>(filas.size()); ++fila) {
        for (int columna = 1; columna <= 3; ++columna) {
            Celda(ventana.grdIntervalos, ventana.txtValor, fila, columna,
                  QString::fromUtf8(filas[static_cast<std::size_t>(fila - 1)]
                                         [static_cast<std::size_t>(columna - 1)]),
                  columna < 3 ? Qt::Key_Right : Qt::Key_Return);
        }
    }
}

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
    QLineEdit* Entrada(const char* nombre) { return Hijo<QLineEdit>(*ventana, nombre); }
    void Aceptar() { QTest::mouseClick(ventana->cmdAceptar, Qt::LeftButton); }

    std::unique_ptr<frmFuncionValor> ventana;
};

} // namespace vadro::pruebas
