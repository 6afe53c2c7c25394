#include "platform/desktop/KTFileAttributes.h"

#include "platform/common/KTText.h"

#include <algorithm>
#include <cerrno>
#include <string>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace {

constexpr const char* kAccessControlList = "system.posix_acl_access";

/// Whether @p error says that the file system has no such thing, or that only others may set it.
bool isBeyondReach(int error) {
    return error == EPERM || error == ENOTSUP || error == ENOSYS;
}

/// Whether @p to has the group of @p from in the end.
bool copyOwnership(const struct stat& from, const struct stat& to, int toFile) {
    if (from.st_uid == to.st_uid && from.st_gid == to.st_gid)
        return true;
    if (::fchown(toFile, from.st_uid, from.st_gid) == 0)
        return true;
    return from.st_gid == to.st_gid || ::fchown(toFile, static_cast<uid_t>(-1), from.st_gid) == 0;
}

int copyPermissions(mode_t mode, bool groupIsKept, int toFile) {
    mode_t permissions = mode & 0777;
    if (!groupIsKept)
        permissions &= ~static_cast<mode_t>(070) | ((permissions & 07) << 3);
    return ::fchmod(toFile, permissions) == 0 || isBeyondReach(errno) ? 0 : errno;
}

/// The names of all attributes of @p file, each with a zero byte behind it, into @p names; 0 or an error
/// number.
int listAttributes(int file, std::string& names) {
    for (;;) {
        ssize_t size = ::flistxattr(file, nullptr, 0);
        if (size > 0) {
            names.resize(static_cast<std::size_t>(size));
            size = ::flistxattr(file, names.data(), names.size());
        }
        const int error = size < 0 ? errno : 0;
        if (error == ERANGE) // the list has grown meanwhile
            continue;
        names.resize(static_cast<std::size_t>(std::max<ssize_t>(size, 0)));
        return isBeyondReach(error) ? 0 : error;
    }
}

/// Takes an access control list from a file that may have none; 0 or an error number.
int removeAccessControlList(int file) {
    const bool isGone = ::fremovexattr(file, kAccessControlList) == 0 || errno == ENODATA ||
                        errno == EINVAL || isBeyondReach(errno);
    return isGone ? 0 : errno;
}

int copyAttribute(const std::string& name, int from, int to) {
    ssize_t size = ::fgetxattr(from, name.c_str(), nullptr, 0);
    std::string value(size > 0 ? static_cast<std::size_t>(size) : 0, '\0');
    if (size > 0)
        size = ::fgetxattr(from, name.c_str(), value.data(), value.size());
    if (size < 0) // removed meanwhile, or not for us to read
        return errno == ENODATA || isBeyondReach(errno) ? 0 : errno;
    value.resize(static_cast<std::size_t>(size));
    return ::fsetxattr(to, name.c_str(), value.data(), value.size(), 0) == 0 || isBeyondReach(errno) ? 0
                                                                                                     : errno;
}

} // namespace

int KTCopyFileAttributes(int from, int to) {
    struct stat source = {}, destination = {};
    if (::fstat(from, &source) != 0 || ::fstat(to, &destination) != 0)
        return errno;
    const bool groupIsKept = copyOwnership(source, destination, to);
    std::string names;
    if (int error = listAttributes(from, names))
        return error;
    // The user's attributes come first: permissions without writing would forbid them.
    for (const std::string& name : KTSplit(names, '\0'))
        if (name.starts_with("user."))
            if (int error = copyAttribute(name, from, to))
                return error;
    // A list that the folder gave to the new file would otherwise hold beside the permissions.
    if (int error = removeAccessControlList(to))
        return error;
    if (int error = copyPermissions(source.st_mode, groupIsKept, to))
        return error;
    return groupIsKept ? copyAttribute(kAccessControlList, from, to) : 0;
}
