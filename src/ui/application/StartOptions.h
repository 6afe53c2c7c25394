#pragma once
#include "platform/presentation/KTManualPage.h"

#include <filesystem>
#include <optional>

/// The arguments of the desktop application.
struct StartOptions {
    std::vector<std::filesystem::path> files; ///< absolute
    std::filesystem::path exifToolFolder;     ///< empty for the setting's
    std::optional<std::string> answer;  ///< what to print instead of starting: help, version, manual page
    std::optional<std::string> mistake; ///< what is wrong with the arguments

    static StartOptions of(int argc, char** argv);
    /// What the application says of its arguments.
    static KTManualPage manual();
};
