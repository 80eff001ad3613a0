#include "windows/core/frmSplash.h"

#include "windows/core/texto.h"

#include <QGuiApplication>
#include <QLabel>
#include <QScreen>
#include <QVBoxLayout>

namespace vadro {

frmSplash::frmSplash(QWidget* padre) : QWidget(padre, Qt::SplashScreen | Qt::FramelessWindowHint) {
    setObjectName(Q("frmSplash"));
    auto* columna = new QVBoxLayout(this);
    columna->setContentsMargins(40, 30, 40, 30);
    auto etiqueta = [this, columna](const char* nombre, const char* texto, int puntos,
                                    bool negrita) {
        auto* l = new QLabel(Q(texto), this);
        l->setObjectName(Q(nombre));
        l->setAlignment(Qt::AlignCenter);
        QFont f = l->font();
        f.setPointSize(puntos);
        f.setBold(negrita);
        l->setFont(f);
        columna->addWidget(l);
    };
    etiqueta("lblVadro", "VADRO", 36, true);
    etiqueta("lblPrograma", "PROGRAMADOR", 18, true);
    etiqueta("lblDescripcion",
             "Herramienta de ayuda a la decisión multicriterio:\n"
             "diseño de modelos de requerimientos, indicadores y funciones de valor",
             10, false);
    QPalette colores = palette();
    colores.setColor(QPalette::Window, QColor(0x1f, 0x3a, 0x5f));
    colores.setColor(QPalette::WindowText, Qt::white);
    setPalette(colores);
    setAutoFillBackground(true);
    adjustSize();
    if (const QScreen* pantalla = QGuiApplication::primaryScreen()) {
        move(pantalla->availableGeometry().center() - rect().center());
    }
    Cargado = true;
}

} // namespace vadro
