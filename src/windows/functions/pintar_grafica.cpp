#include "windows/functions/pintar_grafica.h"

#include "core/core/limite_fallos.h"
#include "windows/core/texto.h"

#include <QFontMetricsF>
#include <QPaintDevice>
#include <QPainter>

namespace vadro {

namespace {

QColor ColorQt(Color color) {
    return {static_cast<int>(color & 0xFF), static_cast<int>((color >> 8) & 0xFF),
            static_cast<int>((color >> 16) & 0xFF)};
}

// The user coordinates of a scale laid over an area of the device.
class Transformacion {
public:
    Transformacion(const QRectF& area) : area_(area) {}
    void Escala(const Primitiva& p) {
        x1_ = p.x1;
        y1_ = p.y1;
        const double ancho = static_cast<double>(p.x2) - p.x1;
        const double alto = static_cast<double>(p.y2) - p.y1;
        sx_ = ancho != 0 ? area_.width() / ancho : 1;
        sy_ = alto != 0 ? area_.height() / alto : 1;
    }
    QPointF Punto(float x, float y) const {
        return {area_.left() + (static_cast<double>(x) - x1_) * sx_,
                area_.top() + (static_cast<double>(y) - y1_) * sy_};
    }

private:
    QRectF area_;
    double x1_ = 0;
    double y1_ = 0;
    double sx_ = 1;
    double sy_ = 1;
};

} // namespace

void PintarGrafica(QPainter& pintor, const Grafica& grafica, const QRectF& area,
                   const QColor& fondo) {
    pintor.save();
    pintor.setRenderHint(QPainter::Antialiasing, true);
    pintor.setClipRect(area);
    const double resolucion =
        pintor.device() != nullptr ? pintor.device()->logicalDpiY() / 96.0 : 1.0;
    Transformacion t(area);
    const QFontMetricsF medidas(pintor.font());
    QPen pluma;
    pluma.setCapStyle(Qt::RoundCap);
    for (const Primitiva& p : grafica.Visibles()) {
        switch (p.tipo) {
        case Primitiva::Tipo::Escala:
            t.Escala(p);
            break;
        case Primitiva::Tipo::Borrar:
            pintor.fillRect(area, fondo);
            break;
        case Primitiva::Tipo::Linea:
            pluma.setColor(ColorQt(p.color));
            pluma.setWidthF(p.ancho * resolucion);
            pintor.setPen(pluma);
            pintor.drawLine(t.Punto(p.x1, p.y1), t.Punto(p.x2, p.y2));
            break;
        case Primitiva::Tipo::Rectangulo:
            pintor.fillRect(QRectF(t.Punto(p.x1, p.y1), t.Punto(p.x2, p.y2)).normalized(),
                            ColorQt(p.color));
            break;
        case Primitiva::Tipo::Texto:
            pintor.setPen(ColorQt(p.color));
            pintor.drawText(t.Punto(p.x1, p.y1) + QPointF(0, medidas.ascent()), Q(p.texto));
            break;
        case Primitiva::Tipo::TextoVertical:
            pintor.setPen(ColorQt(p.color));
            pintor.save();
            pintor.translate(t.Punto(p.x1, p.y1));
            pintor.rotate(-90);
            pintor.drawText(QPointF(0, medidas.ascent()), Q(p.texto));
            pintor.restore();
            break;
        }
    }
    pintor.restore();
}

QImage ImagenGrafica(const Grafica& grafica, const QSize& tamano) {
    QImage imagen(tamano, QImage::Format_ARGB32_Premultiplied);
    imagen.fill(Qt::white);
    QPainter pintor(&imagen);
    PintarGrafica(pintor, grafica, QRectF(QPointF(0, 0), QSizeF(tamano)));
    return imagen;
}

LienzoGrafica::LienzoGrafica(QWidget* padre) : QWidget(padre) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMinimumSize(120, 90);
}

void LienzoGrafica::PonerGrafica(const Grafica* grafica) {
    grafica_ = grafica;
    update();
}

void LienzoGrafica::paintEvent(QPaintEvent* /*evento*/) {
    EjecutarProtegido([&] {
        QPainter pintor(this);
        pintor.fillRect(rect(), Qt::white);
        if (grafica_ != nullptr) {
            PintarGrafica(pintor, *grafica_, QRectF(rect()));
        }
    });
}

void LienzoGrafica::mouseDoubleClickEvent(QMouseEvent* /*evento*/) {
    emit DobleClick();
}

} // namespace vadro
