#pragma once
#include <string>
#include <string_view>

/// The text that users see for @p key in their language, else @p english. The one look-up of display texts;
/// safe on every thread. Translations come from the application's installed translators, context "Waymark",
/// source text = key.
std::string KTLocalizedString(std::string_view key, std::string_view english);

/// For texts that are their own key.
std::string KTLocalizedString(std::string_view english);
