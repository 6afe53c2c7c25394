#include "platform/desktop/KTFileDates.h"

#include "platform/desktop/KTFileDescriptor.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>

namespace {

std::optional<KTFileDate> dateOf(const std::filesystem::path& file, unsigned wanted,
                                 statx_timestamp statx::*member) {
    struct statx status = {};
    if (::statx(AT_FDCWD, file.c_str(), 0, wanted, &status) != 0 || (status.stx_mask & wanted) == 0)
        return std::nullopt;
    const statx_timestamp& time = status.*member;
    constexpr std::int64_t kLastSecond = INT64_MAX / 1'000'000'000 - 1;
    if (time.tv_sec < -kLastSecond || time.tv_sec > kLastSecond)
        return std::nullopt;
    return KTFileDate(std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec));
}

} // namespace

std::optional<KTFileDate> KTModificationDate(const std::filesystem::path& file) {
    return dateOf(file, STATX_MTIME, &statx::stx_mtime);
}

std::optional<KTFileDate> KTCreationDate(const std::filesystem::path& file) {
    return dateOf(file, STATX_BTIME, &statx::stx_btime);
}

std::optional<std::string> KTSetModificationDate(const std::filesystem::path& file, KTFileDate date) {
    auto seconds = std::chrono::floor<std::chrono::seconds>(date);
    const timespec times[] = {{0, UTIME_OMIT},
                              {seconds.time_since_epoch().count(), (date - seconds).count()}};
    if (::utimensat(AT_FDCWD, file.c_str(), times, 0) != 0)
        return KTFileErrorText("The modification date of “%@” cannot be set: %@", file, errno);
    return std::nullopt;
}
