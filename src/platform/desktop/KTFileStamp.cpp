#include "platform/desktop/KTFileStamp.h"

#include <sys/stat.h>

std::optional<KTFileStamp> KTFileStamp::of(const std::filesystem::path& path) {
    struct stat status = {};
    if (::stat(path.c_str(), &status) != 0)
        return std::nullopt;
    auto nanoseconds = [](const timespec& time) { return time.tv_sec * 1'000'000'000 + time.tv_nsec; };
    return KTFileStamp{status.st_dev, status.st_ino, static_cast<std::uint64_t>(status.st_size),
                       nanoseconds(status.st_mtim), nanoseconds(status.st_ctim)};
}
