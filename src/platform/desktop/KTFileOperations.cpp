#include "platform/desktop/KTFileOperations.h"

#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTText.h"
#include "platform/desktop/KTFileAttributes.h"
#include "platform/desktop/KTFileDescriptor.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kCannotCopy = "“%@” cannot be copied: %@";
constexpr std::string_view kCannotCreate = "“%@” cannot be created: %@";
constexpr std::string_view kCannotReplace = "“%@” cannot be replaced: %@";

bool writeAll(int file, const char* data, std::size_t size) {
    while (size > 0) {
        ssize_t written = ::write(file, data, size);
        if (written < 0 && errno == EINTR)
            continue;
        if (written < 0)
            return false;
        data += written;
        size -= static_cast<std::size_t>(written);
    }
    return true;
}

/// Copies what is left of @p from by reading and writing; false with errno set.
bool copyByHand(int from, int to) {
    std::vector<char> buffer(1 << 18);
    for (;;) {
        ssize_t size = ::read(from, buffer.data(), buffer.size());
        if (size < 0 && errno == EINTR)
            continue;
        if (size <= 0)
            return size == 0;
        if (!writeAll(to, buffer.data(), static_cast<std::size_t>(size)))
            return false;
    }
}

/// Copies the content within the kernel (sharing it where the file system can), else by hand.
bool copyContent(int from, int to) {
    for (;;) {
        ssize_t size = ::copy_file_range(from, nullptr, to, nullptr, 1 << 30, 0);
        if (size < 0 && errno == EINTR)
            continue;
        if (size <=
            0) // some file systems report an end where there is content, others an error: reading decides
            return copyByHand(from, to);
    }
}

/// Some file systems keep no order of their own for folders and refuse to be asked.
int bringFolderToDisk(const fs::path& folder) {
    KTFileDescriptor opened(folder.empty() ? "." : folder, O_RDONLY | O_DIRECTORY);
    if (!opened.isOpen())
        return errno == EACCES ? 0 : errno; // a folder that may be written but not read
    if (::fsync(opened.get()) == 0 || errno == EINVAL || errno == ENOTSUP)
        return 0;
    return errno;
}

/// Fills the new file @p to; 0 or an error number.
int fillCopy(int from, KTFileDescriptor& to) {
    if (!copyContent(from, to.get()))
        return errno;
    // Only the content counts here: a stick that takes no attributes still holds a good copy.
    static_cast<void>(KTCopyFileAttributes(from, to.get()));
    struct stat status = {};
    if (::fstat(from, &status) != 0)
        return errno;
    const timespec times[] = {{0, UTIME_OMIT}, status.st_mtim};
    static_cast<void>(::futimens(to.get(), times));
    return ::fsync(to.get()) == 0 && to.close() ? 0 : errno;
}

/// Prepares @p temporary to take the place of @p original; 0 or an error number.
int takeOver(const fs::path& original, int temporary) {
    // Opening would follow a link or wait for a pipe that took the file's place since it was looked at.
    KTFileDescriptor old(original, O_RDONLY | O_NOFOLLOW | O_NONBLOCK);
    if (!old.isOpen())
        return errno;
    return KTCopyFileAttributes(old.get(), temporary);
}

} // namespace

std::optional<std::string> KTCopyItem(const fs::path& source, const fs::path& destination) {
    KTFileDescriptor from(source, O_RDONLY | O_NONBLOCK);
    struct stat status = {};
    if (!from.isOpen() || ::fstat(from.get(), &status) != 0)
        return KTFileErrorText(kCannotCopy, source, errno);
    if (!S_ISREG(status.st_mode))
        return KTFileErrorText(kCannotCopy, source, S_ISDIR(status.st_mode) ? EISDIR : EINVAL);
    // Nobody else may look into the copy before it has the original's permissions.
    KTFileDescriptor to(destination, O_WRONLY | O_CREAT | O_EXCL, 0600);
    if (!to.isOpen())
        return KTFileErrorText(kCannotCreate, destination, errno);
    int error = fillCopy(from.get(), to);
    if (error == 0)
        error = bringFolderToDisk(destination.parent_path());
    if (error == 0)
        return std::nullopt;
    ::unlink(destination.c_str());
    return KTFileErrorText(kCannotCreate, destination, error);
}

std::optional<std::string> KTReplaceItem(const fs::path& target, const fs::path& temporary,
                                         const std::function<bool()>& mayReplace) {
    const fs::path original = KTLinkTarget(target);
    KTFileDescriptor newFile(temporary, O_RDONLY | O_NOFOLLOW);
    if (!newFile.isOpen())
        return KTFileErrorText(kCannotReplace, target, errno);
    struct stat status = {};
    const bool exists = ::lstat(original.c_str(), &status) == 0;
    int error = exists || errno == ENOENT ? 0 : errno;
    if (exists && !S_ISREG(status.st_mode))
        error = S_ISDIR(status.st_mode) ? EISDIR : EINVAL;
    else if (exists && ::faccessat(AT_FDCWD, original.c_str(), W_OK, AT_EACCESS) != 0)
        error = errno;
    else if (exists)
        error = takeOver(original, newFile.get());
    if (error == 0 && ::fsync(newFile.get()) != 0)
        error = errno;
    if (error == 0 && mayReplace && !mayReplace())
        return KTStringWithFormat(KTLocalizedString("“%@” was changed by another program."),
                                  {KTValidUTF8(target.string())});
    if (error == 0 && ::rename(temporary.c_str(), original.c_str()) != 0)
        error = errno;
    if (error != 0)
        return KTFileErrorText(kCannotReplace, target, error);
    if ((error = bringFolderToDisk(original.parent_path())) != 0)
        return KTFileErrorText("“%@” was replaced, but may not be on disk yet: %@", target, error);
    return std::nullopt;
}

fs::path KTBackupName(const fs::path& folder, const fs::path& name) {
    fs::path candidate = name;
    std::error_code error;
    // A link that leads nowhere takes the name too.
    for (unsigned long number = 1;
         fs::symlink_status(folder / candidate, error).type() != fs::file_type::not_found && !error;
         ++number) {
        candidate = name.stem();
        candidate += "-" + std::to_string(number);
        candidate += name.extension();
    }
    return candidate;
}

fs::path KTLinkTarget(const fs::path& path) {
    constexpr int kMaximumLinks = 40; // as the kernel follows
    fs::path current = path;
    for (int links = 0; links < kMaximumLinks; ++links) {
        std::error_code error;
        fs::path next = fs::read_symlink(current, error);
        if (error)
            return current;
        current = current.parent_path() / next; // an absolute one stands for itself
    }
    return current;
}
