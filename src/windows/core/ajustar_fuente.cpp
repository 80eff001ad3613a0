#include "windows/core/ajustar_fuente.h"

#include "core/core/fuente.h"
#include "core/core/sesion.h"
#include "windows/core/texto.h"

#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableView>
#include <QTextEdit>
#include <QTreeView>

#include <optional>

namespace vadro {

namespace {

std::optional<ClaseControl> ClaseDe(const QWidget* w) {
    if (qobject_cast<const QLabel*>(w) != nullptr) {
        return ClaseControl::Etiqueta;
    }
    if (qobject_cast<const QLineEdit*>(w) != nullptr ||
        qobject_cast<const QTextEdit*>(w) != nullptr ||
        qobject_cast<const QPlainTextEdit*>(w) != nullptr) {
        return ClaseControl::CuadroTexto;
    }
    if (qobject_cast<const QComboBox*>(w) != nullptr) {
        return ClaseControl::Combo;
    }
    if (qobject_cast<const QGroupBox*>(w) != nullptr) {
        return ClaseControl::Marco;
    }
    if (qobject_cast<const QPushButton*>(w) != nullptr) {
        return ClaseControl::Boton;
    }
    if (qobject_cast<const QCheckBox*>(w) != nullptr) {
        return ClaseControl::Casilla;
    }
    if (qobject_cast<const QTableView*>(w) != nullptr) {
        return ClaseControl::Cuadricula;
    }
    // A list (the stages, the compilation report) reads as a tree does.
    if (qobject_cast<const QTreeView*>(w) != nullptr ||
        qobject_cast<const QListView*>(w) != nullptr) {
        return ClaseControl::Arbol;
    }
    return std::nullopt;
}

// A line edit inside a combo box or a spin box belongs to that control, not to the window.
bool EsParteDeOtroControl(const QWidget* w) {
    const QWidget* padre = w->parentWidget();
    return padre != nullptr && (qobject_cast<const QComboBox*>(padre) != nullptr ||
                                qobject_cast<const QAbstractSpinBox*>(padre) != nullptr);
}

void Aplicar(QWidget& control, ClaseControl clase, int tamanoFuente) {
    const MedidaFuente medida = MedidasFuente(clase, tamanoFuente);
    QFont fuente = control.font();
    fuente.setFamily(Q(kNombreFuente));
    if (medida.puntos) {
        fuente.setPointSize(*medida.puntos);
    }
    control.setFont(fuente);
    // The height is a floor, so that a label that wraps keeps all its lines.
    if (medida.altoTwips) {
        control.setMinimumHeight(TwipsAPixeles(*medida.altoTwips));
    }
}

} // namespace

void AjustarFuente(QWidget& ventana) {
    AjustarFuente(ventana, SesionActual().configuracion.TamanoFuente);
}

void AjustarFuente(QWidget& ventana, int tamanoFuente) {
    for (QWidget* control : ventana.findChildren<QWidget*>()) {
        const auto clase = ClaseDe(control);
        if (clase && !EsParteDeOtroControl(control)) {
            Aplicar(*control, *clase, tamanoFuente);
        }
    }
}

} // namespace vadro
