#pragma once
#include <cstdint>
#include <filesystem>
#include <optional>

/// Tells whether a file is still the one that was looked at. Every write and every replacement changes it,
/// and so does a change of the file's rights or attributes, which costs no more than a look too many. Two
/// writes of equal length within one step of the file system's clock (some milliseconds) look alike.
struct KTFileStamp {
    std::uint64_t device = 0, file = 0, size = 0;
    std::int64_t modified = 0, changed = 0; ///< nanoseconds, to be compared only

    /// Nothing when the file is not there. A symbolic link stands for the file it leads to. Any thread.
    static std::optional<KTFileStamp> of(const std::filesystem::path& path);
    bool operator==(const KTFileStamp&) const = default;
};
