// The C library's file functions, as far as a save comes by them. This program's definitions are found before
// the library's, by its shared libraries too; they hand on to it what no plan lets fail.
//
// How the list came about: `strace -f -y` of a save in each of the ways that PhotoSavingFaultsTest.cpp knows
// shows which system calls concern a path or a descriptor below the photo's folder, `nm -D --undefined-only`
// under which names this program, libstdc++ and libperl ask the C library for them; each such name is here,
// and its nearest siblings. Left out are calls that cannot fail on an open file (isatty, fcntl, lseek but to
// the end, which asks the server on a network's disk). What the C library calls within itself does not pass
// here (mkdir of mkdtemp, open of fopen, unlink and rmdir of remove); those functions themselves do.

#include "tests/photo/faults/FaultDecision.h"

#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <dirent.h>
#include <dlfcn.h>
#include <sys/stat.h>
#include <sys/uio.h>
#include <sys/xattr.h>
#include <unistd.h>

#define HOOK extern "C" __attribute__((visibility("default")))
/// The library's own function.
#define REAL(name) static const auto real = reinterpret_cast<decltype(&::name)>(::dlsym(RTLD_NEXT, #name))

namespace {

bool opensForWriting(int flags) {
    return (flags & O_ACCMODE) != O_RDONLY || (flags & O_CREAT) != 0;
}

bool isOpenForWriting(int file) {
    return opensForWriting(::fcntl(file, F_GETFL));
}

/// Fails as planned, or does what @p real does.
template<class Real>
auto pass(const char* call, const FilePlace& place, bool changes, const Real& real) -> decltype(real()) {
    if (const FaultDecision decision = decideOn(call, place, changes); decision.error != 0) {
        errno = decision.error;
        if constexpr (std::is_pointer_v<decltype(real())>)
            return nullptr;
        else
            return -1;
    }
    return real();
}

} // namespace

// Opening, reading, writing

/// The mode that follows @p flags in the arguments of an open that may create.
#define MODE_AFTER(flags)                                                                                    \
    mode_t mode = 0;                                                                                         \
    if ((flags & O_CREAT) != 0 || (flags & O_TMPFILE) == O_TMPFILE) {                                        \
        va_list more;                                                                                        \
        va_start(more, flags);                                                                               \
        mode = va_arg(more, mode_t);                                                                         \
        va_end(more);                                                                                        \
    }

#define HOOK_OPEN(name)                                                                                      \
    HOOK int name(const char* path, int flags, ...) {                                                        \
        REAL(name);                                                                                          \
        MODE_AFTER(flags)                                                                                    \
        return pass("open", path, opensForWriting(flags), [&] { return real(path, flags, mode); });          \
    }
HOOK_OPEN(open)
HOOK_OPEN(open64)

#define HOOK_OPENAT(name)                                                                                    \
    HOOK int name(int folder, const char* path, int flags, ...) {                                            \
        REAL(name);                                                                                          \
        MODE_AFTER(flags)                                                                                    \
        return pass("openat", {folder, path}, opensForWriting(flags),                                        \
                    [&] { return real(folder, path, flags, mode); });                                        \
    }
HOOK_OPENAT(openat)
HOOK_OPENAT(openat64)

/// What checked builds call for an open without mode.
HOOK int __open64_2(const char* path, int flags) {
    return open64(path, flags);
}

#define HOOK_FOPEN(name)                                                                                     \
    HOOK FILE* name(const char* path, const char* mode) {                                                    \
        REAL(name);                                                                                          \
        return pass("fopen", path, *mode != 'r', [&] { return real(path, mode); });                          \
    }
HOOK_FOPEN(fopen)
HOOK_FOPEN(fopen64)

HOOK ssize_t read(int file, void* data, size_t size) {
    REAL(read);
    return pass("read", file, false, [&] { return real(file, data, size); });
}

HOOK ssize_t write(int file, const void* data, size_t size) {
    REAL(write);
    const FaultDecision decision = decideOn("write", file, true);
    if (decision.error == 0)
        return real(file, data, decision.half ? size / 2 : size);
    errno = decision.error;
    return -1;
}

HOOK ssize_t writev(int file, const iovec* parts, int count) {
    REAL(writev);
    return pass("writev", file, true, [&] { return real(file, parts, count); });
}

HOOK ssize_t copy_file_range(int from, off64_t* fromPlace, int to, off64_t* toPlace, size_t size,
                             unsigned flags) {
    REAL(copy_file_range);
    return pass("copy_file_range", to, true, [&] { return real(from, fromPlace, to, toPlace, size, flags); });
}

#define HOOK_LSEEK(name)                                                                                     \
    HOOK off_t name(int file, off_t offset, int from) noexcept {                                             \
        REAL(name);                                                                                          \
        if (from != SEEK_END)                                                                                \
            return real(file, offset, from);                                                                 \
        return pass("lseek", file, false, [&] { return real(file, offset, from); });                         \
    }
HOOK_LSEEK(lseek)
HOOK_LSEEK(lseek64)

/// A file is closed also when that fails.
HOOK int close(int file) {
    REAL(close);
    const FaultDecision decision = decideOn("close", file, isWatchingFiles && isOpenForWriting(file));
    const int result = real(file);
    if (decision.error == 0)
        return result;
    errno = decision.error;
    return -1;
}

/// Nothing is lost in a test for want of it, and much time is won: it is not handed on.
HOOK int fsync(int file) {
    return pass("fsync", file, true, [] { return 0; });
}

#define HOOK_TRUNCATE(name)                                                                                  \
    HOOK int name(int file, off_t size) noexcept {                                                           \
        REAL(name);                                                                                          \
        return pass("ftruncate", file, true, [&] { return real(file, size); });                              \
    }
