#pragma once

#include <QLabel>

namespace vadro {

// A label of the step panel: it answers a click of the left button.
class EtiquetaPaso : public QLabel {
    Q_OBJECT
public:
    EtiquetaPaso(const QString& texto, QWidget* padre);

signals:
    void Pulsada();

protected:
    void mouseReleaseEvent(QMouseEvent* evento) override;
};

} // namespace vadro
