#include "app/WaymarkMainMenu.h"

#include "app/MediaBrowserWindowController.h"
#include "app/WaymarkAppController.h"
#include "app/WaymarkCommand.h"
#include "app/WaymarkWindowController.h"
#include "app/editor/KTMetadataEditorViewController.h"
#include "collection/KTPhotoManager.h"
#include "collection/KTPhotoManagerToolbarController.h"
#include "collection/KTPhotoOperationWindowController.h"
#include "collection/PhotoManagerMenuBarController.h"
#include "datetools/KTDateToolsWindowController.h"
#include "export/KTPhotoExportPluginMenuController.h"
#include "geotagging/KTAppTrackPickerController.h"
#include "platform/common/KTLocalizedString.h"
#include "platform/concurrency/KTMainThread.h"
#include "platform/undo/KTUndoManager.h"

WaymarkMainMenu::WaymarkMainMenu(WaymarkAppController& application)
    : app(application), self(std::make_shared<WaymarkMainMenu*>(this)) {}

WaymarkMainMenu::~WaymarkMainMenu() = default;

void WaymarkMainMenu::setup() {
    observations.clear();
    auto follow = [this](KTObservable& observed) {
        observations.push_back(observed.observe([this, alive = std::weak_ptr(self)](const KTChange& change) {
            if (change.isPrior)
                return;
            if (KTMainThread::isCurrent())
                announceSoon();
            else
                KTPerformOnMainThread([alive] {
                    if (const auto menu = alive.lock())
                        (*menu)->announceSoon();
                });
        }));
    };
    follow(*app.undoManager());
    follow(*app.photoManagerMenuBarController());
    follow(*app.photoOperationWindowController());
    follow(*app.dateToolsWindowController());
    follow(*app.trackPickerController());
    follow(*app.mediaBrowserWindowController());
    follow(app);
    if (app.photoExportPluginMenuController() != nullptr)
        follow(*app.photoExportPluginMenuController());
    if (WaymarkWindowController* window = app.waymarkWindowController()) {
        follow(*window);
        follow(*window->photoManagerToolbarController());
        if (window->metadataEditorViewController() != nullptr)
            follow(window->metadataEditorViewController()->selection());
    }
    announceSoon();
}

void WaymarkMainMenu::announceSoon() {
    if (std::exchange(isAnnouncementDue, true))
        return;
    KTPerformOnMainThread([alive = std::weak_ptr(self)] {
        const auto menu = alive.lock();
        if (!menu)
            return;
        (*menu)->isAnnouncementDue = false;
        (*menu)->willChange("mainMenu");
        (*menu)->didChange("mainMenu");
    });
}

KTMenuItem WaymarkMainMenu::itemOf(const WaymarkCommand& command) const {
    if (command.submenu != nullptr)
        return {.title = KTLocalizedString(command.title),
                .submenu = command.submenu(app),
                .identifier = std::string(command.identifier)};
    KTMenuItem item{.title = command.currentTitle != nullptr ? command.currentTitle(app)
                                                             : KTLocalizedString(command.title),
                    .action =
                        [this, &command] {
                            app.commitEditing();
                            (app.*command.action)();
                        },
                    .isEnabled = command.isEnabled == nullptr || command.isEnabled(app),
                    .identifier = std::string(command.identifier),
                    .shortcut = std::string(command.shortcut)};
    if (command.isChecked != nullptr)
        item.isChecked = command.isChecked(app);
    return item;
}

bool WaymarkMainMenu::isPresent(const WaymarkCommand& command) const {
    return (command.isPresent == nullptr || command.isPresent(app)) &&
           (command.submenu == nullptr || !command.submenu(app).empty());
}

KTMenu WaymarkMainMenu::mainMenu() const {
    KTMenu menus;
    for (const WaymarkCommand& command : WaymarkCommand::all()) {
        if (!isPresent(command))
            continue;
        if (command.isMenu())
            menus.push_back(
                {.title = KTLocalizedString(command.title), .identifier = std::string(command.identifier)});
        else if (!command.isSeparator())
            menus.back().submenu.push_back(itemOf(command));
        else if (!menus.back().submenu.empty() && !menus.back().submenu.back().isSeparator())
            menus.back().submenu.push_back(KTMenuItem::separator());
    }
    for (KTMenuItem& menu : menus)
        if (!menu.submenu.empty() && menu.submenu.back().isSeparator())
            menu.submenu.pop_back();
    if (app.photoExportPluginMenuController() != nullptr) {
        app.photoExportPluginMenuController()->insertIntoMainMenu(menus);
        for (KTMenuItem& menu : menus)
            for (KTMenuItem& item : menu.submenu)
                if (item.identifier.empty() && item.action)
                    item.action = [this, run = std::move(item.action)] {
                        app.commitEditing();
                        run();
                    };
    }
    return menus;
}

std::optional<KTMenuItem> WaymarkMainMenu::itemWithIdentifier(std::string_view identifier) const {
    for (const WaymarkCommand& command : WaymarkCommand::all()) {
        if (command.action != nullptr && command.identifier == identifier)
            return isPresent(command) ? std::optional(itemOf(command)) : std::nullopt;
        if (command.submenu != nullptr)
            for (KTMenuItem& item : command.submenu(app))
                if (item.identifier == identifier)
                    return std::move(item);
    }
    return std::nullopt;
}

bool WaymarkMainMenu::performCommand(std::string_view identifier) {
    const auto item = itemWithIdentifier(identifier);
    if (!item || !item->isEnabled)
        return false;
    item->action();
    return true;
}
