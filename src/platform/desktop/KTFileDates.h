#pragma once
#include <chrono>
#include <filesystem>
#include <optional>
#include <string>

/// A date of a file, as the file system keeps it.
using KTFileDate = std::chrono::sys_time<std::chrono::nanoseconds>;

/// When the content of @p file was last changed; nothing when the file cannot be asked or the date lies
/// outside the years 1678 to 2261. A symbolic link stands for the file it leads to. Any thread.
std::optional<KTFileDate> KTModificationDate(const std::filesystem::path& file);

/// When @p file came to be (its birth time); nothing as above or when the file system keeps none. No Linux
/// file system lets a program set it, and a file that was replaced has the birth time of its replacement.
std::optional<KTFileDate> KTCreationDate(const std::filesystem::path& file);

/// Gives @p file the modification date @p date; the file system may cut it to its own steps. Returns an error
/// text, nothing when done.
std::optional<std::string> KTSetModificationDate(const std::filesystem::path& file, KTFileDate date);
