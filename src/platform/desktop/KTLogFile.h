#pragma once
#include <filesystem>
#include <string>
#include <string_view>

/// @p line without what tells of the user and the user's photos: what stands in quotes, paths, addresses,
/// positions (numbers of more than two decimal places). Each becomes "…".
std::string KTWithoutPrivateParts(std::string_view line);

/// The file that keeps the lines of the log beyond the program's end, with instants (UTC). Lines come without
/// their private parts, unless the environment variable WAYMARK_LOG is "full". Once the file has grown to
/// half a megabyte it becomes "NAME.1", in place of the one that had that name, and a new one begins.
class KTLogFile {
public:
    static constexpr std::size_t kLargest = 512 * 1024; ///< bytes

    /// The user's: "waymark.log" in the state folder.
    static std::filesystem::path userFile();
    /// From now on all lines of the log are kept in @p file, also those of the toolkit; its folder is made
    /// where it is missing. False when nothing can be written there. Once, at the program's start.
    static bool keepLogIn(const std::filesystem::path& file);
    /// Only into the file, not to standard error. Any thread.
    static void note(std::string_view line);
};
