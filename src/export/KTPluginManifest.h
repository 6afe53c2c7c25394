#pragma once
#include "export/KTPluginError.h"

#include <filesystem>
#include <variant>

/// What a bundle says of itself in its file manifest.json, which is all that start-up reads of it. A value
/// type.
struct KTPluginManifest {
    std::string uuid; ///< in small letters, without braces
    std::string name;
    std::filesystem::path icon;    ///< full path; empty for none
    std::filesystem::path library; ///< full path

    /// Reads and checks the manifest of the folder @p bundle: all entries there and of their kinds, of this
    /// version of the interfaces, the library there and within the bundle. Any thread.
    static std::variant<KTPluginManifest, KTPluginError> ofBundle(const std::filesystem::path& bundle);
};
