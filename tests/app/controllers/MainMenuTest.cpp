#include "datetools/KTDateToolsWindowController.h"
#include "geotagging/KTTimeZoneHUDController.h"
#include "tests/app/controllers/AppWorld.h"

#include <set>

namespace {

KTMenu menuOf(AppWorld& world) {
    return world.app.mainMenu()->mainMenu();
}

} // namespace

TEST(MainMenuTest, HasUniqueCommandsAndShortcutsAndNoneOfWhatIsMissing) {
    AppWorld world;
    world.start();
    std::set<std::string> identifiers, shortcuts;
    std::string titles;
    for (const KTMenuItem& menu : menuOf(world)) {
        titles += menu.title + "|";
        ASSERT_FALSE(menu.submenu.empty()) << menu.title;
        EXPECT_FALSE(menu.submenu.front().isSeparator()) << menu.title;
        EXPECT_FALSE(menu.submenu.back().isSeparator()) << menu.title;
        for (const KTMenuItem& item : menu.submenu) {
            if (item.isSeparator())
                continue;
            EXPECT_TRUE(item.action) << item.title;
            EXPECT_TRUE(identifiers.insert(item.identifier).second) << item.identifier;
            EXPECT_TRUE(item.shortcut.empty() || shortcuts.insert(item.shortcut).second) << item.shortcut;
        }
    }
    EXPECT_EQ(titles, "File|Edit|Photo|View|Window|Help|");
    for (const char* missing : {"toggleMetadataTagViewer", "customizeMetadataTagViewer",
                                "toggleDateAndTimeShifter", "toggleMediaBrowser"})
        EXPECT_FALSE(identifiers.contains(missing)) << missing;
    for (const char* present :
         {"loadPhotosFromFiles", "loadTracksFromFile", "toggleMap", "togglePreferencesWindow"})
        EXPECT_TRUE(identifiers.contains(present)) << present;
}

TEST(MainMenuTest, OpensAndSwitchesTheDateTools) {
    AppWorld world;
    world.ui.hasDateTools = true;
    world.start();
    EXPECT_EQ(world.ui.dateToolWindows, 1);
    WaymarkMainMenu& menu = *world.app.mainMenu();
    const std::pair<const char*, unsigned> steps[] = {{"toggleDateAndTimeShifter", 0},
                                                      {"toggleDateAndTimeCopier", 2},
                                                      {"toggleDateAndTimeSetter", 1},
                                                      {"toggleDateAndTimeSetter", 4}};
    for (const auto& [command, tool] : steps) {
        EXPECT_TRUE(menu.performCommand(command));
        EXPECT_EQ(world.app.dateToolsWindowController()->selectedDateTool(), tool) << command;
        EXPECT_EQ(menu.itemWithIdentifier(command)->isChecked, tool != 4) << command;
    }
    world.app.waymarkWindowController()->timeZoneHUDController()->openDateAndTimeShifter();
    EXPECT_EQ(world.app.dateToolsWindowController()->selectedDateTool(), 0u);
}

TEST(MainMenuTest, FollowsSelectionUndoPanesAndPlugins) {
    AppWorld world;
    world.start();
    WaymarkMainMenu& menu = *world.app.mainMenu();
    auto isEnabled = [&](const char* identifier) { return menu.itemWithIdentifier(identifier)->isEnabled; };
    int announced = 0;
    auto observation = menu.observe([&](const KTChange& change) { announced += !change.isPrior; });
    EXPECT_TRUE(runEventLoopUntil([&] { return announced > 0; }));
    EXPECT_FALSE(isEnabled("removeSelectedPhotos") || isEnabled("undo") || isEnabled("writeChangedTags"));
    EXPECT_FALSE(menu.performCommand("undo"));
    EXPECT_FALSE(menu.performCommand("noSuchCommand"));

    world.app.importFilesAtPaths({makePhoto(world.folder, "a.jpg")});
    ASSERT_TRUE(world.waitForPhotos(1));
    announced = 0;
    EXPECT_TRUE(menu.performCommand("selectAllPhotos"));
    EXPECT_TRUE(runEventLoopUntil([&] { return announced > 0; }));
    EXPECT_TRUE(isEnabled("removeSelectedPhotos"));
    EXPECT_FALSE(isEnabled("removeGPSTags"));

    const auto photo = world.manager.photos()->front();
    photo->setValueForKey("latitude", KTDecimal::fromInteger(1));
    photo->setValueForKey("longitude", KTDecimal::fromInteger(1));
    EXPECT_TRUE(runEventLoopUntil(
        [&] { return isEnabled("removeGPSTags") && isEnabled("writeChangedTags") && isEnabled("undo"); }));
    EXPECT_TRUE(menu.itemWithIdentifier("undo")->title.starts_with("Undo Edit "));
    EXPECT_TRUE(menu.performCommand("undo"));
    EXPECT_TRUE(runEventLoopUntil([&] { return isEnabled("redo"); }));

    EXPECT_EQ(menu.itemWithIdentifier("toggleMap")->isChecked, true);
    announced = 0;
    EXPECT_TRUE(menu.performCommand("toggleMap"));
    EXPECT_TRUE(runEventLoopUntil([&] { return announced > 0; }));
    EXPECT_EQ(menu.itemWithIdentifier("toggleMap")->isChecked, false);
    EXPECT_FALSE(world.app.waymarkWindowController()->isPaneShown(WaymarkPane::MapView));
}
