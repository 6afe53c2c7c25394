#pragma once
#include "platform/desktop/KTFileOperations.h"

/// A place for the new version of a file while it is being written: a hidden folder ".waymark-XXXXXX" beside
/// the file (beside the file that it leads to, for a symbolic link), so on its volume, for KTReplaceItem to
/// take it from. The folder and what is in it are removed at the end of the object's life.
///
/// A process that is killed leaves its folder behind. Each folder therefore names its owner (host, run of the
/// system, process and the process's start) in a file, and the first replacement that a process makes in a
/// folder removes those folders there whose owner was of this host and user and is certainly gone, and those
/// of this user, unchanged for a day, that hold nothing or an owner's name cut off. Nothing else is ever
/// removed.
///
/// Any thread; two replacements of the same file do not meet.
class KTItemReplacement {
public:
    /// Makes the folder for a new version of @p target, which need not exist.
    explicit KTItemReplacement(const std::filesystem::path& target);
    ~KTItemReplacement();
    KTItemReplacement(const KTItemReplacement&) = delete;
    KTItemReplacement& operator=(const KTItemReplacement&) = delete;

    /// Why the folder could not be made; nothing when it was.
    const std::optional<std::string>& error() const { return failure; }
    /// Where to write the new version: a file of @p target's own name in the folder. Does not exist yet;
    /// empty after an error.
    const std::filesystem::path& temporaryItem() const { return item; }

    /// Whether @p name is that of such a folder.
    static bool isReplacementFolder(const std::filesystem::path& name);

private:
    std::filesystem::path folder;
    std::filesystem::path item;
    std::optional<std::string> failure;
};
