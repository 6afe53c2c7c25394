#pragma once
#include "platform/common/KTLocalizedString.h"

#include <QString>
#include <filesystem>

/// A text of the program, in the user's language.
inline QString uiText(std::string_view english) {
    return QString::fromStdString(KTLocalizedString(english));
}

/// @p text as buttons and menus take it, for which a lone ampersand underlines the letter after it.
inline QString uiTitle(std::string_view text) {
    return QString::fromUtf8(text.data(), qsizetype(text.size())).replace('&', "&&");
}

/// A path for display; bytes that are not UTF-8 show as replacement characters.
inline QString uiPath(const std::filesystem::path& path) {
    return QString::fromUtf8(path.native().c_str(), qsizetype(path.native().size()));
}
