#pragma once

#include "core/functions/grafica.h"

#include <QColor>
#include <QImage>
#include <QRectF>
#include <QWidget>

class QPainter;

namespace vadro {

// Paints a drawing of the core on any device a painter works on: a widget, an image, a
// printed page. The user coordinates of the drawing's scale fill `area`; lines are vectors,
// antialiased, their widths given in pixels of a normal screen and grown with the device's
// resolution, so that the picture stays sharp at any size and density. A clearing paints
// `fondo` over the area. Only what a clearing left visible is painted.
void PintarGrafica(QPainter& pintor, const Grafica& grafica, const QRectF& area,
                   const QColor& fondo = Qt::white);

// The drawing as an image of the given size, on a white ground.
QImage ImagenGrafica(const Grafica& grafica, const QSize& tamano);

// A picture box that shows a drawing and fills its whole area with it. It keeps no copy: the
// drawing must outlive the widget or be set again.
class LienzoGrafica : public QWidget {
    Q_OBJECT
public:
    explicit LienzoGrafica(QWidget* padre = nullptr);
    void PonerGrafica(const Grafica* grafica);

signals:
    void DobleClick();

protected:
    void paintEvent(QPaintEvent* evento) override;
    void mouseDoubleClickEvent(QMouseEvent* evento) override;

private:
    const Grafica* grafica_ = nullptr;
};

} // namespace vadro
