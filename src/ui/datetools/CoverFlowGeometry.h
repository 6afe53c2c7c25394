#pragma once
#include <QRectF>
#include <QSize>

/// Where the pictures of a strip stand: the one in front upright in the middle, the others behind it to both
/// sides, turned towards it. Logical pixels. A value type.
class CoverFlowGeometry {
public:
    struct Place {
        double centre; ///< from the left
        double turn;   ///< -1 stands to the left, 0 in front, 1 to the right
        double scale;  ///< of the size in front
    };

    explicit CoverFlowGeometry(QSize strip);

    /// How large the picture in front may be.
    QSize box() const { return largest; }
    /// The height, from the top, on which the pictures stand.
    double floor() const { return baseline; }
    /// @p distance in pictures from the front, also parts of one, while they move.
    Place placeAt(double distance) const;
    /// How many pictures stand in view on each side of the one in front.
    int reach() const { return picturesToEachSide; }

private:
    double middle, baseline, spacing;
    QSize largest;
    int picturesToEachSide;
};
