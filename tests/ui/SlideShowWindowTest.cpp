#include "ui/slideshow/SlideShowWindow.h"
#include "metadata/KTExifTool.h"
#include "platform/concurrency/KTOperationQueue.h"
#include "platform/defaults/KTUserDefaults.h"
#include "tests/support/EventLoop.h"
#include "tests/support/TestPhotos.h"
#include "ui/slideshow/SlideShowSettingsView.h"

#include <QCheckBox>
#include <QColorSpace>
#include <QComboBox>
#include <QLineEdit>
#include <QTest>
#include <QToolButton>
#include <gtest/gtest.h>

namespace {

struct Track final : KTExportedTrack {
    std::string name() const override { return "walk"; }
    std::vector<std::vector<KTExportedPoint>> segments() const override {
        return {{{.latitude = 47, .longitude = 14}, {.latitude = 47.01, .longitude = 14.02}}};
    }
};

class SlideShowWindowTest : public testing::Test {
protected:
    ~SlideShowWindowTest() override { window.reset(); }

    /// The left half red and the right half green, as it is stored.
    SlideShowController::Photo add(const std::string& name, KTTagDictionary tags = {},
                                   const QSize& size = {64, 32}) {
        const auto file = folder / name;
        QImage image(size, QImage::Format_RGB32);
        image.fill(Qt::red);
        for (int y = 0; y < size.height(); ++y)
            for (int x = size.width() / 2; x < size.width(); ++x)
                image.setPixel(x, y, qRgb(0, 255, 0));
        image.save(QString::fromStdString(file.string()), nullptr, 95);
        if (!tags.empty())
            KTExifTool::sharedExifTool().setValuesForKeysWithDictionary(tags, file);
        return added.emplace_back(KTPhoto::initWithFile(file));
    }
    void begin(unsigned style = 0) {
        show = std::make_unique<SlideShowController>(0, SlideShowController::kFitPhotos, style);
        show->setPhotos(added, 0);
        show->setTracks({std::make_shared<Track>()});
        window = std::make_unique<SlideShowWindow>(*show, lines, nullptr);
        show->start();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
    }
    /// Waits until the photo of that name is all that is seen.
    bool isShown(const std::string& name) {
        return runEventLoopUntil([&] {
            return window->view().accessibleDescription().startsWith(QString::fromStdString(name)) &&
                   !window->view().isInTransition();
        });
    }
    QColor colourAt(double x, double y) {
        const QImage image = window->view().grab().toImage();
        return image.pixelColor(int(x * image.width()), int(y * image.height()));
    }
    void press(Qt::Key key) { QTest::keyClick(window.get(), key); }
    QToolButton* button(const QString& name) {
        for (QToolButton* each : window->bar().findChildren<QToolButton*>())
            if (each->accessibleName() == name)
                return each;
        return nullptr;
    }

    TemporaryFolder folder;
    std::vector<SlideShowController::Photo> added;
    KTOperationQueue lines;
    std::unique_ptr<SlideShowController> show;
    std::unique_ptr<SlideShowWindow> window;
};

bool isRed(const QColor& colour) {
    return colour.red() > 200 && colour.green() < 60;
}
bool isGreen(const QColor& colour) {
    return colour.green() > 200 && colour.red() < 60;
}

} // namespace

TEST_F(SlideShowWindowTest, FillsTheScreenAndShowsEachPhotoUpright) {
    add("plain.jpg");
    add("turned.jpg", {{"EXIF:Orientation", KTValue(std::int64_t(6))}}); // to be turned clockwise
    folder.file("beside.xmp", "<tiff:Orientation>6</tiff:Orientation>");
    add("beside.jpg");
    QImage wide(64, 32, QImage::Format_RGB32);
    wide.fill(QColor(150, 180, 150));
    wide.setColorSpace(QColorSpace::AdobeRgb);
    wide.save(QString::fromStdString((folder / "wide.png").string()));
    added.push_back(KTPhoto::initWithFile(folder / "wide.png"));
    begin();
    EXPECT_TRUE(window->isFullScreen());
    EXPECT_EQ(window->size(), window->screen()->size());
    EXPECT_FALSE(window->map().isVisible()); // no photo has a place
    ASSERT_TRUE(isShown("plain.jpg"));
    EXPECT_TRUE(isRed(colourAt(0.25, 0.5)));
    EXPECT_TRUE(isGreen(colourAt(0.75, 0.5)));
    EXPECT_EQ(colourAt(0.5, 0.01), QColor(Qt::black));
    for (const char* name : {"turned.jpg", "beside.jpg"}) {
        press(Qt::Key_Right);
        ASSERT_TRUE(isShown(name));
        EXPECT_TRUE(isRed(colourAt(0.5, 0.2))) << name;
        EXPECT_TRUE(isGreen(colourAt(0.5, 0.8))) << name;
    }
    press(Qt::Key_Right);
    ASSERT_TRUE(isShown("wide.png"));
    const QColor seen = colourAt(0.5, 0.5), expected = QColor(137, 181, 153); // the same green in sRGB
    EXPECT_LE(std::abs(seen.red() - expected.red()) + std::abs(seen.green() - expected.green()), 12)
        << seen.name().toStdString();
}

