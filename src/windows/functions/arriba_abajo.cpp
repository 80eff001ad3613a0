#include "windows/functions/arriba_abajo.h"

#include "windows/core/conectar.h"

#include <QToolButton>
#include <QVBoxLayout>

namespace vadro {

ArribaAbajo::ArribaAbajo(QWidget* padre) : QWidget(padre) {
    auto* columna = new QVBoxLayout(this);
    columna->setContentsMargins(0, 0, 0, 0);
    columna->setSpacing(0);
    for (const bool arriba : {true, false}) {
        auto* boton = new QToolButton(this);
        boton->setArrowType(arriba ? Qt::UpArrow : Qt::DownArrow);
        boton->setAutoRepeat(true);
        boton->setFixedSize(18, 11);
        boton->setFocusPolicy(Qt::NoFocus);
        columna->addWidget(boton);
        Conectar(boton, &QToolButton::clicked, this, [this, arriba] {
            if (arriba) {
                emit Subir();
            } else {
                emit Bajar();
            }
        });
    }
}

} // namespace vadro
