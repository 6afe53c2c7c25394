#include "export/KTPluginCopy.h"

#include "platform/desktop/KTItemReplacement.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>

namespace fs = std::filesystem;

namespace {

/// Whether the link at @p link, which lies in the folder @p root, leads to something in it from wherever that
/// folder is.
bool staysInside(const fs::path& link, const fs::path& root) {
    std::error_code error;
    if (fs::read_symlink(link, error).is_absolute() || error)
        return false;
    const fs::path target = fs::canonical(link, error);
    if (error)
        return false;
    const auto [end, ignored] = std::ranges::mismatch(root, target);
    return end == root.end();
}

bool mayBeCopied(const fs::path& root) {
    std::error_code error;
    fs::recursive_directory_iterator entry(root, error);
    for (; !error && entry != fs::recursive_directory_iterator(); entry.increment(error)) {
        const fs::file_type type = entry->symlink_status(error).type();
        const bool isPlain = type == fs::file_type::regular || type == fs::file_type::directory;
        if (!isPlain && (type != fs::file_type::symlink || !staysInside(entry->path(), root)))
            return false;
    }
    return !error;
}

/// Moves a finished copy to its name in one step, unless the name is taken.
bool moveTo(const fs::path& destination, const fs::path& finished) {
    if (::renameat2(AT_FDCWD, finished.c_str(), AT_FDCWD, destination.c_str(), RENAME_NOREPLACE) == 0)
        return true;
    // Not every file system has this step; there, whether the name is taken has been asked before.
    return errno == EINVAL && ::rename(finished.c_str(), destination.c_str()) == 0;
}

} // namespace

std::optional<fs::path> KTCopyPlugin(const fs::path& bundle, const fs::path& folder) {
    std::error_code error;
    const fs::path root = fs::canonical(bundle, error);
    if (error || !fs::is_directory(root, error) || !mayBeCopied(root))
        return std::nullopt;
    const fs::path name = bundle.has_filename() ? bundle.filename() : bundle.parent_path().filename();
    const fs::path destination = folder / name;
    if (name.extension() != kPluginExtension || fs::exists(fs::symlink_status(destination, error)))
        return std::nullopt;
    const KTItemReplacement place(destination);
    if (place.error())
        return std::nullopt;
    fs::copy(root, place.temporaryItem(), fs::copy_options::recursive | fs::copy_options::copy_symlinks,
             error);
    if (error || !moveTo(destination, place.temporaryItem()))
        return std::nullopt;
    return destination;
}
