#include "platform/cartography/drawing/tiles/TileMemory.h"

std::size_t TileMemory::sizeOf(const Tile& tile) {
    return sizeof(Entry) + std::size_t(tile.image.sizeInBytes());
}

const TileMemory::Tile* TileMemory::find(const KTTileAddress& address) {
    const auto found = byAddress.find(address);
    if (found == byAddress.end())
        return nullptr;
    entries.splice(entries.begin(), entries, found->second);
    return &entries.front().tile;
}

const TileMemory::Tile* TileMemory::peek(const KTTileAddress& address) const {
    const auto found = byAddress.find(address);
    return found == byAddress.end() ? nullptr : &found->second->tile;
}

void TileMemory::put(const KTTileAddress& address, Tile tile) {
    size += sizeOf(tile);
    if (const auto found = byAddress.find(address); found != byAddress.end()) {
        size -= sizeOf(found->second->tile);
        found->second->tile = std::move(tile);
        entries.splice(entries.begin(), entries, found->second);
    } else {
        entries.push_front({address, std::move(tile)});
        byAddress[address] = entries.begin();
    }
    while (size > capacity && entries.size() > smallestCount) {
        size -= sizeOf(entries.back().tile);
        byAddress.erase(entries.back().address);
        entries.pop_back();
    }
}

void TileMemory::forgetAll() {
    entries.clear();
    byAddress.clear();
    size = 0;
}
