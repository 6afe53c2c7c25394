#include "platform/defaults/KTUserDefaults.h"

#include <QGuiApplication>
#include <gtest/gtest.h>

/// Drawing texts takes fonts, and those an application with a display, be it offscreen.
int main(int argc, char** argv) {
    QGuiApplication application(argc, argv);
    KTUserDefaults::useThrowAwayDomain();
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
