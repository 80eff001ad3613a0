#include "windows/functions/rejilla_tabla.h"

#include "core/core/limite_fallos.h"
#include "windows/core/conectar.h"
#include "windows/core/editar_celda.h"
#include "windows/core/texto.h"
#include "windows/functions/arriba_abajo.h"
#include "windows/functions/modelo_tabla.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QTableView>

namespace vadro {

int CodigoTecla(int tecla) {
    switch (tecla) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return 13;
    case Qt::Key_Escape:
        return 27;
    case Qt::Key_Left:
        return 37;
    case Qt::Key_Up:
        return 38;
    case Qt::Key_Right:
        return 39;
    case Qt::Key_Down:
        return 40;
    default:
        return 0;
    }
}

bool SalidaReal(const QEvent* evento) {
    const auto razon = static_cast<const QFocusEvent*>(evento)->reason();
    return razon != Qt::ActiveWindowFocusReason && razon != Qt::PopupFocusReason;
}

QLabel* EtiquetaCuenta(QWidget* padre, const char* nombre) {
    auto* etiqueta = new QLabel(QStringLiteral("0"), padre);
    etiqueta->setObjectName(Q(nombre));
    etiqueta->setFrameShape(QFrame::Panel);
    etiqueta->setFrameShadow(QFrame::Sunken);
    etiqueta->setMinimumWidth(40);
    etiqueta->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return etiqueta;
}

void ConectarCuenta(ArribaAbajo& arribaAbajo, EditorFuncion& editor, Tabla tabla,
                    const Manejador& manejar) {
    constexpr int kMaximo = 1000;
    Conectar(&arribaAbajo, &ArribaAbajo::Subir, &arribaAbajo, [&editor, tabla, manejar] {
        const int cuenta = editor.TablaDe(tabla).Cuenta;
        if (cuenta < kMaximo) {
            manejar([&] { editor.CambiarCuenta(tabla, cuenta + 1); });
        }
    });
    Conectar(&arribaAbajo, &ArribaAbajo::Bajar, &arribaAbajo, [&editor, tabla, manejar] {
        const int cuenta = editor.TablaDe(tabla).Cuenta;
        if (cuenta > 0) {
            manejar([&] { editor.CambiarCuenta(tabla, cuenta - 1); });
        }
    });
}

RejillaTabla::RejillaTabla(EditorFuncion& editor, Tabla tabla, QTableView& rejilla,
                           QLineEdit& entrada, Manejador manejar)
    : QObject(&rejilla), editor_(editor), tabla_(tabla), rejilla_(rejilla), entrada_(entrada),
      modelo_(new ModeloTabla(editor.TablaDe(tabla), &rejilla)), manejar_(std::move(manejar)) {
    rejilla_.setModel(modelo_);
    rejilla_.setEditTriggers(QAbstractItemView::NoEditTriggers);
    entrada_.hide();
    Conectar(&rejilla_, &QTableView::doubleClicked, this, [this] { Abrir(0); });
    Conectar(rejilla_.selectionModel(), &QItemSelectionModel::currentChanged, this,
             [this](const QModelIndex& actual, const QModelIndex& /*anterior*/) {
                 if (!mostrando_ && actual.isValid()) {
                     manejar_(
                         [&] { editor_.EntrarCelda(tabla_, actual.row() + 1, actual.column()); });
                 }
             });
    rejilla_.installEventFilter(this);
    entrada_.installEventFilter(this);
}

void RejillaTabla::Mostrar() {
    mostrando_ = true;
    modelo_->Refrescar();
    const TablaEdicion& tabla = editor_.TablaDe(tabla_);
    if (tabla.FilaActual > 0) {
        const QModelIndex actual = modelo_->index(tabla.FilaActual - 1, tabla.ColumnaActual);
        if (actual.isValid() && rejilla_.currentIndex() != actual) {
            rejilla_.setCurrentIndex(actual);
        }
    } else if (rejilla_.currentIndex().isValid()) {
        // No cell entered: the next click or key enters one anew.
        rejilla_.selectionModel()->clearCurrentIndex();
    }
    if (!tabla.EntradaAbierta && entrada_.isVisible()) {
        // The grid takes the focus before the input goes: a focused input that is hidden
        // hands the focus on, and the grid would take that as a move to the next cell.
        if (entrada_.hasFocus()) {
            rejilla_.setFocus();
        }
        entrada_.hide();
    }
    mostrando_ = false;
}

void RejillaTabla::Abrir(int tecla) {
    manejar_([&] {
        if (editor_.AbrirCelda(tabla_)) {
            Editar(rejilla_, entrada_, tecla);
        }
    });
}

bool RejillaTabla::eventFilter(QObject* objeto, QEvent* evento) {
    bool usado = false;
    EjecutarProtegido([&] {
        if (objeto == &entrada_) {
            usado = FiltrarEntrada(evento);
        } else if (objeto == &rejilla_) {
            usado = FiltrarRejilla(evento);
        }
    });
    if (usado) {
        // A used key stops here: it must not reach the grid or the dialog's default button.
        evento->accept();
        return true;
    }
    return QObject::eventFilter(objeto, evento);
}

bool RejillaTabla::FiltrarRejilla(QEvent* evento) {
    if (evento->type() != QEvent::KeyPress || editor_.TablaDe(tabla_).EntradaAbierta) {
        return false;
    }
    const auto* tecla = static_cast<QKeyEvent*>(evento);
    if (tecla->key() == Qt::Key_Return || tecla->key() == Qt::Key_Enter) {
        Abrir(13);
        return true;
    }
    const QString texto = tecla->text();
    if (texto.isEmpty() || texto.front().unicode() < 32 || texto.front() == QChar(127)) {
        return false;
    }
    Abrir(static_cast<int>(texto.toUcs4().front()));
    return true;
}

bool RejillaTabla::FiltrarEntrada(QEvent* evento) {
    if (evento->type() == QEvent::KeyPress) {
        const int tecla = CodigoTecla(static_cast<QKeyEvent*>(evento)->key());
        if (tecla == 0) {
            return false;
        }
        const QString texto = entrada_.text();
        manejar_([&] { editor_.TeclaEntrada(tabla_, tecla, ACadena(texto)); });
        return true;
    }
    if (evento->type() == QEvent::FocusOut && !mostrando_ && SalidaReal(evento) &&
        editor_.TablaDe(tabla_).EntradaAbierta) {
        const QString texto = entrada_.text();
        manejar_([&] { editor_.SalirCelda(tabla_, ACadena(texto)); });
    }
    return false;
}

} // namespace vadro
