#include "export/KTPhotoExportPluginMenuController.h"

#include "platform/common/KTLocalizedString.h"

void KTPhotoExportPluginMenuController::setProgressWindowController(KTExportProgressWindow* window) {
    progressWindowController = window;
    progressWindow.stop();
    if (window != nullptr)
        progressWindow = window->observe([this](const KTChange& change) {
            if (change.key == "toggleWindowDescription" && !change.isPrior)
                updateMenu();
        });
    updateMenu();
}

void KTPhotoExportPluginMenuController::setup() {
    plugins = photoExportPluginManager->observe([this](const KTChange& change) {
        if (change.key == "pluginClasses" && !change.isPrior)
            updateMenu();
    });
    updateMenu();
}

void KTPhotoExportPluginMenuController::tearDown() {
    plugins.stop();
    progressWindow.stop();
    if (progressWindowController != nullptr)
        progressWindowController->tearDown();
}

void KTPhotoExportPluginMenuController::updateMenu() {
    willChange("exportMenu");
    menu.reset();
    if (photoExportPluginManager != nullptr && !photoExportPluginManager->pluginClasses().empty()) {
        menu = KTMenuItem{.title = KTLocalizedString("Share")};
        for (const auto& pluginClass : photoExportPluginManager->pluginClasses())
            menu->submenu.push_back(
                {.title = pluginClass->name(),
                 // The class, not its place: the list may change while the menu is open.
                 .action = [manager = photoExportPluginManager,
                            pluginClass] { manager->shouldBeginExportProcessWithPlugin(pluginClass); },
                 .tag = static_cast<long>(menu->submenu.size())});
        if (progressWindowController != nullptr) {
            menu->submenu.push_back(KTMenuItem::separator());
            menu->submenu.push_back(
                {.title = progressWindowController->toggleWindowDescription(),
                 .action = [window = progressWindowController] { window->toggleWindow(); }});
        }
    }
    didChange("exportMenu");
}

void KTPhotoExportPluginMenuController::insertIntoMainMenu(KTMenu& mainMenu) const {
    if (menu)
        mainMenu.insert(mainMenu.empty() ? mainMenu.end() : mainMenu.end() - 1, *menu);
}
