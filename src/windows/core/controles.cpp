#include "windows/core/controles.h"

#include "windows/core/texto.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

namespace vadro {

namespace {

template <typename Control>
Control* Nombrado(QWidget* padre, const char* nombre, const char* texto) {
    auto* control = new Control(Q(texto), padre);
    if (nombre != nullptr) {
        control->setObjectName(Q(nombre));
    }
    return control;
}

} // namespace

QPushButton* Boton(QWidget* padre, const char* nombre, const char* texto) {
    return Nombrado<QPushButton>(padre, nombre, texto);
}

QLabel* Etiqueta(QWidget* padre, const char* nombre, const char* texto) {
    return Nombrado<QLabel>(padre, nombre, texto);
}

QCheckBox* Casilla(QWidget* padre, const char* nombre, const char* texto) {
    return Nombrado<QCheckBox>(padre, nombre, texto);
}

QRadioButton* Opcion(QWidget* padre, const char* nombre, const char* texto) {
    return Nombrado<QRadioButton>(padre, nombre, texto);
}

QGroupBox* Marco(QWidget* padre, const char* nombre, const char* titulo) {
    return Nombrado<QGroupBox>(padre, nombre, titulo);
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
