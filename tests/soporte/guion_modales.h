#pragma once

#include <QDialog>
#include <QString>

#include <deque>
#include <functional>
#include <vector>

namespace vadro::pruebas {

// A script of the modal windows a test expects, in order, by object name. Each is handed to
// its action while it is open; the action works its controls and closes it. A modal window
// the script does not expect fails the test and is cancelled.
class GuionModales {
public:
    GuionModales();
    ~GuionModales();
    GuionModales(const GuionModales&) = delete;
    GuionModales& operator=(const GuionModales&) = delete;

    GuionModales& Esperar(const QString& ventana, std::function<void(QDialog&)> accion);

    const std::vector<QString>& Vistas() const { return vistas_; }

private:
    void Conducir(QDialog& dialogo);

    std::deque<std::pair<QString, std::function<void(QDialog&)>>> esperadas_;
    std::vector<QString> vistas_;
};

// The named child of a window; fails the test when it is missing.
template <typename T> T* Hijo(const QObject& ventana, const char* nombre) {
    T* hijo = ventana.findChild<T*>(QString::fromUtf8(nombre));
    if (hijo == nullptr) {
        throw std::runtime_error(std::string("no child named ") + nombre);
    }
    return hijo;
}

} // namespace vadro::pruebas
