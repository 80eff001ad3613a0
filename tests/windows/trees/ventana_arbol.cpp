#include "ventana_arbol.h"
#include "core/core/comunes.h"

#include "windows/trees/modelo_arbol.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QTest>
#include <QToolButton>

namespace vadro::pruebas {

QWidget* VentanaArbol::AbrirPaso(int etiqueta, const char* nombre) {
    PulsarEtiqueta(etiqueta);
    QWidget* ventana = Hija(nombre);
    QApplication::processEvents();
    return ventana;
}

VistaArbol* VentanaArbol::Arbol(QWidget* ventana) {
    return Hijo<VistaArbol>(*ventana, "tvwArbol");
}

QPoint VentanaArbol::Centro(QWidget* ventana, const std::string& clave) const {
    VistaArbol* vista = Arbol(ventana);
    const QModelIndexList hallados = vista->model()->match(
        vista->model()->index(0, 0), Qt::UserRole, QString::fromStdString(clave), 1,
        Qt::MatchExactly | Qt::MatchRecursive);
    if (hallados.isEmpty()) {
        throw std::runtime_error("no node keyed " + clave);
    }
    vista->scrollTo(hallados.front());
    return vista->visualRect(hallados.front()).center();
}

QPoint VentanaArbol::Vacio(QWidget* ventana) {
    const QRect area = Arbol(ventana)->viewport()->rect();
    return {area.left() + 40, area.bottom() - 4};
}

void VentanaArbol::Clic(QWidget* ventana, const std::string& clave) {
    QTest::mouseClick(Arbol(ventana)->viewport(), Qt::LeftButton, {}, Centro(ventana, clave));
}

QMenu* VentanaArbol::MenuSobre(QWidget* ventana, const std::string& clave, const char* menu) {
    const QPoint punto = clave.empty() ? Vacio(ventana) : Centro(ventana, clave);
    QTest::mouseClick(Arbol(ventana)->viewport(), Qt::RightButton, {}, punto);
    auto* emergente = Hijo<QMenu>(principal, menu);
    if (!emergente->isVisible()) {
        throw std::runtime_error(std::string("the menu did not come up: ") + menu);
    }
    return emergente;
}

std::string VentanaArbol::Entradas(const QMenu& menu) {
    std::string texto;
    for (QAction* accion : menu.actions()) {
        if (!accion->isVisible()) {
            continue;
        }
        if (!texto.empty()) {
            texto += " ";
        }
        texto += accion->isSeparator()
                     ? std::string("|")
                     : Unir({accion->isEnabled() ? "" : "~", accion->objectName().toStdString()});
    }
    return texto;
}

void VentanaArbol::Elegir(QMenu& menu, const char* entrada) {
    QAction* accion = Hijo<QAction>(menu, entrada);
    QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(accion).center());
}

void VentanaArbol::Arrastrar(QWidget* ventana, const std::string& desde, const std::string& hasta) {
    QWidget* area = Arbol(ventana)->viewport();
    const QPoint inicio = Centro(ventana, desde);
    const QPoint fin = Centro(ventana, hasta);
    QTest::mousePress(area, Qt::LeftButton, {}, inicio);
    for (const QPoint& punto : {inicio + QPoint(0, 12), fin}) {
        QMouseEvent movimiento(QEvent::MouseMove, punto, area->mapToGlobal(punto), Qt::NoButton,
                               Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(area, &movimiento);
    }
    QTest::mouseRelease(area, Qt::LeftButton, {}, fin);
}

void VentanaArbol::Renombrar(QWidget* ventana, const std::string& texto) {
    VistaArbol* vista = Arbol(ventana);
    QTest::keyClick(vista, Qt::Key_F2);
    QLineEdit* editor = nullptr;
    for (QLineEdit* campo : vista->viewport()->findChildren<QLineEdit*>()) {
        if (campo->isVisible()) {
            editor = campo;
        }
    }
    if (editor == nullptr) {
        throw std::runtime_error("no label editor");
    }
    editor->selectAll();
    Teclas(editor, QString::fromStdString(texto));
    QTest::keyClick(editor, Qt::Key_Return);
    // The delegate commits on its next turn of the event loop; the old editor goes after it.
    QApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

std::string Filas(const QAbstractItemModel& modelo, const QModelIndex& padre) {
    std::string texto;
    for (int fila = 0; fila < modelo.rowCount(padre); ++fila) {
        const QModelIndex hijo = modelo.index(fila, 0, padre);
        texto += Unir({fila > 0 ? "," : "", hijo.data().toString().toStdString()});
        if (modelo.rowCount(hijo) > 0) {
            texto += Unir({"[", Filas(modelo, hijo), "]"});
        }
    }
    return texto;
}

std::string VentanaArbol::Mostrado(QWidget* ventana) {
    return Filas(*Arbol(ventana)->model());
}

void VentanaArbol::Teclas(QWidget* destino, const QString& texto) {
    // The test's key tables know only ASCII: an accented letter goes as the text of a key.
    for (const QChar letra : texto) {
        QKeyEvent pulsada(QEvent::KeyPress, 0, Qt::NoModifier, QString(letra));
        QApplication::sendEvent(destino, &pulsada);
        QKeyEvent soltada(QEvent::KeyRelease, 0, Qt::NoModifier, QString(letra));
        QApplication::sendEvent(destino, &soltada);
    }
}

MarcoNivel* VentanaArbol::Marco(QWidget* ventana, int i) {
    return Hijo<MarcoNivel>(*ventana, ("fmeNodos(" + std::to_string(i) + ")").c_str());
}

void VentanaArbol::Flecha(QWidget* ventana, int i, bool arriba) {
    ContadorNivel* contador = Marco(ventana, i)->updNodos;
    QTest::mouseClick(arriba ? contador->Arriba() : contador->Abajo(), Qt::LeftButton);
}

} // namespace vadro::pruebas
