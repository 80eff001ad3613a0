#include "windows/core/esperar.h"

#include <QCoreApplication>
#include <QThread>

#include <ctime>

namespace vadro {

void Esperar(int segundos) {
    int cambios = 0;
    std::time_t anterior = std::time(nullptr);
    while (cambios < segundos) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        QThread::msleep(10);
        const std::time_t ahora = std::time(nullptr);
        if (ahora != anterior) {
            ++cambios;
            anterior = ahora;
        }
    }
}

} // namespace vadro
