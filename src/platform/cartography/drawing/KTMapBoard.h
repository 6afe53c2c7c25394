#pragma once
#include "platform/cartography/drawing/KTMapPalette.h"

#include <QFont>
#include <QPainter>

/// The small boards in the corners of a map, on which its scale and whom it owes thanks stand.
class KTMapBoard {
public:
    enum class Corner { LowerLeft, LowerRight };
    static constexpr double kDistance = 10; ///< from the view's edges, logical pixels

    static QFont font();
    /// Draws an empty board for content of @p size in a corner of a view of @p viewSize; returns where the
    /// content goes.
    static QRectF draw(QPainter& painter, const QSizeF& viewSize, Corner corner, const QSizeF& size,
                       const KTMapPalette& palette);
};
