#include "platform/cartography/drawing/KTLabelPlacement.h"

#include <algorithm>
#include <cmath>

/// The box in pixels of the map, its left edge within the first world.
QRectF KTLabelPlacement::onMap(KTWorldPoint anchor, const QRectF& box) const {
    QRectF placed = box.translated(anchor.x * worldSize, anchor.y * worldSize);
    placed.moveLeft(placed.left() - std::floor(placed.left() / worldSize) * worldSize);
    return placed;
}

/// Calls @p visit with every cell that the box touches, and with the box as that cell's world has it, until
/// it returns false. Whether it never did.
template<class Visit>
bool KTLabelPlacement::visitCells(const QRectF& box, Visit visit) const {
    const auto row = [](double y) { return static_cast<std::int64_t>(std::floor(y / kCellHeight)); };
    const int worlds = std::max(1, static_cast<int>(std::ceil(box.right() / worldSize)));
    for (int world = 0; world < worlds; ++world) {
        const QRectF here = box.translated(-world * worldSize, 0);
        const double left = std::max(here.left(), 0.0), right = std::min(here.right(), worldSize);
        for (auto column = static_cast<std::int64_t>(left / kCellWidth); column * kCellWidth < right;
             ++column)
            for (std::int64_t y = row(here.top()); y <= row(here.bottom()); ++y)
                if (!visit(static_cast<std::uint64_t>(column) << 32 | static_cast<std::uint32_t>(y), here))
                    return false;
    }
    return true;
}

bool KTLabelPlacement::isFree(KTWorldPoint anchor, const QRectF& box) const {
    return visitCells(onMap(anchor, box), [this](std::uint64_t cell, const QRectF& here) {
        const auto found = cells.find(cell);
        return found == cells.end() || std::ranges::none_of(found->second, [&](const QRectF& other) {
                   return other.intersects(here);
               });
    });
}

bool KTLabelPlacement::take(KTWorldPoint anchor, const QRectF& box) {
    if (!isFree(anchor, box))
        return false;
    occupy(anchor, box);
    return true;
}

void KTLabelPlacement::occupy(KTWorldPoint anchor, const QRectF& box) {
    visitCells(onMap(anchor, box), [this](std::uint64_t cell, const QRectF& here) {
        cells[cell].push_back(here);
        return true;
    });
}
