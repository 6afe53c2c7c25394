#include "platform/concurrency/KTThreadPool.h"
#include "platform/defaults/KTUserDefaults.h"

#include <QApplication>
#include <QStandardPaths>
#include <gtest/gtest.h>

/// Tests never see, or touch, the screen and the settings of whoever runs them.
int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QStandardPaths::setTestModeEnabled(true);
    QApplication application(argc, argv);
    qAddPostRoutine(KTEndThreadPool);
    KTUserDefaults::useThrowAwayDomain();
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
