#pragma once
#include "platform/observing/KTObservable.h"
#include "platform/presentation/KTMenu.h"

#include <memory>
#include <optional>
#include <string_view>

class WaymarkAppController;
struct WaymarkCommand;

/// The menu bar as data: menus, items, shortcuts, what is enabled and checked now. Commands for parts that do
/// not exist are absent. Main thread.
///
/// "mainMenu" is announced once for all changes of a turn of the event loop. Each item has an identifier that
/// stays, so that buttons and the menu's own actions can follow the item instead of being made anew.
class WaymarkMainMenu : public KTObservable {
public:
    /// @p application must outlive the menu.
    explicit WaymarkMainMenu(WaymarkAppController& application);
    ~WaymarkMainMenu() override;

    /// Follows what the menu depends on: selection, undo, panes, plug-ins. Again after each making of the
    /// main window.
    void setup();

    /// The menu bar as it is now: an item with a submenu for each menu.
    KTMenu mainMenu() const;
    /// The item of that identifier ("loadPhotosFromFiles"), as it is now; nothing when it is absent.
    std::optional<KTMenuItem> itemWithIdentifier(std::string_view identifier) const;
    /// Does what the item does; false when it is absent or not enabled.
    bool performCommand(std::string_view identifier);

private:
    bool isPresent(const WaymarkCommand& command) const;
    KTMenuItem itemOf(const WaymarkCommand& command) const;
    void announceSoon();

    WaymarkAppController& app;
    bool isAnnouncementDue = false;
    std::vector<Observation> observations;
    const std::shared_ptr<WaymarkMainMenu*> self; // for what is posted
};
