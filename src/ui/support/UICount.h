#pragma once
#include "platform/common/KTLocalizedString.h"

#include <QString>

/// The text for @p count things in the user's language, "%d" filled; see `KTLocalizedCount`.
inline QString uiCount(std::string_view one, std::string_view several, std::size_t count) {
    return QString::fromStdString(KTLocalizedCount(one, several, count));
}
