// The window tests run without a screen: one QApplication on the offscreen platform.

#include <QApplication>
#include <gtest/gtest.h>

#include "application/Aplicacion.h"
#include "shell/linux/ServiciosLinux.h"

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    vardena::RegistraServicios(vardena::InstalaServiciosLinux);
    QApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
