#include "platform/concurrency/KTLatch.h"
#include "platform/concurrency/KTMainThread.h"
#include "tests/export/ExportFixture.h"
#include "tests/export/ScriptedPlugin.h"

namespace fs = std::filesystem;

namespace {

class ExportSequenceTest : public ExportFixture {
protected:
    ~ExportSequenceTest() override { endAll(); } // before the script
    std::string begin() {
        testing::internal::CaptureStderr();
        exports->shouldBeginExportProcessWithPlugin(pluginClass);
        return testing::internal::GetCapturedStderr();
    }
    bool isOver() {
        return runEventLoopUntil([&] { return script.events.find("destroyed") != std::string::npos; });
    }

    Script script;
    std::shared_ptr<ScriptedClass> pluginClass = std::make_shared<ScriptedClass>(script);
};

constexpr const char* kInProgress = "Main thread export operation already in progress!\n";

} // namespace

TEST_F(ExportSequenceTest, WithoutQuestionsThePluginIsPreparedAtOnceAndRunLater) {
    script.beginsTwice = true;
    EXPECT_EQ(begin(), "");
    EXPECT_EQ(script.events, "made prepared ");
    EXPECT_EQ(script.exported, (std::vector<std::string>{"IMG_1.jpg", "IMG_2.jpg"})); // in the user's order
    EXPECT_EQ(pluginClass->operation->allPhotos().size(), 3u);
    EXPECT_EQ(pluginClass->operation->waypoints().size(), 1u);
    ASSERT_EQ(script.manager->tracks().size(), 1u);
    EXPECT_EQ(script.manager->tracks()[0]->name(), "near");
    EXPECT_EQ(exports->mainQueueOperation().get(), pluginClass->operation);
    EXPECT_EQ(script.runs, 0);
    EXPECT_TRUE(isOver());
    EXPECT_EQ(script.runs, 1);
    EXPECT_TRUE(script.ranOnMainThread);
    EXPECT_EQ(exports->mainQueueOperation(), nullptr);
    EXPECT_TRUE(presenter.panels.empty() && presenter.sheets.empty());
}

TEST_F(ExportSequenceTest, PhotosAreCopiesAndNoSelectionIsNoPhoto) {
    script.wantsPath = true;
    begin();
    const auto exported = script.manager->photos().at(0);
    photos.photos()->at(0)->setValueForKey("caption", "edited meanwhile");
    EXPECT_EQ(std::get<std::string>(exported->valueForKey("caption")), "caption 1");
    presenter.panels.at(0).completion({});
    photos.setSelectedPhotos({});
    script.exported.clear();
    begin();
    EXPECT_TRUE(script.exported.empty());
    EXPECT_TRUE(script.manager->tracks().empty());
}

TEST_F(ExportSequenceTest, AsksForAFolderOrAFileAndEndsWhenTheUserCancels) {
    int view = 0;
    script.wantsPath = true;
    script.settingsView = &view;
    begin();
    ASSERT_EQ(presenter.panels.size(), 1u);
    KTFilePanel panel = presenter.panels[0];
    EXPECT_EQ(panel.kind, KTFilePanel::Kind::ChooseFolder);
    EXPECT_EQ(panel.buttonText, "Export");
    EXPECT_EQ(panel.directory, "/pictures");
    EXPECT_EQ(panel.accessoryView, &view);
    EXPECT_EQ(panel.proposedName, "");
    EXPECT_TRUE(panel.allowedFileTypes.empty());
    panel.completion({"/first", "/last"});
    EXPECT_EQ(script.events, "made prepared /last ");
    presenter.panels.clear(); // the plug-in's view lives as long as they do
    panel = {};
    EXPECT_TRUE(isOver());

    script.events.clear();
    script.wantsFile = true;
    begin();
    panel = presenter.panels.at(0);
    EXPECT_EQ(panel.kind, KTFilePanel::Kind::SaveFile);
    EXPECT_EQ(panel.proposedName, "trip.html");
    EXPECT_EQ(panel.allowedFileTypes, (std::vector<std::string>{"html", "htm"}));
    EXPECT_EQ(panel.accessoryView, &view);
    presenter.panels.clear();
    panel.completion({});
    panel = {};
    EXPECT_TRUE(isOver());
    EXPECT_EQ(script.events, "made destroyed ");
    EXPECT_EQ(exports->mainQueueOperation(), nullptr);
    EXPECT_EQ(script.runs, 1);
}

