#include "windows/core/controles.h"

#include "windows/core/texto.h"

#include <QHBoxLayout>
#include <QPushButton>

namespace vadro {

QPushButton* Boton(QWidget* padre, const char* nombre, const char* texto) {
    auto* boton = new QPushButton(Q(texto), padre);
    boton->setObjectName(Q(nombre));
    return boton;
}

QPushButton* BotonAceptar(QWidget* padre) {
    QPushButton* aceptar = Boton(padre, "cmdAceptar", "Aceptar");
    aceptar->setDefault(true);
    return aceptar;
}

QHBoxLayout* FilaBotones(std::initializer_list<QPushButton*> botones) {
    auto* fila = new QHBoxLayout;
    fila->addStretch();
    for (QPushButton* boton : botones) {
        fila->addWidget(boton);
    }
    return fila;
}

} // namespace vadro
