#include "soporte/volcado_ventana.h"

#include "soporte/datos.h"

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QTabBar>
#include <QTextEdit>
#include <QWidget>

#include <gtest/gtest.h>

namespace vadro::pruebas {

namespace {

QString Lista(const QStringList& elementos) {
    return QStringLiteral("[") + elementos.join(QStringLiteral("|")) + QStringLiteral("]");
}

QString TextoDe(const QObject& objeto) {
    if (const auto* accion = qobject_cast<const QAction*>(&objeto)) {
        return accion->isSeparator() ? QStringLiteral("---") : accion->text();
    }
    if (const auto* menu = qobject_cast<const QMenu*>(&objeto)) {
        return menu->title();
    }
    if (const auto* etiqueta = qobject_cast<const QLabel*>(&objeto)) {
        return etiqueta->text();
    }
    if (const auto* boton = qobject_cast<const QAbstractButton*>(&objeto)) {
        return boton->text() +
               (boton->isCheckable() && boton->isChecked() ? QStringLiteral(" [x]") : QString());
    }
    if (const auto* linea = qobject_cast<const QLineEdit*>(&objeto)) {
        return linea->text();
    }
    if (const auto* marco = qobject_cast<const QGroupBox*>(&objeto)) {
        return marco->title();
    }
    if (const auto* combo = qobject_cast<const QComboBox*>(&objeto)) {
        QStringList elementos;
        for (int i = 0; i < combo->count(); ++i) {
            elementos << combo->itemText(i);
        }
        return combo->currentText() + QStringLiteral(" ") + Lista(elementos);
    }
    if (const auto* pestanas = qobject_cast<const QTabBar*>(&objeto)) {
        QStringList elementos;
        for (int i = 0; i < pestanas->count(); ++i) {
            elementos << pestanas->tabText(i);
        }
        return Lista(elementos);
    }
    if (const auto* lista = qobject_cast<const QListWidget*>(&objeto)) {
        QStringList elementos;
        for (int i = 0; i < lista->count(); ++i) {
            elementos << lista->item(i)->text();
        }
        return Lista(elementos);
    }
    if (const auto* widget = qobject_cast<const QWidget*>(&objeto); widget && widget->isWindow()) {
        return widget->windowTitle();
    }
    return {};
}

QString Estado(const QObject& objeto, const QWidget& raiz) {
    QString estado;
    const auto* accion = qobject_cast<const QAction*>(&objeto);
    if (const auto* menu = qobject_cast<const QMenu*>(&objeto)) {
        // A menu shows as its entry in the bar or in the menu above it.
        accion = menu->menuAction();
    }
    if (accion != nullptr) {
        estado += accion->isEnabled() ? QString() : QStringLiteral(" deshabilitado");
        estado += accion->isVisible() ? QString() : QStringLiteral(" oculto");
    } else if (const auto* widget = qobject_cast<const QWidget*>(&objeto)) {
        estado += widget->isEnabled() ? QString() : QStringLiteral(" deshabilitado");
        estado +=
            (widget == &raiz || widget->isVisibleTo(&raiz)) ? QString() : QStringLiteral(" oculto");
    }
    return estado;
}

bool Interno(const QObject& objeto) {
    return objeto.objectName().isEmpty() || objeto.objectName().startsWith(QStringLiteral("qt_"));
}

void Volcar(const QObject& objeto, const QWidget& raiz, int nivel, QString& salida) {
    int nivelHijos = nivel;
    if (!Interno(objeto)) {
        QString linea = QString(nivel * 2, QLatin1Char(' ')) +
                        QString::fromLatin1(objeto.metaObject()->className()) +
                        QStringLiteral(" ") + objeto.objectName();
        const QString texto = TextoDe(objeto);
        if (!texto.isEmpty()) {
            linea += QStringLiteral(" \"") + texto + QStringLiteral("\"");
        }
        salida += linea + Estado(objeto, raiz) + QLatin1Char('\n');
        nivelHijos = nivel + 1;
    }
    for (const QObject* hijo : objeto.children()) {
        Volcar(*hijo, raiz, nivelHijos, salida);
    }
}

} // namespace

std::string VolcarVentana(const QWidget& ventana) {
    QString salida;
    Volcar(ventana, ventana, 0, salida);
    return salida.toStdString();
}

void CompararVolcado(const QWidget& ventana, const std::string& nombre) {
    const std::string real = VolcarVentana(ventana);
    EXPECT_EQ(real, Datos("ventanas/" + nombre + ".txt", real)) << nombre;
}

} // namespace vadro::pruebas
