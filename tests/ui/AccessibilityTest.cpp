#include "geotagging/KTAppTrackPickerController.h"
#include "platform/common/KTLocalizedString.h"
#include "tests/ui/WindowWorld.h"
#include "ui/application/ApplicationLook.h"
#include "ui/photos/PhotoStatus.h"

#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QComboBox>
#include <QDialog>
#include <QGroupBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QStyleFactory>
#include <QTextEdit>
#include <QToolBar>
#include <gtest/gtest.h>
#include <set>

namespace {

QPalette darkPalette() {
    QPalette palette(QColor(49, 54, 59), QColor(42, 46, 50));
    for (const auto& [role, color] : {std::pair{QPalette::WindowText, QColor(252, 252, 252)},
                                      {QPalette::Text, QColor(252, 252, 252)},
                                      {QPalette::ButtonText, QColor(252, 252, 252)},
                                      {QPalette::Base, QColor(27, 30, 32)},
                                      {QPalette::AlternateBase, QColor(35, 38, 41)},
                                      {QPalette::Highlight, QColor(61, 174, 233)},
                                      {QPalette::HighlightedText, QColor(252, 252, 252)},
                                      {QPalette::PlaceholderText, QColor(252, 252, 252, 60)},
                                      {QPalette::Link, QColor(29, 153, 243)},
                                      {QPalette::ToolTipBase, QColor(49, 54, 59)},
                                      {QPalette::ToolTipText, QColor(252, 252, 252)}})
        palette.setColor(role, color);
    return palette;
}

/// Lets the application look as on a desktop with that palette.
struct Look {
    explicit Look(const QPalette& palette) {
        QApplication::setPalette(palette);
        applyLook(*qApp);
    }
    ~Look() { QApplication::setPalette(before); }
    const QPalette before = QApplication::palette();
};

/// A colour that lets its ground shine through, as it looks there.
QColor shownOn(const QColor& ground, const QColor& text) {
    const auto part = [&](int below, int above) { return below + int((above - below) * text.alphaF()); };
    return {part(ground.red(), text.red()), part(ground.green(), text.green()),
            part(ground.blue(), text.blue())};
}

/// What Qt makes for itself inside other controls.
bool isPartOfAnother(const QWidget& widget) {
    return widget.objectName().startsWith("qt_") || qobject_cast<const QScrollBar*>(&widget) ||
           qobject_cast<const QHeaderView*>(&widget) ||
           qobject_cast<const QAbstractSpinBox*>(widget.parentWidget()) ||
           qobject_cast<const QComboBox*>(widget.parentWidget()) || widget.inherits("QTableCornerButton") ||
           widget.inherits("QComboBoxListView") || widget.inherits("QToolBarExtension");
}

bool isControl(const QWidget& widget) {
    return qobject_cast<const QAbstractButton*>(&widget) || qobject_cast<const QLineEdit*>(&widget) ||
           qobject_cast<const QComboBox*>(&widget) || qobject_cast<const QAbstractSpinBox*>(&widget) ||
           qobject_cast<const QAbstractSlider*>(&widget) || qobject_cast<const QAbstractItemView*>(&widget) ||
           qobject_cast<const QTextEdit*>(&widget) || qobject_cast<const QPlainTextEdit*>(&widget);
}

/// Its name for who does not see it. A combo box tells its current text for one, which is none.
QString nameOf(QWidget& widget) {
    if (qobject_cast<QComboBox*>(&widget) && widget.accessibleName().isEmpty()) {
        for (QLabel* const label : widget.window()->findChildren<QLabel*>())
            if (label->buddy() == &widget)
                return label->text();
        return {};
    }
    QAccessibleInterface* const face = QAccessible::queryAccessibleInterface(&widget);
    return face ? face->text(QAccessible::Name) : QString();
}

std::string described(const QWidget& widget) {
    QString text = widget.metaObject()->className();
    for (const QWidget* parent = widget.parentWidget(); parent; parent = parent->parentWidget())
        text += QString(" in ") + parent->metaObject()->className();
    return text.toStdString();
}

/// Opens every window that the program has.
void openAll(WindowWorld& world) {
    WaymarkAppController& app = *world.app;
    app.togglePreferencesWindow();
    app.toggleTagDetailsWindow();
    app.togglePhotoOperationWindow();
    app.toggleDateAndTimeShifter();
    app.toggleMediaBrowser();
    app.showAboutBox();
    app.trackPickerController()->setWindowVisible(true);
    for (int i = 0; i < 20; ++i)
        QTest::qWait(5);
}

/// The texts that a widget shows or says.
QStringList textsOf(QWidget& widget) {
    QStringList texts{widget.toolTip(), widget.accessibleName(), widget.accessibleDescription(),
                      widget.isWindow() ? widget.windowTitle() : QString()};
    if (const auto* button = qobject_cast<QAbstractButton*>(&widget))
        texts << button->text();
    if (const auto* label = qobject_cast<QLabel*>(&widget))
        texts << label->text();
    if (const auto* field = qobject_cast<QLineEdit*>(&widget))
        texts << field->placeholderText();
    if (const auto* group = qobject_cast<QGroupBox*>(&widget))
        texts << group->title();
    if (const auto* header = qobject_cast<QHeaderView*>(&widget); header && header->model())
        for (int i = 0; i < header->count() && header->orientation() == Qt::Horizontal; ++i)
            texts << header->model()->headerData(i, Qt::Horizontal).toString();
    for (const QAction* action : widget.actions())
        texts << action->text() << action->toolTip();
    return texts;
}

} // namespace

