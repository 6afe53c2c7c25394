#include "tests/collection/CollectionFixture.h"

#include "datetools/KTDateToolsWindowController.h"
#include "metadata/KTMetadataFieldManager.h"
#include "platform/common/KTTimeZoneManager.h"
#include "ui/datetools/CoverFlowView.h"
#include "ui/datetools/DatePreviewList.h"
#include "ui/datetools/DateToolsWindow.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QLabel>
#include <QScreen>
#include <QScrollBar>
#include <QSpinBox>
#include <QTest>
#include <QWheelEvent>

namespace {

constexpr auto kOriginal = "dateTimeOriginalComponents", kDigitized = "dateTimeDigitizedComponents";

/// The window of the date tools over photos that are all selected; clocks at +02:00. Driven as a user would,
/// by the accessible names of its controls.
class DateToolsWindowTest : public CollectionFixture {
protected:
    void SetUp() override {
        CollectionFixture::SetUp();
        set("defaultAssumedTimeZoneOffset", 7200);
        displayZone.setTimeZone(KTTimeZone::fixed(7200));
    }
    void TearDown() override { controller.tearDown(); }

    std::shared_ptr<KTPhoto> add(const char* name, const char* date) {
        KTTagDictionary tags;
        if (date != nullptr)
            for (const char* tag : {"EXIF:DateTimeOriginal", "EXIF:CreateDate"})
                tags.set(tag, date);
        auto photo = KTPhoto::initWithFile(makePhoto(folder, name, tags));
        manager.addNewPhoto(photo);
        return photo;
    }
    void open(unsigned tool) {
        manager.setSelectedPhotos(*manager.photos());
        controller.toggleDateTool(tool);
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        settle();
    }
    /// Until what was announced has reached the window.
    static void settle() { QTest::qWait(30); }
    template<class Control>
    Control& named(const QString& name) {
        for (Control* const control : window.findChildren<Control*>())
            if (control->isVisible() && (control->accessibleName() == name || textOf(control) == name))
                return *control;
        throw std::runtime_error("nothing is called " + name.toStdString());
    }
    static QString textOf(const QObject* control) { return control->property("text").toString(); }
    void press(const char* button) {
        QAbstractButton& found = named<QAbstractButton>(button);
        EXPECT_TRUE(found.isEnabled()) << button;
        QTest::mouseClick(&found, Qt::LeftButton, {}, {6, found.height() / 2});
        settle();
    }
    void type(QWidget& field, const char* text) {
        field.setFocus();
        QTest::keyClick(&field, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(&field, text);
        settle();
    }
    /// "a.jpg (first) | Original Date | before | after" a row.
    QStringList previewRows() {
        QStringList rows;
        const auto& list = *window.findChild<DatePreviewList*>();
        for (int row = 0; row < list.topLevelItemCount(); ++row) {
            QStringList cells;
            for (int column = 0; column < 4; ++column)
                cells << list.topLevelItem(row)->text(column);
            rows << cells.join(" | ");
        }
        return rows;
    }
    static std::string reading(const KTPhoto& photo, const char* key = kOriginal) {
        const KTValue value = photo.valueForKey(key);
        return value.components() ? value.components()->xmpString().value_or("") : "none";
    }
    CoverFlowView& strip() { return *window.findChild<CoverFlowView*>(); }

    /// Where windows keep their places.
    struct Home {
        explicit Home(const std::filesystem::path& path) { qputenv("HOME", path.c_str()); }
        ~Home() { qputenv("HOME", before); }
        const QByteArray before = qgetenv("HOME");
    };
    Home home{folder.path()};
    KTTimeZoneManager displayZone;
    KTDateToolsWindowController controller{manager, KTMetadataFieldManager::sharedMetadataFieldManager(),
                                           displayZone};
    KTThumbnailService thumbnails{ThumbnailFileCache(folder / "thumbnails")};
    DateToolsWindow window{controller, thumbnails};
};

constexpr unsigned kShift = KTDateToolsWindowController::Shift, kSet = KTDateToolsWindowController::Set,
                   kCopy = KTDateToolsWindowController::Copy;

TEST_F(DateToolsWindowTest, ShiftsByTypedMagnitudesAsThePreviewSays) {
    const auto first = add("a.jpg", "2014:05:03 10:00:00"), undated = add("b.jpg", nullptr),
               last = add("c.jpg", "2014:05:03 11:00:00");
    open(kShift);
    press("earlier");
    for (const auto& [field, text] : {std::pair("days", "1"), std::pair("hours", "1"),
                                      std::pair("minutes", "29"), std::pair("seconds", "45")})
        type(named<QSpinBox>(field), text);
    EXPECT_EQ(named<QDateTimeEdit>("Corrected date").text(), "2014-05-02 08:30:15");
    const QStringList promised = previewRows();
    ASSERT_EQ(promised.size(), 4) << promised.join("\n").toStdString();
    EXPECT_TRUE(promised[0].startsWith("a.jpg (in front, first) | ")) << promised[0].toStdString();
    EXPECT_TRUE(promised[2].startsWith("c.jpg (last) | ")) << promised[2].toStdString();
    for (const QString& row : promised)
        EXPECT_TRUE(row.contains("30:15")) << row.toStdString();
    EXPECT_FALSE(undo->canUndo()) << "before the button";
    auto isTold = [&] {
        return std::ranges::any_of(window.findChildren<QLabel*>(), [](const QLabel* label) {
            return label->text().endsWith(", not yet written");
        });
    };
    first->setValueForKey("caption", "no date");
    settle();
    EXPECT_FALSE(isTold());
    undo->undo();

    press("Apply");
    EXPECT_TRUE(isTold());
    EXPECT_EQ(reading(*first), "2014:05:02 08:30:15");
    EXPECT_EQ(reading(*last, kDigitized), "2014:05:02 09:30:15");
    EXPECT_EQ(reading(*undated), "none");
    EXPECT_EQ(previewRows(), promised) << "the shift is counted from what the file holds";
    EXPECT_EQ(undo->undoActionName(), "Original Date Change");
    QTest::keyClick(&window, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(reading(*first), "2014:05:03 10:00:00");
    EXPECT_FALSE(first->hasUnsavedChanges());
    EXPECT_FALSE(undo->canUndo()) << "one press, one step";

    press("Shift the digitized date, too");
    press("Apply");
    EXPECT_EQ(reading(*first, kDigitized), "2014:05:03 10:00:00");
    press("Revert");
    EXPECT_EQ(reading(*first), "2014:05:03 10:00:00");
    EXPECT_EQ(named<QSpinBox>("minutes").value(), 0);
}

TEST_F(DateToolsWindowTest, ShiftFieldsStepAsAClockAndTakeAnyNumber) {
    add("a.jpg", "2014:05:03 10:00:00");
    const auto unselected = add("b.jpg", "2014:05:03 11:00:00");
    open(kShift);
    QSpinBox& hours = named<QSpinBox>("hours");
    QTest::keyClick(&hours, Qt::Key_Down);
    EXPECT_EQ(hours.value(), 23);
    QTest::keyClick(&hours, Qt::Key_Up);
    EXPECT_EQ(hours.value(), 0) << "without carry";
    EXPECT_EQ(named<QSpinBox>("days").value(), 0);
    QSpinBox& seconds = named<QSpinBox>("seconds");
    type(seconds, "91785");
    EXPECT_EQ(named<QDateTimeEdit>("Corrected date").text(), "2014-05-04 11:29:45");
    seconds.setFocus();
    QTest::keyClick(&seconds, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&seconds, Qt::Key_Delete);
    EXPECT_EQ(controller.currentSubviewController()->changesOf(*unselected).size(), 2u);
    EXPECT_EQ(named<QDateTimeEdit>("Corrected date").text(), "2014-05-03 10:00:00") << "emptied is 0";

    QDateTimeEdit& corrected = named<QDateTimeEdit>("Corrected date");
    corrected.setFocus();
    corrected.setSelectedSection(QDateTimeEdit::MinuteSection);
    QTest::keyClicks(&corrected, "30");
    EXPECT_EQ(named<QSpinBox>("minutes").value(), 30);

    manager.setSelectedPhotos({});
    settle();
    EXPECT_FALSE(named<QAbstractButton>("Apply").isEnabled());
    press("All loaded photos, not only the selected ones");
    press("Apply");
    EXPECT_EQ(reading(*unselected), "2014:05:03 11:30:00");
}

TEST_F(DateToolsWindowTest, SetsADateAsFarAsItIsKnown) {
    const auto dated = add("a.jpg", "2014:05:03 10:00:00"), undated = add("b.jpg", nullptr);
    open(kSet);
    press("Take from Photo in Front");
    QComboBox& precision = named<QComboBox>("Precision");
    precision.setFocus();
    QTest::keyClicks(&precision, "Mo");
    settle();
    QDateTimeEdit& date = named<QDateTimeEdit>("Date");
    EXPECT_EQ(date.text(), "2014-05");
    date.setFocus();
    date.setSelectedSection(QDateTimeEdit::MonthSection);
    QTest::keyClicks(&date, "07");
    settle();
    EXPECT_TRUE(previewRows()[1].startsWith("b.jpg (last) | Original Date | none | "))
        << previewRows()[1].toStdString();
    press("Apply");
    for (const auto& photo : {dated, undated})
        EXPECT_EQ(reading(*photo), "2014:07");
    EXPECT_TRUE(dated->valueForKey("dateTimeOriginal").isAbsent()) << "no instant is made up";
    EXPECT_EQ(reading(*dated, kDigitized), "2014:05:03 10:00:00");
    QTest::keyClick(&window, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(reading(*dated), "2014:05:03 10:00:00");
    EXPECT_EQ(reading(*undated), "none");
}

TEST_F(DateToolsWindowTest, CopiesFromOneDateToTheOthers) {
    const auto photo = add("a.jpg", "2014:05:03 10:00:00");
    open(kCopy);
    EXPECT_FALSE(named<QAbstractButton>("Apply").isEnabled()) << "no target yet";
    EXPECT_FALSE(named<QAbstractButton>("To: Original date").isEnabled()) << "the source itself";
    press("To: Digitized date");
    press("To: Creation date");
    press("From: Digitized date");
    EXPECT_FALSE(named<QAbstractButton>("To: Digitized date").isEnabled());
    press("Apply");
    EXPECT_EQ(undo->undoActionName(), "Copy Date Time Digitized");
    EXPECT_EQ(photo->valueForKey("creationDate"), photo->valueForKey("dateTimeDigitized"));
    QTest::keyClick(&window, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_FALSE(photo->hasUnsavedChanges());
    controller.toggleDateTool(kCopy);
    EXPECT_FALSE(window.isVisible());
}

TEST_F(DateToolsWindowTest, TheStripBringsPhotosToTheFront) {
    for (const char* name : {"a.jpg", "b.jpg", "c.jpg", "d.jpg", "e.jpg"})
        add(name, nullptr);
    open(kShift);
    auto front = [&] {
        settle();
        return controller.currentSubviewController()->currentImageIndex().value_or(99);
    };
    for (const auto& [key, place] :
         {std::pair(Qt::Key_Right, 1u), std::pair(Qt::Key_End, 4u), std::pair(Qt::Key_Right, 4u),
          std::pair(Qt::Key_Left, 3u), std::pair(Qt::Key_Home, 0u), std::pair(Qt::Key_Left, 0u)}) {
        QTest::keyClick(&strip(), key);
        EXPECT_EQ(front(), place) << key;
    }
    const QPoint right(strip().width() * 3 / 4, strip().height() / 2);
    QTest::qWait(400); // the movement has ended
    QTest::mouseClick(&strip(), Qt::LeftButton, {}, right);
    EXPECT_GT(front(), 0u);
    QWheelEvent away(right, strip().mapToGlobal(right), {}, {0, 120}, Qt::NoButton, {}, Qt::NoScrollPhase,
                     false);
    const auto before = front();
    QApplication::sendEvent(&strip(), &away);
    EXPECT_EQ(front(), before - 1);
    named<QScrollBar>("Photo in front").setValue(2);
    EXPECT_EQ(front(), 2u);

    QAccessibleInterface* const spoken = QAccessible::queryAccessibleInterface(&strip());
    ASSERT_NE(spoken, nullptr);
    EXPECT_EQ(spoken->text(QAccessible::Value), "c.jpg, 3 of 5");
    spoken->valueInterface()->setCurrentValue(5);
    EXPECT_EQ(front(), 4u);
    manager.setSelectedPhotos({(*manager.photos())[1], (*manager.photos())[4]});
    settle();
    EXPECT_EQ(strip().frontText(), "e.jpg, 2 of 2") << "it stays in front";
}

TEST_F(DateToolsWindowTest, StaysOnTheScreenWithEveryTool) {
    add("a.jpg", "2014:05:03 10:00:00");
    open(kCopy);
    EXPECT_GE(strip().height(), strip().sizeHint().height());
    const QRect room = window.screen()->availableGeometry();
    window.move(0, room.bottom() - window.height());
    for (const unsigned tool : {kShift, kSet}) {
        controller.setSelectedDateTool(tool);
        QTest::qWait(400); // it grows
        EXPECT_LE(window.geometry().bottom(), room.bottom()) << tool;
        EXPECT_GE(window.geometry().top(), room.top()) << tool;
        EXPECT_FALSE(named<QAbstractButton>("Apply").visibleRegion().isEmpty());
    }
}

TEST_F(DateToolsWindowTest, EveryControlIsNamedAndExplained) {
    add("a.jpg", "2014:05:03 10:00:00");
    for (const unsigned tool : {kShift, kSet, kCopy}) {
        open(tool);
        for (const QWidget* const control : window.findChildren<QWidget*>()) {
            if ((control->focusPolicy() & Qt::TabFocus) == 0 || !control->isVisible() ||
                control->objectName().startsWith("qt_"))
                continue;
            const bool isNamed = !control->accessibleName().isEmpty() || !textOf(control).isEmpty();
            const bool isExplained = !control->toolTip().isEmpty() || control->inherits("QTabBar");
            EXPECT_TRUE(isNamed && isExplained) << tool << " " << control->metaObject()->className() << " "
                                                << control->accessibleName().toStdString();
        }
    }
}

} // namespace
