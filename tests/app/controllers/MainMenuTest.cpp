#include "app/editor/KTMetadataEditorViewController.h"
#include "app/editor/KTMetadataFieldArrayViewItem.h"
#include "datetools/KTDateToolsWindowController.h"
#include "geotagging/KTTimeZoneHUDController.h"
#include "tests/app/controllers/AppWorld.h"

#include <QCoreApplication>
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
    for (const char* missing : {"toggleDateAndTimeShifter", "toggleMediaBrowser"})
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
    EXPECT_TRUE(runEventLoopUntil([&] { return isEnabled("deselectAllPhotos"); }))
        << "the first are selected";
    EXPECT_TRUE(menu.performCommand("deselectAllPhotos"));
    EXPECT_TRUE(runEventLoopUntil([&] { return !isEnabled("removeSelectedPhotos"); }));
    QCoreApplication::processEvents(); // what is announced of that
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

TEST(MainMenuTest, EndsWhatIsBeingTypedAndPastesCopiedTags) {
    AppWorld world;
    world.start();
    KTPhotoManager::Photos photos;
    for (const char* name : {"a.jpg", "b.jpg"}) {
        photos.push_back(KTPhoto::initWithFile(makePhoto(world.folder, name)));
        world.manager.addNewPhoto(photos.back());
    }
    WaymarkMainMenu& menu = *world.app.mainMenu();
    world.manager.setSelectedPhotos({photos[0]});
    KTMetadataEditorViewController& editor =
        *world.app.waymarkWindowController()->metadataEditorViewController();
    const auto field = world.app.metadataFieldManager().metadataFieldForKey("title")->copy();
    const auto item = editor.arrayViewItemForObject(*editor.groups().front(), field);
    item->setText("Ford");
    EXPECT_EQ(menu.itemWithIdentifier("undo")->title, "Undo Typing");
    EXPECT_TRUE(menu.itemWithIdentifier("writeChangedTags")->isEnabled);
    EXPECT_FALSE(menu.itemWithIdentifier("pasteTags")->isEnabled);
    EXPECT_TRUE(menu.performCommand("copyTags"));
    EXPECT_FALSE(item->isEditing());
    EXPECT_EQ(menu.itemWithIdentifier("undo")->title, "Undo Edit Title");

    world.manager.setSelectedPhotos({photos[1]});
    EXPECT_TRUE(menu.performCommand("pasteTags"));
    EXPECT_EQ(photos[1]->valueForKey("title"), "Ford");
    EXPECT_EQ(menu.itemWithIdentifier("undo")->title, "Undo Paste Tags");
    item->setText("Bridge");
    EXPECT_TRUE(menu.performCommand("undo"));
    EXPECT_EQ(photos[1]->valueForKey("title"), "Ford") << "the typing alone was taken back";
}

TEST(MainMenuTest, CustomizesTheMetadataPaneWithIt) {
    AppWorld world;
    world.start();
    WaymarkWindowController& window = *world.app.waymarkWindowController();
    using enum WaymarkPane;
    window.setPaneShown(MetadataView, false);
    window.setPaneShown(MetadataCustomizationView, true);
    EXPECT_TRUE(window.isPaneShown(MetadataView));
    EXPECT_TRUE(window.metadataEditorViewController()->inCustomizationMode());
    window.setPaneShown(MetadataView, false);
    EXPECT_FALSE(window.isPaneShown(MetadataCustomizationView));
    EXPECT_FALSE(window.metadataEditorViewController()->inCustomizationMode());
}
