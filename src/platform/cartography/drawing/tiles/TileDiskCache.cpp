#include "platform/cartography/drawing/tiles/TileDiskCache.h"

#include "platform/common/KTText.h"

#include <QCryptographicHash>
#include <QStandardPaths>
#include <atomic>
#include <cctype>
#include <charconv>
#include <fstream>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kFirstLine = "waymark tile 1";
constexpr std::size_t kLongestValidator = 300; // bytes; longer ones are not kept
constexpr std::uintmax_t kLargestFile = 16'000'000;
constexpr auto kUseIsNoted = std::chrono::hours(1); // how exactly the time of the last use is kept

/// Readable to people who look into the folder, and different for every pattern.
std::string folderNameFor(const KTTileSource& source) {
    std::string host = source.host();
    std::ranges::replace_if(
        host,
        [](char letter) {
            return !std::isalnum(static_cast<unsigned char>(letter)) && letter != '.' && letter != '-';
        },
        '_');
    const std::string identity = source.pattern + (source.countsFromSouth ? "\nsouth" : "");
    const QByteArray hash =
        QCryptographicHash::hash(QByteArray::fromStdString(identity), QCryptographicHash::Sha256)
            .toHex()
            .left(12);
    return host.substr(0, 80) + "-" + hash.toStdString();
}

std::optional<std::string> wholeFile(const fs::path& path) {
    std::error_code error;
    const std::uintmax_t size = fs::file_size(path, error);
    if (error || size > kLargestFile)
        return std::nullopt;
    std::string bytes(size, '\0');
    std::ifstream file(path, std::ios::binary);
    if (!file.read(bytes.data(), std::streamsize(size)))
        return std::nullopt;
    return bytes;
}

std::optional<std::int64_t> number(std::string_view text) {
    std::int64_t value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    return error == std::errc() && end == text.data() + text.size() ? std::optional(value) : std::nullopt;
}

/// Lines of word and value up to an empty one, then the image.
std::optional<StoredTile> tileFromBytes(std::string_view bytes) {
    StoredTile tile;
    std::optional<std::int64_t> size;
    bool isFirst = true;
    for (;; isFirst = false) {
        const std::size_t end = bytes.find('\n');
        if (end == std::string_view::npos)
            return std::nullopt;
        const std::string_view line = bytes.substr(0, end);
        bytes.remove_prefix(end + 1);
        if (isFirst && line != kFirstLine)
            return std::nullopt;
        if (line.empty())
            break;
        const std::size_t blank = line.find(' ');
        const std::string_view word = line.substr(0, blank),
                               value = line.substr(std::min(blank, line.size() - 1) + 1);
        if (word == "fresh-until")
            tile.freshUntil = KTInstantFromMilliseconds(number(value).value_or(0));
        else if (word == "etag")
            tile.etag = value;
        else if (word == "last-modified")
            tile.lastModified = value;
        else if (word == "bytes")
            size = number(value);
    }
    if (!size || *size != std::int64_t(bytes.size())) // cut short
        return std::nullopt;
    tile.content = bytes;
    return tile;
}

std::string bytesOf(const StoredTile& tile) {
    std::string bytes(kFirstLine);
    const auto add = [&](std::string_view word, const std::string& value) {
        if (!value.empty() && value.size() <= kLongestValidator && value.find('\n') == std::string::npos)
            bytes.append("\n").append(word).append(" ").append(value);
    };
    add("fresh-until", std::to_string(tile.freshUntil.time_since_epoch().count()));
    add("etag", tile.etag);
    add("last-modified", tile.lastModified);
    add("bytes", std::to_string(tile.content.size()));
    return bytes + "\n\n" + tile.content;
}

bool writeInOneStep(const fs::path& target, const std::string& bytes) {
    static std::atomic<unsigned> count = 0;
    std::error_code error;
    fs::create_directories(target.parent_path(), error);
    fs::path temporary = target;
    temporary += ".new-" + std::to_string(getpid()) + "-" + std::to_string(++count);
    std::ofstream file(temporary, std::ios::binary);
    file.write(bytes.data(), std::streamsize(bytes.size()));
    file.close();
    if (file)
        fs::rename(temporary, target, error);
    if (!file || error) {
        fs::remove(temporary, error);
        return false;
    }
    return true;
}

struct CachedFile {
    fs::file_time_type used;
    std::uintmax_t size;
    fs::path path;
};

std::vector<CachedFile> filesIn(const fs::path& folder) {
    std::vector<CachedFile> files;
    std::error_code error;
    for (fs::recursive_directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
        std::error_code gone; // by another process
        if (!entry->is_regular_file(gone))
            continue;
        CachedFile file{entry->last_write_time(gone), entry->file_size(gone), entry->path()};
        if (!gone)
            files.push_back(std::move(file));
    }
    return files;
}

std::uintmax_t sizeOf(const std::vector<CachedFile>& files) {
    std::uintmax_t sum = 0;
    for (const CachedFile& file : files)
        sum += file.size;
    return sum;
}

} // namespace

fs::path TileDiskCache::userFolder() {
    const QString cache = QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation);
    return cache.isEmpty() ? fs::path() : fs::path(cache.toStdString()) / "waymark" / "tiles";
}

TileDiskCache::TileDiskCache(fs::path cacheFolder, const KTTileSource& source, std::uintmax_t largestSize)
    : folder(std::move(cacheFolder)), folderOfSource(folder / folderNameFor(source)), capacity(largestSize) {}

fs::path TileDiskCache::fileFor(const KTTileAddress& tile) const {
    return folderOfSource / std::to_string(tile.z) / std::to_string(tile.x) /
           (std::to_string(tile.y) + (tile.isHighResolution ? "@2x" : ""));
}

std::optional<StoredTile> TileDiskCache::read(const KTTileAddress& tile) const {
    if (folder.empty())
        return std::nullopt;
    const fs::path path = fileFor(tile);
    const auto bytes = wholeFile(path);
    if (!bytes)
        return std::nullopt;
    std::error_code error;
    const auto now = fs::file_time_type::clock::now();
    if (const auto used = fs::last_write_time(path, error); !error && now - used > kUseIsNoted)
        fs::last_write_time(path, now, error);
    return tileFromBytes(*bytes);
}

void TileDiskCache::write(const KTTileAddress& tile, const StoredTile& stored) {
    if (folder.empty())
        return;
    const std::string bytes = bytesOf(stored);
    if (bytes.size() > capacity || !writeInOneStep(fileFor(tile), bytes))
        return;
    std::lock_guard guard(mutex);
    size = size ? *size + bytes.size()
                : sizeOf(filesIn(folder)); // a tile written anew counts twice until counted
    if (*size > capacity)
        makeRoom();
}

void TileDiskCache::remove(const KTTileAddress& tile) {
    std::error_code error;
    if (!folder.empty())
        fs::remove(fileFor(tile), error);
}

/// Somewhat more than is needed now, so that not every tile counts all files.
void TileDiskCache::makeRoom() {
    std::vector<CachedFile> files = filesIn(folder);
    std::ranges::sort(files, {}, &CachedFile::used);
    std::uintmax_t left = sizeOf(files);
    for (const CachedFile& file : files) {
        if (left <= capacity - capacity / 8)
            break;
        std::error_code error;
        if (fs::remove(file.path, error))
            left -= file.size;
    }
    size = left;
}
