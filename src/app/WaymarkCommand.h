#pragma once
#include "platform/presentation/KTMenu.h"

#include <span>
#include <string>
#include <string_view>

class WaymarkAppController;

/// One row of the table of the menu bar: a menu, which the rows below it belong to, an item, or a separator.
struct WaymarkCommand {
    using Action = void (WaymarkAppController::*)();
    using Question = bool (*)(const WaymarkAppController& app);

    std::string_view identifier = {}; ///< of an item the name of its action
    std::string_view title = {};      ///< English, and the key of its translation
    Action action = nullptr;          ///< null for a menu and a separator
    std::string_view shortcut = {};   ///< in Qt's portable notation
    Question isEnabled = nullptr;     ///< null for always
    Question isPresent = nullptr;     ///< null for always
    Question isChecked = nullptr;     ///< null for an item without check mark
    /// The items of a command that is a menu of its own, absent while it is empty; null for others.
    KTMenu (*submenu)(WaymarkAppController& app) = nullptr;
    std::string (*currentTitle)(const WaymarkAppController& app) = nullptr; ///< null for the title above

    bool isMenu() const { return action == nullptr && submenu == nullptr && !title.empty(); }
    bool isSeparator() const { return title.empty(); }

    static std::span<const WaymarkCommand> all();
};
