#include "export/KTPhotoExportProgressWindowController.h"
#include "platform/concurrency/KTLatch.h"
#include "tests/app/controllers/AppWorld.h"
#include "tests/export/ScriptedPlugin.h"

#include <QCoreApplication>

TEST(ExportsAtTheEnd, SurviveAClosedWindowAndAreAskedAbout) {
    Script script;
    KTLatch goOn;
    script.isForQueue = true;
    script.perform = [&](KTPhotoExportManager&) {
        goOn.wait();
        const std::lock_guard guard(script.mutex);
        script.conclusion = "Exported nothing.";
    };
    const struct Rest {
        ~Rest() { QCoreApplication::processEvents(); }
    } rest; // what is posted at the end still holds the plug-in
    AppWorld world;
    world.start();
    auto& list = *world.app.photoExportProgressWindowController();
    world.app.photoExportPluginManager()->shouldBeginExportProcessWithPlugin(
        std::make_shared<ScriptedClass>(script));
    EXPECT_TRUE(list.isWindowVisible());
    EXPECT_EQ(world.app.applicationShouldTerminate(), WaymarkAppController::TerminateReply::Later);
    world.app.quit(); // while it is asked
    ASSERT_EQ(world.ui.asked.alerts.size(), 1u);
    EXPECT_EQ(world.ui.asked.alerts[0].buttons, (std::vector<std::string>{"Stop Export & Quit", "Cancel"}));
    world.ui.asked.alerts[0].completion(1);
    EXPECT_EQ(world.ui.terminations, 0);

    world.app.waymarkWindowController()->setWindowVisible(false);
    ASSERT_TRUE(runEventLoopUntil([&] { return world.app.waymarkWindowController() == nullptr; }));
    EXPECT_FALSE(list.isWindowVisible());
    world.app.quit();
    ASSERT_EQ(world.ui.asked.alerts.size(), 2u);
    goOn.signal();
    const auto& history = list.photoExportOperationController();
    ASSERT_TRUE(runEventLoopUntil([&] { return history.exportOperationPluginMap().empty(); }));
    EXPECT_EQ(history.exportOperations().back()->resultDescription, "Exported nothing.");
    world.ui.asked.alerts[1].completion(0);
    EXPECT_EQ(world.ui.terminations, 1);
    EXPECT_EQ(world.app.applicationShouldTerminate(), WaymarkAppController::TerminateReply::Now);
}
