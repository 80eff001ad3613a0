#pragma once

#include <QWidget>

namespace vadro {

// An up-down control beside an input: two small arrows that ask for a step up or down. The
// value and its bounds belong to whoever listens.
class ArribaAbajo : public QWidget {
    Q_OBJECT
public:
    explicit ArribaAbajo(QWidget* padre = nullptr);

signals:
    void Subir();
    void Bajar();
};

} // namespace vadro
