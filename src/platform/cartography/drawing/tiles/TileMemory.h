#pragma once
#include "platform/cartography/drawing/tiles/KTTileAddress.h"
#include "platform/common/KTInstant.h"

#include <QImage>
#include <list>
#include <map>

/// What is known of tiles in this run: their images, up to a number of bytes, and that there are none. The
/// tile that was not used for longest makes room. One thread at a time.
class TileMemory {
public:
    struct Tile {
        QImage image = {}; ///< null: none is known
        bool wasSoughtOnDisk = false;
        KTInstant askAgainFrom = {}; ///< no request before
    };

    explicit TileMemory(std::size_t largestSize) : capacity(largestSize) {}

    /// Null where nothing is known. Notes the use.
    const Tile* find(const KTTileAddress& address);
    /// The same, but is no use.
    const Tile* peek(const KTTileAddress& address) const;
    /// However large they are, this many are kept.
    void setSmallestCount(std::size_t count) { smallestCount = count; }
    void put(const KTTileAddress& address, Tile tile);
    void forgetAll();

private:
    struct Entry {
        KTTileAddress address;
        Tile tile;
    };
    static std::size_t sizeOf(const Tile& tile);

    std::size_t capacity, size = 0, smallestCount = 1;
    std::list<Entry> entries; // the one used last at the front
    std::map<KTTileAddress, std::list<Entry>::iterator> byAddress;
};