TEST_F(SlideShowWindowTest, GoesToAndFroByKeysAndMouse) {
    for (const char* name : {"a.jpg", "b.jpg", "c.jpg"})
        add(name);
    begin();
    ASSERT_TRUE(isShown("a.jpg"));
    const std::pair<Qt::Key, const char*> keys[] = {{Qt::Key_Right, "b.jpg"},     {Qt::Key_Down, "c.jpg"},
                                                    {Qt::Key_PageDown, "a.jpg"},  {Qt::Key_Left, "c.jpg"},
                                                    {Qt::Key_Up, "b.jpg"},        {Qt::Key_PageUp, "a.jpg"},
                                                    {Qt::Key_Backspace, "c.jpg"}, {Qt::Key_Return, "a.jpg"}};
    for (const auto& [key, name] : keys) {
        press(key);
        EXPECT_TRUE(isShown(name)) << key;
    }
    QTest::mouseClick(&window->view(), Qt::LeftButton);
    EXPECT_TRUE(isShown("b.jpg"));
    QTest::mouseClick(&window->view(), Qt::RightButton);
    EXPECT_TRUE(isShown("a.jpg"));
    press(Qt::Key_Space);
    EXPECT_TRUE(show->automaticallyAdvances());
    press(Qt::Key_C);
    EXPECT_TRUE(show->cyclesTransitionStyles());
    press(Qt::Key_Escape);
    EXPECT_FALSE(show->isRunning());
    EXPECT_FALSE(window->isVisible());
}

TEST_F(SlideShowWindowTest, ShowsControlsAndPointerWhileThePointerMoves) {
    add("a.jpg");
    add("b.jpg");
    begin();
    EXPECT_FALSE(window->bar().isVisible());
    EXPECT_EQ(window->cursor().shape(), Qt::BlankCursor);
    QTest::mouseMove(&window->view(), {50, 50});
    QTest::mouseMove(&window->view(), {60, 60});
    ASSERT_TRUE(runEventLoopUntil([&] { return window->bar().isVisible(); }));
    EXPECT_NE(window->cursor().shape(), Qt::BlankCursor);
    EXPECT_TRUE(window->rect().contains(window->bar().geometry()));
    for (const char* name :
         {"Previous Photo", "Go On", "Next Photo", "Map", "Change Transitions", "End the Slide Show"})
        EXPECT_NE(button(name), nullptr) << name;
    QTest::mouseClick(&window->bar(), Qt::LeftButton, {}, {2, 2}); // beside the buttons
    EXPECT_EQ(show->currentIndex(), 0u);
    button("Next Photo")->click();
    EXPECT_TRUE(isShown("b.jpg"));
    button("Change Transitions")->click();
    EXPECT_TRUE(show->cyclesTransitionStyles());
    EXPECT_TRUE(runEventLoopUntil([&] { return !window->bar().isVisible(); }));
    EXPECT_EQ(window->cursor().shape(), Qt::BlankCursor);
    button("End the Slide Show")->click();
    EXPECT_FALSE(window->isVisible());
}

TEST_F(SlideShowWindowTest, TheMapFollowsAndCanBeHidden) {
    const KTTagDictionary place = {{"EXIF:GPSLatitude", KTValue(std::int64_t(47))},
                                   {"EXIF:GPSLatitudeRef", "N"},
                                   {"EXIF:GPSLongitude", KTValue(std::int64_t(14))},
                                   {"EXIF:GPSLongitudeRef", "E"}};
    add("nowhere.jpg");
    add("somewhere.jpg", place);
    begin();
    ASSERT_TRUE(window->map().isVisible());
    ASSERT_TRUE(isShown("nowhere.jpg"));
    EXPECT_GT(window->view().width(), window->map().width());
    press(Qt::Key_Right);
    ASSERT_TRUE(isShown("somewhere.jpg"));
    EXPECT_NEAR(show->mapController().latitude(), 47, 1e-6);
    EXPECT_EQ(show->mapController().viewState().width(), window->map().width());
    EXPECT_TRUE(
        runEventLoopUntil([&] { return window->map().isUpToDate() && window->map().shownTracks() == 1; }));

    const int width = window->view().width();
    press(Qt::Key_M);
    EXPECT_FALSE(window->map().isVisible());
    ASSERT_TRUE(runEventLoopUntil([&] { return window->view().width() > width; }));
    EXPECT_TRUE(
        runEventLoopUntil([&] { return isRed(colourAt(0.02, 0.5)) && isGreen(colourAt(0.98, 0.5)); }));
    press(Qt::Key_M);
    EXPECT_TRUE(window->map().isVisible());
}

