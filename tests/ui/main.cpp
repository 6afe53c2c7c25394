#include "platform/defaults/KTUserDefaults.h"

#include <QApplication>
#include <gtest/gtest.h>

/// Tests never see, or touch, the settings of whoever runs them.
int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) // the build lists the tests, and has no display
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    KTUserDefaults::useThrowAwayDomain();
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
