#include "windows/trees/selector_nivel.h"

#include "core/trees/edicion_requerimientos.h"
#include "windows/core/conectar.h"
#include "windows/core/texto.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QToolButton>
#include <QVBoxLayout>

namespace vadro {

namespace {

std::string ConIndice(const char* nombre, int i) {
    return std::string(nombre) + "(" + std::to_string(i) + ")";
}

QToolButton* Flecha(QWidget* padre, Qt::ArrowType tipo) {
    auto* flecha = new QToolButton(padre);
    flecha->setArrowType(tipo);
    flecha->setAutoRepeat(false);
    flecha->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    return flecha;
}

} // namespace

ContadorNivel::ContadorNivel(QWidget* padre) : QWidget(padre) {
    arriba_ = Flecha(this, Qt::UpArrow);
    abajo_ = Flecha(this, Qt::DownArrow);
    auto* columna = new QVBoxLayout(this);
    columna->setContentsMargins(0, 0, 0, 0);
    columna->setSpacing(0);
    columna->addWidget(arriba_);
    columna->addWidget(abajo_);
    Conectar(arriba_, &QToolButton::clicked, this, [this] { emit Subir(); });
    Conectar(abajo_, &QToolButton::clicked, this, [this] { emit Bajar(); });
}

ListaNivel::ListaNivel(QWidget* padre) : QComboBox(padre) {
    setEditable(true);
    setInsertPolicy(QComboBox::NoInsert);
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(12);
}

void ListaNivel::showPopup() {
    EjecutarProtegido([this] { emit AbreLista(); });
    QComboBox::showPopup();
}

void ListaNivel::focusInEvent(QFocusEvent* evento) {
    QComboBox::focusInEvent(evento);
    EjecutarProtegido([this] { emit Enfocada(); });
}

MarcoNivel::MarcoNivel(int i, const char* nombreNivel, QWidget* padre) : QGroupBox(padre) {
    setObjectName(Q(ConIndice("fmeNodos", i)));
    setTitle(Q(nombreNivel));
    lblNodo = new QLabel(Q(nombreNivel), this);
    lblNodo->setObjectName(Q(ConIndice("lblNodo", i)));
    cbbNodos = new ListaNivel(this);
    cbbNodos->setObjectName(Q(ConIndice("cbbNodos", i)));
    cbbNodosAux = new QComboBox(this);
    cbbNodosAux->setObjectName(Q(ConIndice("cbbNodosAux", i)));
    cbbNodosAux->hide();
    updNodos = new ContadorNivel(this);
    updNodos->setObjectName(Q(ConIndice("updNodos", i)));
    lblCantidad = new QLabel(Q("Cantidad"), this);
    lblCantidad->setObjectName(Q(ConIndice("lblCantidad", i)));
    lblNumNodos = new QLabel(Q("0"), this);
    lblNumNodos->setObjectName(Q(ConIndice("lblNumNodos", i)));
    lblNumNodos->setMinimumWidth(lblNumNodos->fontMetrics().horizontalAdvance(Q("00000")));

    auto* rejilla = new QGridLayout(this);
    rejilla->addWidget(lblNodo, 0, 0);
    rejilla->addWidget(cbbNodos, 0, 1, 2, 1, Qt::AlignVCenter);
    rejilla->addWidget(updNodos, 0, 2, 2, 1);
    rejilla->addWidget(lblCantidad, 0, 3);
    rejilla->addWidget(lblNumNodos, 1, 3);
    rejilla->setColumnStretch(1, 1);

    Conectar(updNodos, &ContadorNivel::Subir, this, [this] { emit Subir(); });
    Conectar(updNodos, &ContadorNivel::Bajar, this, [this] { emit Bajar(); });
    Conectar(cbbNodos, &ListaNivel::AbreLista, this, [this] { emit AbreLista(); });
    Conectar(cbbNodos, &ListaNivel::Enfocada, this, [this] { emit Enfocada(); });
    Conectar(cbbNodos, &QComboBox::activated, this, [this](int fila) { emit Elegida(fila + 1); });
    Conectar(cbbNodos->lineEdit(), &QLineEdit::textEdited, this,
             [this](const QString& texto) { emit Escrito(texto); });
    Conectar(cbbNodos->lineEdit(), &QLineEdit::returnPressed, this, [this] { emit Retorno(); });
}

void MarcoNivel::Mostrar(const SelectorNivel& selector, const std::string& titulo) {
    const QSignalBlocker bloqueo(cbbNodos);
    const QSignalBlocker bloqueoTexto(cbbNodos->lineEdit());
    setTitle(Q(titulo));
    cbbNodos->clear();
    cbbNodosAux->clear();
    QStringList nombres;
    for (const std::string& nombre : selector.Nombres) {
        nombres.push_back(Q(nombre));
    }
    cbbNodos->addItems(nombres);
    QStringList claves;
    for (const std::string& clave : selector.Claves) {
        claves.push_back(Q(clave));
    }
    cbbNodosAux->addItems(claves);
    cbbNodos->setCurrentIndex(selector.Seleccion - 1);
    cbbNodosAux->setCurrentIndex(selector.SeleccionClave - 1);
    cbbNodos->setEditText(Q(selector.Texto));
    cbbNodos->lineEdit()->setReadOnly(selector.Bloqueada);
    cbbNodos->setEnabled(selector.ListaHabilitada);
    updNodos->setEnabled(selector.ContadorHabilitado);
    lblNumNodos->setText(Q(selector.Etiqueta));
}

} // namespace vadro
