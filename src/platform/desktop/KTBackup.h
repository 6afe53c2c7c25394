#pragma once
#include <filesystem>
#include <optional>
#include <string>

/// A copy that was made of a file.
struct KTBackup {
    std::filesystem::path file;         ///< the copy; empty when there is none
    std::optional<std::string> failure; ///< why there is none, for users

    /// Copies @p original into @p folder under the name that KTBackupName gives it. The copy appears there
    /// whole and in one step; a process that is killed leaves none. Any thread; two that take the same name
    /// at the same time do not overwrite each other, one of them fails.
    static KTBackup of(const std::filesystem::path& original, const std::filesystem::path& folder);
};
