#pragma once
#include <algorithm>

/// The sizes of the desktop's shared thumbnail cache, by the longer edge in pixels.
enum class ThumbnailSize : int { Normal = 128, Large = 256, ExtraLarge = 512 };

inline constexpr ThumbnailSize kThumbnailSizes[] = {ThumbnailSize::Normal, ThumbnailSize::Large,
                                                    ThumbnailSize::ExtraLarge};

constexpr int edgeOf(ThumbnailSize size) {
    return static_cast<int>(size);
}

/// The smallest size that fills @p edge pixels, or the largest one.
constexpr ThumbnailSize thumbnailSizeForEdge(int edge) {
    return edge <= 128   ? ThumbnailSize::Normal
           : edge <= 256 ? ThumbnailSize::Large
                         : ThumbnailSize::ExtraLarge;
}
