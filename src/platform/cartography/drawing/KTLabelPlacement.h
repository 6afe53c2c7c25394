#pragma once
#include "platform/cartography/KTMapProjection.h"

#include <QRectF>
#include <unordered_map>
#include <vector>

/// Finds room for texts on a map whose world is of one size, so that no two meet. What finds room does not
/// depend on any view: texts stay where they are while the map is panned. Nor does anything meet while the
/// map grows, because the box of each text contains the point that it belongs to. For one thread.
class KTLabelPlacement {
public:
    /// @p size: the width of the world in logical pixels.
    explicit KTLabelPlacement(double size) : worldSize(size) {}

    /// Takes @p box, in logical pixels around @p anchor, if it is free; whether it was. Boxes across the 180°
    /// meridian meet those on its other side.
    bool take(KTWorldPoint anchor, const QRectF& box);
    bool isFree(KTWorldPoint anchor, const QRectF& box) const;
    /// Takes the box whether or not it is free.
    void occupy(KTWorldPoint anchor, const QRectF& box);

private:
    static constexpr double kCellWidth = 128, kCellHeight = 32;
    template<class Visit>
    bool visitCells(const QRectF& box, Visit visit) const;
    QRectF onMap(KTWorldPoint anchor, const QRectF& box) const;

    const double worldSize;
    std::unordered_map<std::uint64_t, std::vector<QRectF>> cells;
};
