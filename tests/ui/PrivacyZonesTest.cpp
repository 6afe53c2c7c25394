#include "ui/export/PrivacyZonesSheet.h"

#include "platform/defaults/KTUserDefaults.h"

#include <QApplication>
#include <QPointer>
#include <QTest>
#include <QTreeWidget>
#include <gtest/gtest.h>

namespace {

std::vector<std::string> zones() {
    return KTUserDefaults::standardUserDefaults().textsForKey("exportPrivacyZones");
}

} // namespace

TEST(PrivacyZonesSheet, IsUsedByTheKeyboardAlone) {
    KTUserDefaults::useThrowAwayDomain();
    QWidget parent;
    parent.show();
    const QPointer sheet(new PrivacyZonesSheet(&parent));
    sheet->open();
    ASSERT_TRUE(QTest::qWaitForWindowActive(sheet));
    const auto type = [](const char* text) { QTest::keyClicks(QApplication::focusWidget(), text); };
    const auto press = [](Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); };
    type("Home");
    press(Qt::Key_Return); // without a position: nothing is added, nothing typed is lost
    press(Qt::Key_Tab);
    type("46.05 14.5 x");
    press(Qt::Key_Return);
    EXPECT_EQ(zones(), std::vector<std::string>());
    ASSERT_TRUE(sheet && sheet->isVisible());
    press(Qt::Key_Backspace);
    press(Qt::Key_Return);
    EXPECT_EQ(zones(), std::vector<std::string>{"46.05 14.5 500 Home"});
    type("Work"); // the next one begins where the first did
    press(Qt::Key_Tab);
    type("47, 15");
    press(Qt::Key_Return);
    EXPECT_EQ(zones(), (std::vector<std::string>{"46.05 14.5 500 Home", "47 15 500 Work"}));
    auto& list = *sheet->findChild<QTreeWidget*>();
    list.setFocus();
    list.setCurrentItem(list.topLevelItem(0));
    press(Qt::Key_Delete);
    EXPECT_EQ(zones(), std::vector<std::string>{"47 15 500 Work"});
    press(Qt::Key_Escape);
    EXPECT_FALSE(sheet && sheet->isVisible());
}
