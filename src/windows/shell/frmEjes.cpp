#include "windows/shell/frmEjes.h"

#include "core/core/limite_fallos.h"
#include "core/core/sesion.h"
#include "windows/core/conectar.h"
#include "windows/core/controles.h"
#include "windows/core/modal.h"
#include "windows/core/texto.h"
#include "windows/shell/frmConfigEjes.h"

#include <QEvent>
#include <QLinearGradient>
#include <QMdiSubWindow>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>

#include <algorithm>
#include <cmath>

namespace vadro {

namespace {

// The picture of the axes, drawn as lines at the size the window has, so that it stays sharp
// at any size and any screen density.
class DibujoEjes : public QWidget {
public:
    explicit DibujoEjes(QWidget* padre) : QWidget(padre) {}

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter pintor(this);
        pintor.setRenderHint(QPainter::Antialiasing);
        const double ancho = width();
        const double alto = height();
        const auto punto = [&](double x, double y) { return QPointF(x * ancho, y * alto); };
        const double grosor = std::max(1.5, std::min(ancho, alto) / 160.0);
        const QColor tinta(0, 48, 96);

        // The limits of the system: a box between the axes, dashed.
        const Segmento x = LineaEje(Eje::X);
        const Segmento y = LineaEje(Eje::Y);
        const Segmento z = LineaEje(Eje::Z);
        const QPointF origen = punto(x.x1, x.y1);
        const auto hasta = [&](const Segmento& s) { return (punto(s.x2, s.y2) - origen) * 0.72; };
        const QPointF dx = hasta(x);
        const QPointF dy = hasta(y);
        const QPointF dz = hasta(z);
        QPen discontinua(QColor(0, 112, 160), grosor * 0.6, Qt::DashLine);
        pintor.setPen(discontinua);
        const QPointF o = origen;
        const QLineF aristas[] = {
            {o + dx, o + dx + dy},           {o + dy, o + dx + dy},
            {o + dx, o + dx + dz},           {o + dz, o + dx + dz},
            {o + dy, o + dy + dz},           {o + dz, o + dy + dz},
            {o + dx + dy, o + dx + dy + dz}, {o + dx + dz, o + dx + dy + dz},
            {o + dy + dz, o + dx + dy + dz},
        };
        pintor.drawLines(aristas, static_cast<int>(std::size(aristas)));

        // The three axes, each ending in an arrow.
        pintor.setPen(QPen(tinta, grosor, Qt::SolidLine, Qt::RoundCap));
        pintor.setBrush(tinta);
        for (Eje eje : kEjes) {
            const Segmento s = LineaEje(eje);
            const QLineF linea(punto(s.x1, s.y1), punto(s.x2, s.y2));
            pintor.drawLine(linea);
            const double largo = grosor * 6;
            QLineF atras(linea.p2(), linea.p1());
            atras.setLength(largo);
            QLineF ala1 = atras;
            ala1.setAngle(atras.angle() + 25);
            QLineF ala2 = atras;
            ala2.setAngle(atras.angle() - 25);
            QPainterPath punta;
            punta.moveTo(linea.p2());
            punta.lineTo(ala1.p2());
            punta.lineTo(ala2.p2());
            punta.closeSubpath();
            pintor.drawPath(punta);
        }
    }
};

// The background of the window.
class FondoEjes : public QWidget {
public:
    explicit FondoEjes(QWidget* padre) : QWidget(padre) {}

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter pintor(this);
        QLinearGradient degradado(0, 0, 0, height());
        degradado.setColorAt(0, QColor(250, 252, 255));
        degradado.setColorAt(1, QColor(214, 228, 242));
        pintor.fillRect(rect(), degradado);
    }
};

} // namespace

frmEjes::frmEjes(QWidget* padre) : VentanaHija(Hija::Ejes, "Límites del sistema", padre) {
    pctFondo = new FondoEjes(this);
    pctFondo->setObjectName(Q("pctFondo"));
    imgEjes = new DibujoEjes(pctFondo);
    imgEjes->setObjectName(Q("imgEjes"));
    cmdTiempo = Boton(pctFondo, "cmdTiempo", "");
    cmdRequerimientos = Boton(pctFondo, "cmdRequerimientos", "");
    cmdComponentes = Boton(pctFondo, "cmdComponentes", "");
    cmdEjes = Boton(pctFondo, "cmdEjes", "Ejes");
    for (QWidget* zona : std::initializer_list<QWidget*>{this, pctFondo, imgEjes}) {
        zona->setMouseTracking(true);
        zona->installEventFilter(this);
    }
    for (Eje eje : kEjes) {
        BotonDe(eje)->installEventFilter(this);
    }
    Conectar(cmdTiempo, &QPushButton::clicked, this, [this] { AbrirEtapas(); });
    Conectar(cmdRequerimientos, &QPushButton::clicked, this, [this] { AbrirRequerimientos(); });
    Conectar(cmdComponentes, &QPushButton::clicked, this, [this] { AbrirComponentes(); });
    Conectar(cmdEjes, &QPushButton::clicked, this, [this] { cmdEjes_Click(); });
    setMinimumSize(360, 270);
    MostrarEjes();
    AjustarControles();
}

QPushButton* frmEjes::BotonDe(Eje eje) const {
    switch (eje) {
    case Eje::X:
        return cmdTiempo;
    case Eje::Y:
        return cmdRequerimientos;
    case Eje::Z:
        break;
    }
    return cmdComponentes;
}

void frmEjes::MostrarEjes() {
    const Modelo& modelo = SesionActual().modelo;
    for (Eje eje : kEjes) {
        BotonDe(eje)->setText(Q(TituloEje(modelo, eje)));
    }
}

void frmEjes::cmdEjes_Click() {
    frmConfigEjes configuracion(this);
    if (MostrarModal(configuracion) == QDialog::Accepted) {
        MostrarEjes();
    }
}

void frmEjes::Colocar(QMdiSubWindow& marco, const QRect& cliente) {
    QRect lugar(QPoint(0, 0), QSize(640, 480).boundedTo(cliente.size()));
    lugar.moveCenter(cliente.center());
    marco.setGeometry(lugar);
}

void frmEjes::Distribuir() {
    pctFondo->setGeometry(rect());
    imgEjes->setGeometry(pctFondo->rect());
    const int ancho = pctFondo->width();
    const int alto = pctFondo->height();
    const auto colocar = [&](QPushButton* boton, const Rectangulo& lugar) {
        const auto [x, y, w, h] = Escalar(lugar, ancho, alto);
        boton->setGeometry(x, y, w, std::max(h, boton->sizeHint().height()));
    };
    for (Eje eje : kEjes) {
        colocar(BotonDe(eje), BotonEje(eje));
    }
    colocar(cmdEjes, BotonConfigurar());
}

void frmEjes::resizeEvent(QResizeEvent* evento) {
    EjecutarProtegido([this] { Distribuir(); });
    VentanaHija::resizeEvent(evento);
}

bool frmEjes::eventFilter(QObject* objeto, QEvent* evento) {
    EjecutarProtegido([&] {
        // The hint stays while the pointer is on a button, until it moves on the background.
        if (evento->type() == QEvent::Enter) {
            for (Eje eje : kEjes) {
                if (objeto == BotonDe(eje)) {
                    emit Estado(Q(AyudaEje(eje)));
                }
            }
        } else if (evento->type() == QEvent::MouseMove &&
                   (objeto == this || objeto == pctFondo || objeto == imgEjes)) {
            emit Estado(QString());
        }
    });
    return VentanaHija::eventFilter(objeto, evento);
}

} // namespace vadro
