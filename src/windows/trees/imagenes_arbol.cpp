#include "windows/trees/imagenes_arbol.h"

#include <QPainter>

#include <array>

namespace vadro {

namespace {

// A rounded tile of the level's colour with its letter, drawn once.
QIcon Baldosa(const QColor& color, QChar letra) {
    QPixmap imagen(32, 32);
    imagen.fill(Qt::transparent);
    QPainter pintor(&imagen);
    pintor.setRenderHint(QPainter::Antialiasing);
    pintor.setPen(color.darker(140));
    pintor.setBrush(color);
    pintor.drawRoundedRect(QRectF(2, 2, 28, 28), 6, 6);
    QFont letraFuente = pintor.font();
    letraFuente.setBold(true);
    letraFuente.setPixelSize(18);
    pintor.setFont(letraFuente);
    pintor.setPen(Qt::white);
    pintor.drawText(QRect(0, 0, 32, 32), Qt::AlignCenter, QString(letra));
    return QIcon(imagen);
}

} // namespace

const QIcon& ImagenNodo(int numero) {
    static const std::array<QIcon, 9> imagenes = {
        QIcon(),
        Baldosa(QColor(0, 84, 147), QLatin1Char('R')),
        Baldosa(QColor(0, 128, 96), QLatin1Char('C')),
        Baldosa(QColor(150, 110, 0), QLatin1Char('S')),
        Baldosa(QColor(170, 50, 40), QLatin1Char('I')),
        Baldosa(QColor(70, 70, 70), QLatin1Char('M')),
        Baldosa(QColor(110, 60, 140), QLatin1Char('P')),
        Baldosa(QColor(30, 110, 160), QLatin1Char('A')),
        Baldosa(QColor(90, 140, 40), QLatin1Char('E')),
    };
    return numero >= 1 && numero <= 8 ? imagenes[static_cast<std::size_t>(numero)] : imagenes[0];
}

const QPixmap& IconoArrastre() {
    static const QPixmap icono = [] {
        QPixmap imagen(32, 32);
        imagen.fill(Qt::transparent);
        QPainter pintor(&imagen);
        pintor.setRenderHint(QPainter::Antialiasing);
        pintor.setPen(QColor(40, 40, 40));
        pintor.setBrush(QColor(255, 255, 255, 220));
        pintor.drawRect(QRectF(10, 12, 18, 14));
        pintor.drawLine(QPointF(13, 17), QPointF(25, 17));
        pintor.drawLine(QPointF(13, 21), QPointF(22, 21));
        // The arrow of the pointer, whose tip is the hot spot at the top left.
        const QPointF flecha[] = {{0, 0}, {0, 14}, {4, 10}, {7, 16}, {9, 15}, {6, 9}, {11, 9}};
        pintor.setBrush(Qt::black);
        pintor.drawPolygon(flecha, 7);
        return imagen;
    }();
    return icono;
}

} // namespace vadro
