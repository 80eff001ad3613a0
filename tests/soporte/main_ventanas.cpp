// The test program of the windows: a real application on the offscreen platform.
#include "windows/core/servicios_qt.h"

#include <QApplication>

#include <gtest/gtest.h>

#include <cstdlib>

int main(int argc, char** argv) {
    if (std::getenv("QT_QPA_PLATFORM") == nullptr) {
        setenv("QT_QPA_PLATFORM", "offscreen", 1);
    }
    QApplication aplicacion(argc, argv);
    // The tests see Qt's own dialogs as a user does, in Spanish.
    vadro::CargarTraduccionQt();
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