TEST_F(ExportSequenceTest, SettingsWithoutDestinationComeInASheet) {
    int view = 0;
    script.settingsView = &view;
    begin();
    ASSERT_EQ(presenter.sheets.size(), 1u);
    EXPECT_EQ(presenter.sheets[0].settingsView, &view);
    EXPECT_EQ(presenter.sheets[0].buttonText, "Export");
    presenter.sheets[0].completion(false);
    EXPECT_EQ(script.events, "made ");
    begin();
    presenter.sheets.at(1).completion(true);
    EXPECT_EQ(script.events, "made made prepared ");
}

TEST_F(ExportSequenceTest, APluginThatEndsWhileTheUserIsAskedIsNotPrepared) {
    script.wantsPath = true;
    begin();
    script.manager->exportManagerShouldCancelExport();
    presenter.panels.at(0).completion({"/folder"});
    EXPECT_EQ(script.events, "made ");
    presenter.panels.clear();
    exports->setPresenter(nullptr); // nobody to ask
    begin();
    EXPECT_TRUE(isOver());
    EXPECT_EQ(script.runs, 0);
}

TEST_F(ExportSequenceTest, OneExportAtMostRunsOnTheMainThread) {
    script.wantsPath = true;
    script.perform = [](auto&) {}; // goes on until something ends it
    begin();
    begin();
    presenter.panels.at(0).completion({"/a"});
    EXPECT_EQ(begin(), kInProgress);
    EXPECT_EQ(presenter.panels.size(), 2u);
    testing::internal::CaptureStderr();
    presenter.panels.at(1).completion({"/b"}); // asked before the first began
    EXPECT_EQ(testing::internal::GetCapturedStderr(), kInProgress);
    EXPECT_TRUE(runEventLoopUntil([&] { return script.runs == 1; }));
    presenter.panels.clear();
    exports->shouldFinishExportForManager(exports->mainQueueOperation());
    EXPECT_EQ(exports->mainQueueOperation(), nullptr);
    EXPECT_EQ(begin(), "");
}

TEST_F(ExportSequenceTest, BackgroundExportsQueueAndAreDestroyedOnTheMainThread) {
    KTLatch mayEnd;
    script.isForQueue = true;
    script.perform = [&](KTPhotoExportManager&) { mayEnd.waitWithoutServing(); };
    begin();
    begin();
    EXPECT_EQ(exports->exportQueue().operationCount(), 2u);
    EXPECT_EQ(exports->mainQueueOperation(), nullptr);
    mayEnd.signal();
    const std::string both = "made prepared made prepared destroyed destroyed ";
    EXPECT_TRUE(runEventLoopUntil([&] { return script.events == both; })) << script.events;
    EXPECT_EQ(script.runs, 2);
    EXPECT_FALSE(script.ranOnMainThread);
}

TEST_F(ExportSequenceTest, TheEndOfTheManagerEndsItsExports) {
    KTLatch running;
    std::atomic<bool> ended = false;
    script.isForQueue = true;
    script.perform = [&](KTPhotoExportManager& host) {
        running.signal();
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
        host.exportManagerShouldFinishExport();
        ended = true;
    };
    begin();
    begin(); // never starts
    running.waitWithoutServing();
    endManager();
    EXPECT_TRUE(ended);
    EXPECT_EQ(script.runs, 1);
    EXPECT_TRUE(isOver());
    EXPECT_EQ(script.events, "made prepared made prepared cancelled cancelled destroyed destroyed ");
}

TEST_F(ExportSequenceTest, AnAbsentPluginIsALineInTheLog) {
    script.isAbsent = true;
    exports->wantsPluginWithClass(pluginClass);
    testing::internal::CaptureStderr();
    exports->shouldBeginExportProcessWithPluginAtIndex(0);
    exports->shouldBeginExportProcessWithPluginAtIndex(1); // no such plug-in
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "Plugin failed to initialize! Should inform the user that the plugin is failing.\n");
    EXPECT_EQ(exports->pluginClasses().size(), 1u); // it may work another time
}
