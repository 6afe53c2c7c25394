#pragma once
#include <compare>

/// Which square of the Web Mercator world a tile shows: at zoom z the world has 2^z by 2^z of them, x counted
/// from 180° west, y from the north.
struct KTTileAddress {
    int z = 0, x = 0, y = 0;
    bool isHighResolution = false; ///< drawn for a screen with twice the pixels

    static constexpr int kLargestZoom = 24;

    bool exists() const {
        return z >= 0 && z <= kLargestZoom && x >= 0 && y >= 0 && x < (1 << z) && y < (1 << z);
    }
    /// The tile that contains this one, @p levels zooms lower; at most z.
    KTTileAddress ancestor(int levels) const {
        return {z - levels, x >> levels, y >> levels, isHighResolution};
    }
    auto operator<=>(const KTTileAddress&) const = default;
};
