#pragma once
#include <functional>
#include <optional>
#include <string>
#include <vector>

/// One entry of a menu, as a controller publishes it and whoever has a screen shows it. A value type.
struct KTMenuItem {
    std::string title = {}; ///< in the user's language, as it is to be read; empty for a separator
    std::function<void()> action = {};
    bool isEnabled = true;
    std::vector<KTMenuItem> submenu = {};
    long tag = 0;
    std::string identifier = {}; ///< names the command, the same each time the menu is made; may be empty
    std::string shortcut = {};   ///< "Ctrl+Shift+S", in Qt's portable notation; empty for none
    std::optional<bool> isChecked = {}; ///< whether it bears a check mark; nothing for an item without one

    static KTMenuItem separator() { return {}; }
    bool isSeparator() const { return title.empty(); }
};

using KTMenu = std::vector<KTMenuItem>;
