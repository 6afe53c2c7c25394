#include "export/KTPhotoExportProgressWindowController.h"
#include "platform/concurrency/KTLatch.h"
#include "tests/export/ExportFixture.h"
#include "tests/export/ScriptedPlugin.h"

#include <QImage>

namespace {

struct FakeDesktop : KTExportDesktop {
    void openURL(const std::string& url) override { opened += url + ' '; }
    void setClipboardText(const std::string& text) override { clipboard = text; }
    std::string opened, clipboard;
};

/// A background plug-in that waits in the middle of its export for the test.
class ExportHistoryTest : public ExportFixture {
protected:
    ExportHistoryTest() {
        script.isForQueue = true;
        script.perform = [this](KTPhotoExportManager&) {
            {
                const std::lock_guard guard(script.mutex);
                script.message = "half";
                script.currentValue = 1;
                script.totalValue = 2;
                script.url = "file:///out/my%20photos";
            }
            goOn.wait();
            const std::lock_guard guard(script.mutex);
            script.conclusion = "Exported 2 photos.";
        };
        window->setPhotoExportPluginManager(exports.get());
        window->setup();
    }
    ~ExportHistoryTest() override {
        goOn.signal();
        window->tearDown();
        history->setPhotoExportPlugins(nullptr);
        endAll();
    }

    std::filesystem::path file() const { return folder / "data" / "history" / "Export History.sql"; }
    void begin() { exports->shouldBeginExportProcessWithPlugin(std::make_shared<ScriptedClass>(script)); }
    const KTPhotoExportOperation& last() { return *history->exportOperations().back(); }
    bool isHalfDone() {
        return runEventLoopUntil([&] { return last().progressDescription == "half"; });
    }
    bool isOver() {
        return runEventLoopUntil([&] { return history->exportOperationPluginMap().empty(); });
    }

    Script script;
    KTLatch goOn;
    FakeDesktop desktop;
    std::unique_ptr<KTPhotoExportOperationController> history =
        std::make_unique<KTPhotoExportOperationController>(file(), desktop);
    std::unique_ptr<KTPhotoExportProgressWindowController> window =
        std::make_unique<KTPhotoExportProgressWindowController>(*history);
};

} // namespace

TEST_F(ExportHistoryTest, AnExportIsFollowedAndLivesOnInTheStore) {
    EXPECT_EQ(window->toggleWindowDescription(), "Show Export List");
    begin();
    EXPECT_TRUE(window->isWindowVisible());
    EXPECT_EQ(window->toggleWindowDescription(), "Hide Export List");
    ASSERT_TRUE(isHalfDone()); // by the timer
    EXPECT_EQ(last().name, "Scripted");
    EXPECT_EQ(last().currentValue, 1u);
    EXPECT_EQ(last().totalValue, 2u);
    EXPECT_FALSE(last().indeterminateProgress);
    EXPECT_EQ(window->heightOfRow(last()), 48.0);
    window->toggleWindow(); // and stays so, whatever the progress
    history->updateProgress();
    EXPECT_FALSE(window->isWindowVisible());
    goOn.signal();
    ASSERT_TRUE(isOver());
    EXPECT_EQ(last().resultDescription, "Exported 2 photos.");
    EXPECT_EQ(window->heightOfRow(last()), 38.0);

    KTPhotoExportOperationController again(file(), desktop);
    again.loadSavedExportOperations();
    again.loadSavedExportOperations(); // brings nothing twice
    ASSERT_EQ(again.exportOperations().size(), 1u);
    const auto record = again.exportOperations().front();
    EXPECT_EQ(record->name + '|' + record->resultDescription + '|' + record->destinationURL,
              "Scripted|Exported 2 photos.|file:///out/my%20photos");
    again.removeExportOperations({record});
    KTPhotoExportOperationController empty(file(), desktop);
    empty.loadSavedExportOperations();
    EXPECT_TRUE(empty.exportOperations().empty());
}

TEST_F(ExportHistoryTest, StoppedThrownAndCutOffExportsSaySo) {
    script.conclusion = "Export canceled.";
    begin();
    ASSERT_TRUE(isHalfDone());
    begin(); // waits for the first one
    const auto waiting = history->exportOperations().back();
    history->removeExportOperations({waiting}); // not while it is in progress
    window->shouldCancelExportForOperation(waiting);
    EXPECT_FALSE(waiting->inProgress); // at once, not when the first one is over
    EXPECT_EQ(waiting->resultDescription, "Export canceled.");
    EXPECT_TRUE(history->exportOperations().front()->inProgress);
    window->shouldCancelExportForOperation(history->exportOperations().front());
    EXPECT_NE(script.events.find("cancelled"), std::string::npos);
    {
        // What another run finds that was cut off here.
        KTPhotoExportOperationController other(file(), desktop);
        other.loadSavedExportOperations();
        ASSERT_EQ(other.exportOperations().size(), 2u);
        EXPECT_EQ(other.exportOperations().front()->resultDescription, "The export was not finished.");
    }
    goOn.signal();
    ASSERT_TRUE(isOver());
    EXPECT_EQ(script.runs, 1);
    ASSERT_EQ(history->exportOperations().size(), 2u);
    script.perform = [](KTPhotoExportManager&) { throw std::runtime_error("broken"); };
    testing::internal::CaptureStderr();
    begin();
    ASSERT_TRUE(isOver());
    testing::internal::GetCapturedStderr();
    EXPECT_EQ(last().resultDescription, "It failed in performExport: broken.");
}