HOOK_TRUNCATE(ftruncate)
HOOK_TRUNCATE(ftruncate64)

// Names

HOOK int rename(const char* from, const char* to) noexcept {
    REAL(rename);
    return pass("rename", to, true, [&] { return real(from, to); });
}

HOOK int link(const char* from, const char* to) noexcept {
    REAL(link);
    return pass("link", to, true, [&] { return real(from, to); });
}

HOOK int unlink(const char* path) noexcept {
    REAL(unlink);
    return pass("unlink", path, true, [&] { return real(path); });
}

HOOK int unlinkat(int folder, const char* path, int flags) noexcept {
    REAL(unlinkat);
    return pass("unlinkat", {folder, path}, true, [&] { return real(folder, path, flags); });
}

HOOK int remove(const char* path) noexcept {
    REAL(remove);
    return pass("remove", path, true, [&] { return real(path); });
}

HOOK int rmdir(const char* path) noexcept {
    REAL(rmdir);
    return pass("rmdir", path, true, [&] { return real(path); });
}

HOOK int mkdir(const char* path, mode_t mode) noexcept {
    REAL(mkdir);
    return pass("mkdir", path, true, [&] { return real(path, mode); });
}

HOOK char* mkdtemp(char* pattern) noexcept {
    REAL(mkdtemp);
    return pass("mkdtemp", pattern, true, [&] { return real(pattern); });
}

HOOK ssize_t readlink(const char* path, char* target, size_t size) noexcept {
    REAL(readlink);
    return pass("readlink", path, false, [&] { return real(path, target, size); });
}

HOOK DIR* opendir(const char* path) {
    REAL(opendir);
    return pass("opendir", path, false, [&] { return real(path); });
}

HOOK DIR* fdopendir(int file) {
    REAL(fdopendir);
    return pass("fdopendir", file, false, [&] { return real(file); });
}

HOOK dirent* readdir(DIR* folder) {
    REAL(readdir);
    return pass("readdir", ::dirfd(folder), false, [&] { return real(folder); });
}

// What is known of a file

#define HOOK_STAT(name, type, call)                                                                          \
    HOOK int name(const char* path, type* status) noexcept {                                                 \
        REAL(name);                                                                                          \
        return pass(call, path, false, [&] { return real(path, status); });                                  \
    }
HOOK_STAT(stat, struct stat, "stat")
HOOK_STAT(stat64, struct stat64, "stat")
HOOK_STAT(lstat, struct stat, "lstat")
HOOK_STAT(lstat64, struct stat64, "lstat")

#define HOOK_FSTAT(name, type)                                                                               \
    HOOK int name(int file, type* status) noexcept {                                                         \
        REAL(name);                                                                                          \
        return pass("fstat", file, false, [&] { return real(file, status); });                               \
    }
HOOK_FSTAT(fstat, struct stat)
HOOK_FSTAT(fstat64, struct stat64)

HOOK int statx(int folder, const char* path, int flags, unsigned mask, struct statx* status) noexcept {
    REAL(statx);
    return pass("statx", {folder, path}, false, [&] { return real(folder, path, flags, mask, status); });
}

HOOK int access(const char* path, int mode) noexcept {
    REAL(access);
    return pass("access", path, false, [&] { return real(path, mode); });
}

HOOK int faccessat(int folder, const char* path, int mode, int flags) noexcept {
    REAL(faccessat);
    return pass("faccessat", {folder, path}, false, [&] { return real(folder, path, mode, flags); });
}

HOOK int chmod(const char* path, mode_t mode) noexcept {
    REAL(chmod);
    return pass("chmod", path, true, [&] { return real(path, mode); });
}

HOOK int fchmod(int file, mode_t mode) noexcept {
    REAL(fchmod);
    return pass("fchmod", file, true, [&] { return real(file, mode); });
}

HOOK int fchown(int file, uid_t user, gid_t group) noexcept {
    REAL(fchown);
    return pass("fchown", file, true, [&] { return real(file, user, group); });
}

HOOK int futimens(int file, const timespec times[2]) noexcept {
    REAL(futimens);
    return pass("futimens", file, true, [&] { return real(file, times); });
}

HOOK int utimensat(int folder, const char* path, const timespec times[2], int flags) noexcept {
    REAL(utimensat);
    return pass("utimensat", {folder, path}, true, [&] { return real(folder, path, times, flags); });
}

HOOK ssize_t flistxattr(int file, char* list, size_t size) noexcept {
    REAL(flistxattr);
    return pass("flistxattr", file, false, [&] { return real(file, list, size); });
}

HOOK ssize_t fgetxattr(int file, const char* name, void* value, size_t size) noexcept {
    REAL(fgetxattr);
    return pass("fgetxattr", file, false, [&] { return real(file, name, value, size); });
}

HOOK ssize_t getxattr(const char* path, const char* name, void* value, size_t size) noexcept {
    REAL(getxattr);
    return pass("getxattr", path, false, [&] { return real(path, name, value, size); });
}

HOOK int fsetxattr(int file, const char* name, const void* value, size_t size, int flags) noexcept {
    REAL(fsetxattr);
    return pass("fsetxattr", file, true, [&] { return real(file, name, value, size, flags); });
}

HOOK int setxattr(const char* path, const char* name, const void* value, size_t size, int flags) noexcept {
    REAL(setxattr);
    return pass("setxattr", path, true, [&] { return real(path, name, value, size, flags); });
}

HOOK int fremovexattr(int file, const char* name) noexcept {
    REAL(fremovexattr);
    return pass("fremovexattr", file, true, [&] { return real(file, name); });
}
