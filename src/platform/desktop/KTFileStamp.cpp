#include "platform/desktop/KTFileStamp.h"

#include <sys/stat.h>

std::optional<KTFileStamp> KTFileStamp::of(const std::filesystem::path& path) {
    struct stat status = {};
    if (::stat(path.c_str(), &status) != 0)
        return std::nullopt;
    // Unsigned: a date far beyond our time wraps around, which serves as well.
    auto nanoseconds = [](const timespec& time) {
        return static_cast<std::int64_t>(static_cast<std::uint64_t>(time.tv_sec) * 1'000'000'000 +
                                         static_cast<std::uint64_t>(time.tv_nsec));
    };
    return KTFileStamp{status.st_dev, status.st_ino, static_cast<std::uint64_t>(status.st_size),
                       nanoseconds(status.st_mtim), nanoseconds(status.st_ctim)};
}
