#pragma once

#include "soporte/guion_modales.h"
#include "soporte/prueba_sesion.h"
#include "windows/weighting/frmPesos.h"
#include "windows/weighting/rejillas_pesos.h"

#include <QLabel>
#include <QLineEdit>
#include <QTableView>
#include <QTest>

#include <string>

namespace vadro::pruebas {

// A session with the weights window's means of work: typing into a grid's cell as a user
// does, and reading what the grids and the ratio's label show.
class SesionPesos : public PruebaSesion {
protected:
    // The backgrounds of cells the weights grids share.
    static inline const QColor kBlanco{255, 255, 255};
    static inline const QColor kRojoClaro{255, 192, 192};

    // Types into a cell: the first character on the grid opens the input, the rest goes into
    // it, and Enter commits.
    static void Teclear(frmPesos& pesos, QTableView& rejilla, int fila, int columna,
                        const QString& texto) {
        rejilla.setCurrentIndex(rejilla.model()->index(fila, columna));
        QTest::keyClicks(&rejilla, texto.left(1));
        QTest::keyClicks(pesos.txtValor, texto.mid(1));
        QTest::keyClick(pesos.txtValor, Qt::Key_Return);
    }
    static std::string Celda(const QTableView& rejilla, int fila, int columna) {
        return rejilla.model()->index(fila, columna).data().toString().toStdString();
    }
    static QColor Fondo(const QTableView& rejilla, int fila, int columna) {
        return rejilla.model()->index(fila, columna).data(Qt::BackgroundRole).value<QColor>();
    }
    static std::string Razon(const frmPesos& pesos) { return pesos.lblCR->text().toStdString(); }
    static QColor ColorRazon(const frmPesos& pesos) {
        return pesos.lblCR->palette().color(QPalette::Window);
    }
    // The last column of the matrix grid, rows 1..n, separated by blanks.
    static std::string Pesos(const QTableView& rejilla) {
        std::string pesos;
        const int ultima = rejilla.model()->columnCount() - 1;
        for (int fila = 1; fila < rejilla.model()->rowCount(); ++fila) {
            pesos += Celda(rejilla, fila, ultima) + " ";
        }
        return pesos;
    }

    GuionModales modales;
};

} // namespace vadro::pruebas