TEST_F(SlideShowWindowTest, APhotoThatCannotBeReadShowsItsNameAndTheShowGoesOn) {
    added.push_back(KTPhoto::initWithFile(folder.file("broken.jpg", "no picture")));
    added.push_back(KTPhoto::initWithFile(folder.file("gone.jpg", "no picture")));
    add("fine.jpg");
    std::filesystem::remove(folder / "gone.jpg");
    begin();
    ASSERT_TRUE(isShown("broken.jpg"));
    EXPECT_GT(window->view().accessibleDescription().size(), qsizetype(std::string("broken.jpg ").size()));
    const QImage text = window->view().grab().toImage();
    QImage black(text.size(), text.format());
    black.fill(Qt::black);
    EXPECT_NE(text, black);
    press(Qt::Key_Right);
    ASSERT_TRUE(isShown("gone.jpg"));
    press(Qt::Key_Right);
    EXPECT_TRUE(isShown("fine.jpg"));
}

TEST_F(SlideShowWindowTest, ATransitionGoesFromOnePhotoToTheOther) {
    add("a.jpg");
    added.push_back(KTPhoto::initWithFile(folder.file("b.jpg", "no picture"))); // black at its borders
    begin(1);
    ASSERT_TRUE(isShown("a.jpg"));
    press(Qt::Key_Right);
    int between = 0;
    ASSERT_TRUE(runEventLoopUntil([&] {
        const int red = colourAt(0.02, 0.5).red();
        between += red > 20 && red < 230 ? 1 : 0;
        return red < 5 && !window->view().isInTransition();
    }));
    EXPECT_GT(between, 2);
}

TEST_F(SlideShowWindowTest, EndsCleanlyInTheMiddleOfAnything) {
    for (int number = 0; number < 4; ++number)
        add("large" + std::to_string(number) + ".jpg", {}, {1600, 1200});
    for (unsigned moment = 0; moment < 26; ++moment) {
        begin(moment % SlideShowController::kTransitionStyles);
        for (unsigned steps = 0; steps < moment % 5; ++steps)
            press(steps % 2 == 0 ? Qt::Key_Right : Qt::Key_M);
        QTest::qWait(int(moment * 7 % 60));
        if (moment % 3 == 0)
            window->close();
        else if (moment % 3 == 1)
            press(Qt::Key_Escape);
        EXPECT_EQ(show->isRunning(), moment % 3 == 2);
        window.reset();
        show.reset();
    }
    lines.waitUntilAllOperationsAreFinished();
}

TEST(SlideShowSettingsViewTest, EditsTheFourSettings) {
    KTUserDefaults::useThrowAwayDomain();
    KTUserDefaults& defaults = KTUserDefaults::standardUserDefaults();
    SlideShowSettingsView view;
    const auto boxes = view.findChildren<QComboBox*>();
    ASSERT_EQ(boxes.size(), 2);
    EXPECT_EQ(boxes[0]->count(), int(SlideShowController::kTransitionStyles));
    EXPECT_EQ(boxes[0]->currentIndex(), 0);
    EXPECT_EQ(boxes[1]->currentIndex(), 2);
    auto* const seconds = view.findChild<QLineEdit*>();
    EXPECT_EQ(seconds->text(), "4");

    seconds->selectAll();
    QTest::keyClicks(seconds, "2.5");
    QTest::keyClick(seconds, Qt::Key_Return);
    boxes[0]->setCurrentIndex(10);
    emit boxes[0]->activated(10);
    emit boxes[1]->activated(1);
    view.findChild<QCheckBox*>()->click();
    EXPECT_EQ(defaults.doubleForKey("slideshowPlugin.autoAdvanceInterval"), 2.5);
    EXPECT_EQ(defaults.integerForKey("slideshowPlugin.transitionStyle"), 10);
    EXPECT_EQ(defaults.integerForKey("slideshowPlugin.autoZoomPhotoStyle"), 1);
    EXPECT_FALSE(defaults.boolForKey("slideshowPlugin.shouldShowNearbyTracks"));
}
