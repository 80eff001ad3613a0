#pragma once

#include <QComboBox>
#include <QGroupBox>
#include <QWidget>

#include <string>

class QLabel;
class QToolButton;

namespace vadro {

struct SelectorNivel;

// The spin counter of a level selector: two arrows, up and down, and no text of its own.
class ContadorNivel : public QWidget {
    Q_OBJECT
public:
    explicit ContadorNivel(QWidget* padre = nullptr);
    QToolButton* Arriba() const { return arriba_; }
    QToolButton* Abajo() const { return abajo_; }

signals:
    void Subir();
    void Bajar();

private:
    QToolButton* arriba_;
    QToolButton* abajo_;
};

// The list of names of a level selector, with free text; it tells when its drop-down opens.
class ListaNivel : public QComboBox {
    Q_OBJECT
public:
    explicit ListaNivel(QWidget* padre = nullptr);
    void showPopup() override;

signals:
    void AbreLista();
    void Enfocada();

protected:
    void focusInEvent(QFocusEvent* evento) override;
};

// One level selector in its frame `fmeNodos(i)`: `lblNodo(i)`, `cbbNodos(i)`, the hidden
// `cbbNodosAux(i)`, `updNodos(i)`, `lblCantidad(i)` and `lblNumNodos(i)`. It shows what the
// logic holds, never calling back while it does so.
class MarcoNivel : public QGroupBox {
    Q_OBJECT
public:
    MarcoNivel(int i, const char* nombreNivel, QWidget* padre = nullptr);

    void Mostrar(const SelectorNivel& selector, const std::string& titulo);

    QLabel* lblNodo;
    ListaNivel* cbbNodos;
    QComboBox* cbbNodosAux;
    ContadorNivel* updNodos;
    QLabel* lblCantidad;
    QLabel* lblNumNodos;

signals:
    void Subir();
    void Bajar();
    void AbreLista();
    void Enfocada();
    // An entry chosen by the user, from 1.
    void Elegida(int posicion);
    // Text typed in the list.
    void Escrito(const QString& texto);
    void Retorno();
};

} // namespace vadro