TEST_F(ExportHistoryTest, StoppedHalfWayExactlyTheFinishedFilesRemainWhole) {
    constexpr int kPhotos = 40;
    for (int number = 0; number < kPhotos; ++number)
        photos.addNewPhoto(
            KTPhoto::initWithFile(makePhoto(folder, "photo " + std::to_string(number) + ".jpg")));
    photos.setSelectedPhotos(*photos.photos());
    unsetenv("WAYMARK_PLUGINS"); // those that are built with the program
    EXPECT_EQ(loadAll(), "");
    exports->setRequestedOptions({{KTImageSizeOption, KTImageSize{1500, 1500}}});
    exports->shouldBeginExportProcessWithPluginAtIndex(0);
    ASSERT_EQ(presenter.panels.size(), 1u);
    const auto out = folder / "out";
    std::filesystem::create_directory(out);
    presenter.panels.front().completion({out});
    const auto made = [&] {
        return std::distance(std::filesystem::directory_iterator(out), std::filesystem::directory_iterator());
    };
    ASSERT_TRUE(runEventLoopUntil([&] { return made() >= 5; }));
    window->shouldCancelExportForOperation(history->exportOperations().back());
    ASSERT_TRUE(isOver());
    EXPECT_LT(made(), kPhotos);
    EXPECT_EQ(last().resultDescription, "Export canceled. Exported " + std::to_string(made()) + " photos.");
    for (const auto& entry : std::filesystem::directory_iterator(out)) {
        EXPECT_EQ(entry.path().extension(), ".jpg") << entry.path();
        EXPECT_EQ(QImage(QString::fromStdString(entry.path())).width(), 1500) << entry.path();
    }
}

TEST_F(ExportHistoryTest, AnExportOnTheMainThreadLeavesNoRecord) {
    script.isForQueue = false;
    script.perform = [](KTPhotoExportManager& manager) { manager.exportManagerShouldFinishExport(); };
    begin();
    ASSERT_TRUE(runEventLoopUntil([&] { return script.runs == 1; }));
    EXPECT_TRUE(history->exportOperations().empty());
    EXPECT_FALSE(window->isWindowVisible());
}

TEST_F(ExportHistoryTest, TheMenuShowsRemovesAndCopies) {
    KTExportHistoryStore store(file());
    for (const char* url : {"https://example.org/trip", "file:///out/my%20photos", ""}) {
        KTPhotoExportOperation record{.name = "Web", .destinationURL = url, .resultDescription = "done"};
        store.insert(record);
    }
    history->loadSavedExportOperations();
    KTMenu menu = history->menuForOperations(history->exportOperations());
    std::string titles;
    for (const KTMenuItem& item : menu)
        titles += item.title + (item.isEnabled ? "+ " : "- ");
    EXPECT_EQ(titles, "Show Destination+ Remove From List+ Copy Address+ ");
    EXPECT_FALSE(history->menuForOperations({}).front().isEnabled);
    menu[0].action();
    EXPECT_EQ(desktop.opened, "https://example.org/trip file:///out/my%20photos ");
    menu[2].action();
    EXPECT_EQ(desktop.clipboard, "https://example.org/trip\n/out/my photos");
    history->copyAction({history->exportOperations().back()}); // nothing to copy
    EXPECT_EQ(desktop.clipboard, "https://example.org/trip\n/out/my photos");
    menu[1].action();
    EXPECT_TRUE(history->exportOperations().empty());
    EXPECT_TRUE(store.load().empty());
}

TEST_F(ExportHistoryTest, AStoreThatCannotBeOpenedIsToldOnceAndTheExportGoesOn) {
    KTPhotoExportOperationController homeless(folder.file("file", "") / "history.sql", desktop);
    homeless.store().setPresenter(&presenter);
    homeless.setPhotoExportPlugins(exports.get());
    homeless.loadSavedExportOperations();
    begin();
    goOn.signal();
    ASSERT_TRUE(isOver());
    EXPECT_EQ(homeless.exportOperations().size(), 1u);
    EXPECT_EQ(presenter.alerts.size(), 1u);
}
