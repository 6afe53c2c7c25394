#pragma once
#include "export/KTExportProgressWindow.h"
#include "export/KTPhotoExportPluginManager.h"
#include "platform/presentation/KTMenu.h"

/// The menu "Share", which lists the export plug-ins. Observable under "exportMenu". Main thread.
class KTPhotoExportPluginMenuController : public KTObservable {
public:
    /// Outlives the controller.
    void setPhotoExportPluginManager(KTPhotoExportPluginManager* manager) {
        photoExportPluginManager = manager;
    }
    /// Adds the item that shows and hides that window; null for none. Outlives the controller.
    void setProgressWindowController(KTExportProgressWindow* window);

    /// Follows the plug-in manager, which must be set, and makes the menu.
    void setup();
    /// Follows nothing any more, and tears down the progress window.
    void tearDown();

    /// Nothing while there is no plug-in. Items carry the place of their class as tag.
    const std::optional<KTMenuItem>& exportMenu() const { return menu; }
    void updateMenu();
    /// Puts the menu where it belongs: before the last one.
    void insertIntoMainMenu(KTMenu& mainMenu) const;

private:
    KTPhotoExportPluginManager* photoExportPluginManager = nullptr;
    KTExportProgressWindow* progressWindowController = nullptr;
    std::optional<KTMenuItem> menu;
    Observation plugins, progressWindow;
};
