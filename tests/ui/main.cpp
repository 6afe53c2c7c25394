#include "platform/defaults/KTUserDefaults.h"

#include <QApplication>
#include <gtest/gtest.h>

/// Tests never see, or touch, the settings of whoever runs them.
int main(int argc, char** argv) {
    QApplication application(argc, argv);
    KTUserDefaults::useThrowAwayDomain();
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
