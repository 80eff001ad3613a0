#include "windows/core/inicio.h"

#include <QApplication>
#include <QMainWindow>

namespace vadro {

int Main(int argc, char* argv[]) {
    if (argc > 1) {
        return 0;
    }
    QApplication aplicacion(argc, argv);
    QMainWindow principal;
    principal.setWindowTitle(QStringLiteral("VADRO PROGRAMADOR"));
    principal.show();
    return QApplication::exec();
}

} // namespace vadro
