#include "platform/defaults/KTUserDefaults.h"

#include <QGuiApplication>
#include <gtest/gtest.h>

/// Drawing texts takes fonts, and those an application with a display, be it offscreen.
int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) // the build lists the tests, and has no display
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    KTUserDefaults::useThrowAwayDomain();
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
