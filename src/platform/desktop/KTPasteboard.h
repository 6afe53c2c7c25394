#pragma once
#include "platform/common/KTValue.h"

#include <filesystem>

/// What a drag or a copy carries. A value type.
struct KTPasteboard {
    /// Property lists by type ("com.apple.MediaLibrary.PBoardType.MediaObjectIdentifiersPlist").
    std::map<std::string, KTValue, std::less<>> propertyLists = {};
    std::vector<std::filesystem::path> files = {};
};
