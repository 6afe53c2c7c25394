#pragma once
#include "platform/common/KTInstant.h"

#include <filesystem>
#include <optional>
#include <string>

/// A date of a file, as the file system keeps it.
using KTFileDate = std::chrono::sys_time<std::chrono::nanoseconds>;

/// When the content of @p file was last changed; nothing when the file cannot be asked or the date lies
/// outside the years 1678 to 2261. A symbolic link stands for the file it leads to. Any thread.
std::optional<KTFileDate> KTModificationDate(const std::filesystem::path& file);

/// When @p file came to be: the date that KTSetCreationDate kept with it, else the file system's birth time,
/// which no Linux file system lets a program set and which begins anew when a file is replaced. Nothing when
/// neither is known.
std::optional<KTFileDate> KTCreationDate(const std::filesystem::path& file);

/// @p instant as a date of a file; nothing for one that KTFileDate cannot tell.
std::optional<KTFileDate> KTFileDateFromInstant(KTInstant instant);

/// What became of a wish that a file may have a certain creation date.
struct KTCreationDateOutcome {
    enum Kind { Kept, NoPlace, Failed } kind = Kept;
    std::string text; ///< why not, for users
};

/// Keeps @p date, in whole seconds, as the creation date of @p file: in its extended attribute
/// "user.waymark.creation-date", as ISO 8601 text in UTC, for want of a file system that takes it as its own.
/// `NoPlace` where the file system has no such attributes.
KTCreationDateOutcome KTSetCreationDate(const std::filesystem::path& file, KTFileDate date);

/// Gives @p file the modification date @p date; the file system may cut it to its own steps. Returns an error
/// text, nothing when done.
std::optional<std::string> KTSetModificationDate(const std::filesystem::path& file, KTFileDate date);
