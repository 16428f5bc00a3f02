#include "ui/aplicacion.h"

#include <QApplication>
#include <gtest/gtest.h>

/// No display is needed, unless the tests are told to use one.
int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication programa(argc, argv);
    bosquel::prepararAplicacion();
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
