#include "platform/desktop/KTFileDates.h"

#include "platform/common/KTCalendar.h"
#include "platform/desktop/KTFileDescriptor.h"

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>

namespace {

constexpr std::int64_t kLastSecond = INT64_MAX / 1'000'000'000 - 1; // that a KTFileDate can hold, either way
constexpr const char* kCreationDate = "user.waymark.creation-date";

std::optional<KTFileDate> keptCreationDate(const std::filesystem::path& file) {
    std::array<char, 64> buffer = {};
    const ssize_t size = ::getxattr(file.c_str(), kCreationDate, buffer.data(), buffer.size());
    if (size <= 0)
        return std::nullopt;
    const std::string_view text(buffer.data(), static_cast<std::size_t>(size));
    const auto reading = KTDateComponents::dateComponentsWithString(text);
    const auto date = reading ? KTCalendar(KTTimeZone::utc()).dateFromComponents(*reading) : std::nullopt;
    // What was not written by KTSetCreationDate may mean anything.
    if (!date || KTISO8601Text(*date) != text ||
        std::chrono::abs(date->time_since_epoch()) > std::chrono::seconds(kLastSecond))
        return std::nullopt;
    return *date;
}

std::optional<KTFileDate> dateOf(const std::filesystem::path& file, unsigned wanted,
                                 statx_timestamp statx::*member) {
    struct statx status = {};
    if (::statx(AT_FDCWD, file.c_str(), 0, wanted, &status) != 0 || (status.stx_mask & wanted) == 0)
        return std::nullopt;
    const statx_timestamp& time = status.*member;
    if (time.tv_sec < -kLastSecond || time.tv_sec > kLastSecond)
        return std::nullopt;
    return KTFileDate(std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec));
}

} // namespace

std::optional<KTFileDate> KTModificationDate(const std::filesystem::path& file) {
    return dateOf(file, STATX_MTIME, &statx::stx_mtime);
}

std::optional<KTFileDate> KTCreationDate(const std::filesystem::path& file) {
    auto kept = keptCreationDate(file);
    return kept ? kept : dateOf(file, STATX_BTIME, &statx::stx_btime);
}

std::optional<KTFileDate> KTFileDateFromInstant(KTInstant instant) {
    const KTInstant earliest = std::chrono::sys_days(std::chrono::year(1678) / 1 / 1);
    const KTInstant end = std::chrono::sys_days(std::chrono::year(2262) / 1 / 1);
    return instant >= earliest && instant < end ? std::optional<KTFileDate>(instant) : std::nullopt;
}

KTCreationDateOutcome KTSetCreationDate(const std::filesystem::path& file, KTFileDate date) {
    const auto wanted = std::chrono::floor<std::chrono::seconds>(date);
    if (keptCreationDate(file) == wanted)
        return {};
    const std::string text = KTISO8601Text(wanted);
    if (::setxattr(file.c_str(), kCreationDate, text.data(), text.size(), 0) == 0)
        return {};
    const int error = errno;
    const auto current = KTCreationDate(file);
    if (current && std::chrono::floor<std::chrono::seconds>(*current) == wanted)
        return {}; // the file system says so by itself
    if (error == ENOTSUP || error == ENOSYS)
        return {KTCreationDateOutcome::NoPlace,
                KTFileErrorText("There is no place to keep the creation date of “%@”: %@", file, error)};
    return {KTCreationDateOutcome::Failed,
            KTFileErrorText("The creation date of “%@” cannot be kept: %@", file, error)};
}

std::optional<std::string> KTSetModificationDate(const std::filesystem::path& file, KTFileDate date) {
    auto seconds = std::chrono::floor<std::chrono::seconds>(date);
    const timespec times[] = {{0, UTIME_OMIT},
                              {seconds.time_since_epoch().count(), (date - seconds).count()}};
    if (::utimensat(AT_FDCWD, file.c_str(), times, 0) != 0)
        return KTFileErrorText("The modification date of “%@” cannot be set: %@", file, errno);
    return std::nullopt;
}
