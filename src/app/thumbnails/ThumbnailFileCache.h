#pragma once
#include "app/thumbnails/ThumbnailSize.h"

#include <QImage>
#include <filesystem>
#include <optional>

/// The thumbnails that the user's programs share, by the freedesktop.org Thumbnail Managing Standard: a PNG
/// file a picture, named by its address, valid while the picture has the modification time noted in it. What
/// cannot be read or written is as if it were not there. Any thread; also several programs at once.
class ThumbnailFileCache {
public:
    /// thumbnails in the user's cache folder.
    static std::filesystem::path userFolder();
    explicit ThumbnailFileCache(std::filesystem::path cacheFolder = userFolder())
        : folder(std::move(cacheFolder)) {}

    /// The thumbnail of that size, or a larger one made smaller; null where there is none that is valid.
    QImage load(const std::filesystem::path& file, ThumbnailSize size) const;
    /// Keeps @p thumbnail, which is turned as the photo says.
    void store(const std::filesystem::path& file, ThumbnailSize size, const QImage& thumbnail) const;
    /// Whether this program failed to make a thumbnail of the file as it is now.
    bool hasFailed(const std::filesystem::path& file) const;
    void noteFailure(const std::filesystem::path& file) const;

private:
    std::filesystem::path placeOf(const std::filesystem::path& file, const char* subfolder) const;
    void write(const std::filesystem::path& file, const std::filesystem::path& place, QImage image) const;

    const std::filesystem::path folder;
};
