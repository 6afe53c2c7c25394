#pragma once
#include <functional>
#include <string>
#include <vector>

/// One entry of a menu, as a controller publishes it and whoever has a screen shows it. A value type.
struct KTMenuItem {
    std::string title = {}; ///< in the user's language; empty for a separator
    std::function<void()> action = {};
    bool isEnabled = true;
    std::vector<KTMenuItem> submenu = {};
    long tag = 0;

    static KTMenuItem separator() { return {}; }
    bool isSeparator() const { return title.empty(); }
};

using KTMenu = std::vector<KTMenuItem>;
