#pragma once
#include <filesystem>
#include <string>

/// Why a plug-in bundle is not used. A value type.
struct KTPluginError {
    enum Code {
        NoManifest = 1,
        DamagedManifest = 2,
        OtherVersion = 3,
        NoLibrary = 4,
        DamagedLibrary = 5,
        Threw = 6,
    };

    Code code = NoManifest;
    std::string userInfo = {};      ///< the bundle, and what a library of others says about it
    std::string failureReason = {}; ///< one sentence

    /// For a catch block: what the operation @p throwing of the plug-in @p plugin has thrown.
    static KTPluginError ofCurrentException(const std::filesystem::path& plugin, std::string_view throwing);
    /// Writes it to the system log.
    void log() const;
};
