#pragma once
#include "platform/cartography/drawing/tiles/KTTileAddress.h"
#include "platform/cartography/drawing/tiles/KTTileSource.h"
#include "platform/cartography/drawing/tiles/StoredTile.h"

#include <filesystem>
#include <mutex>
#include <optional>

/// Tiles on disk, one file each, of all sources together no more than a number of bytes: those that were not
/// used for longest make room. Several processes may share the folder. Nothing that happens to the files is
/// an error: a tile that cannot be read is not there, one that cannot be written is asked for again. Any
/// thread.
class TileDiskCache {
public:
    /// waymark/tiles in the user's cache folder.
    static std::filesystem::path userFolder();

    /// Keeps tiles of @p source in @p cacheFolder, which is made when the first is written; an empty one
    /// keeps none.
    TileDiskCache(std::filesystem::path cacheFolder, const KTTileSource& source, std::uintmax_t largestSize);

    std::optional<StoredTile> read(const KTTileAddress& tile) const;
    void write(const KTTileAddress& tile, const StoredTile& stored);
    void remove(const KTTileAddress& tile);

private:
    std::filesystem::path fileFor(const KTTileAddress& tile) const;
    void makeRoom();

    const std::filesystem::path folder, folderOfSource;
    const std::uintmax_t capacity;
    std::mutex mutex;                   // guards what follows
    std::optional<std::uintmax_t> size; // nothing before it has been counted
};