TEST(Accessibility, TextsCanBeReadOnTheirGround) {
    const std::pair<const char*, QPalette> looks[] = {
        {"light", QStyleFactory::create("fusion")->standardPalette()}, {"dark", darkPalette()}};
    for (const auto& [name, palette] : looks) {
        const Look look(palette);
        const QPalette used = QApplication::palette();
        EXPECT_EQ(isDarkPalette(used), std::string(name) == "dark");
        for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive})
            for (const auto& [text, ground] : {std::pair{QPalette::WindowText, QPalette::Window},
                                               {QPalette::Text, QPalette::Base},
                                               {QPalette::Text, QPalette::AlternateBase},
                                               {QPalette::ButtonText, QPalette::Button},
                                               {QPalette::HighlightedText, QPalette::Highlight},
                                               {QPalette::ToolTipText, QPalette::ToolTipBase},
                                               {QPalette::PlaceholderText, QPalette::Base},
                                               {QPalette::PlaceholderText, QPalette::Window}}) {
                const QColor on = used.color(group, ground);
                EXPECT_GE(contrastRatio(shownOn(on, used.color(group, text)), on), kReadableContrast)
                    << name << " role " << text;
            }
        for (const auto sign : {PhotoStatus::Unsaved, PhotoStatus::Geotagged, PhotoStatus::Failed})
            EXPECT_GE(contrastRatio(PhotoStatus::colour(sign, used), used.color(QPalette::Base)),
                      kReadableContrast)
                << name << " sign " << sign;
    }
    EXPECT_NEAR(contrastRatio(Qt::white, Qt::black), 21, 0.01);
    EXPECT_NEAR(contrastRatio(QColor(119, 119, 119), Qt::white), 4.48, 0.01) << "a known pair";
}

TEST(Accessibility, EveryControlHasAName) {
    WindowWorld world;
    DemoTrip trip;
    ASSERT_EQ(trip.makeIn(world.folder / "trip"), std::nullopt);
    world.drop({world.folder / "trip"});
    ASSERT_TRUE(world.waitForTrip(12));
    openAll(world);
    std::set<std::string> nameless;
    int controls = 0;
    for (QWidget* const widget : QApplication::allWidgets())
        if (widget->isVisible() && isControl(*widget) && !isPartOfAnother(*widget)) {
            ++controls;
            if (nameOf(*widget).trimmed().isEmpty())
                nameless.insert(described(*widget));
        }
    for (const std::string& widget : nameless)
        ADD_FAILURE() << "no name: " << widget;
    EXPECT_GT(controls, 80) << "the windows were not all open";
}

TEST(Accessibility, EveryTextOfTheWindowsIsTranslated) {
    ASSERT_TRUE(KTUseTranslation(WAYMARK_MARKED_TRANSLATION)); // which puts every text into ⟦ ⟧
    {
        WindowWorld world;
        openAll(world);
        const QRegularExpression words("[A-Za-z]{3,}");
        // Names, values and units; and what the toolkit itself says in its dialogs' buttons.
        const QRegularExpression noText(
            "^(Waymark|OK|&?Close|&?Cancel|\\(?UTC.*|GMT.*|Qt [0-9].*|.*://.*|/.*|\\d+ ?(px|km|m|s|MB))$");
        std::set<std::string> left;
        for (QWidget* const widget : QApplication::allWidgets())
            if (widget->isVisible() && !isPartOfAnother(*widget) && !qobject_cast<QMenuBar*>(widget))
                for (const QString& text : textsOf(*widget))
                    if (text.contains(words) && !text.contains(u'⟦') && !noText.match(text).hasMatch())
                        left.insert("“" + text.toStdString() + "” of " + described(*widget));
        for (const std::string& text : left)
            ADD_FAILURE() << "not translated: " << text;
    }
    KTUseTranslation({});
}
