#include "export/KTPhotoExportPluginMenuController.h"
#include "tests/export/ExportFixture.h"

namespace {

struct ProgressWindow final : KTExportProgressWindow {
    std::string toggleWindowDescription() const override {
        return isShown ? "Hide Export List" : "Show Export List";
    }
    void toggleWindow() override {
        willChange("toggleWindowDescription");
        isShown = !isShown;
        didChange("toggleWindowDescription");
    }
    void tearDown() override { isTornDown = true; }

    bool isShown = false, isTornDown = false;
};

class PluginMenuTest : public ExportFixture {
protected:
    std::string titles() const {
        if (!menu.exportMenu())
            return "no menu";
        std::string all = menu.exportMenu()->title + ':';
        for (const KTMenuItem& item : menu.exportMenu()->submenu)
            all += ' ' + (item.isSeparator() ? "-" : item.title + '/' + std::to_string(item.tag));
        return all;
    }

    KTPhotoExportPluginMenuController menu;
    ProgressWindow window;
};

} // namespace

TEST_F(PluginMenuTest, ListsThePluginsAndTheProgressWindow) {
    menu.setPhotoExportPluginManager(exports.get());
    menu.setup();
    menu.setProgressWindowController(&window);
    EXPECT_EQ(titles(), "no menu");
    KTMenu mainMenu = {{.title = "File"}, {.title = "Window"}, {.title = "Help"}};
    menu.insertIntoMainMenu(mainMenu);
    EXPECT_EQ(mainMenu.size(), 3u);

    plugins->importPluginsAtPaths({bundle("import/B.ktplugin", 1)});
    EXPECT_EQ(titles(), "Share: B/0 - Show Export List/0");
    menu.insertIntoMainMenu(mainMenu);
    ASSERT_EQ(mainMenu.size(), 4u);
    EXPECT_EQ(mainMenu[2].title, "Share");

    plugins->importPluginsAtPaths({bundle("import/A.ktplugin", 2)});
    mainMenu[2].submenu[2].action(); // of a menu that is open since before
    EXPECT_EQ(titles(), "Share: B/0 A/1 - Hide Export List/0");
    menu.setProgressWindowController(nullptr);
    EXPECT_EQ(titles(), "Share: B/0 A/1");

    menu.setProgressWindowController(&window);
    menu.tearDown();
    EXPECT_TRUE(window.isTornDown);
    window.toggleWindow();
    EXPECT_EQ(titles(), "Share: B/0 A/1 - Hide Export List/0");
}

TEST_F(PluginMenuTest, AnItemStandsForItsPluginWhateverBecomesOfTheList) {
    bundle("program/First.ktplugin", 1, "PluginOfAnotherVersion");
    bundle("program/Second.ktplugin", 2);
    menu.setPhotoExportPluginManager(exports.get());
    menu.setup();
    loadAll();
    const KTMenuItem open = menu.exportMenu().value();
    testing::internal::CaptureStderr();
    open.submenu[0].action(); // cannot be used and goes
    testing::internal::GetCapturedStderr();
    EXPECT_EQ(titles(), "Share: Second/0");
    EXPECT_TRUE(presenter.panels.empty());
    open.submenu[1].action();
    EXPECT_EQ(presenter.panels.size(), 1u);
}
