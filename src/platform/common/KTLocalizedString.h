#pragma once
#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

/// The text that users see for @p key in their language, else @p english. The one look-up of display texts;
/// safe on every thread. A translation of the key is taken first, then one of the English text.
std::string KTLocalizedString(std::string_view key, std::string_view english);

/// For texts that are their own key.
std::string KTLocalizedString(std::string_view english);

/// The text for @p count things: @p one for one of them in English, @p several otherwise, with its "%d" or
/// "%lu" filled; other placeholders stay for the caller. A translation holds the plural forms of @p several.
std::string KTLocalizedCount(std::string_view one, std::string_view several, std::size_t count);

/// For texts that are the same for every count in English.
std::string KTLocalizedCount(std::string_view several, std::size_t count);

/// Lets all look-ups take translations from @p file (.qm, context "Waymark", source text = key or English
/// text); an empty path means English. False, and no change, when it cannot be read. To be called at the
/// program's start, before there is a second thread; a translation once loaded is kept, so that a look-up
/// under way ends well.
bool KTUseTranslation(const std::filesystem::path& file);
