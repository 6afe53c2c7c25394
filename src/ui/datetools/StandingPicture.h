#pragma once
#include <QImage>
#include <QPointF>

/// A picture that stands on a floor which mirrors it. Sizes are device pixels. A value type; any thread.
struct StandingPicture {
    QImage image;   ///< the picture and, below it, its reflection
    int height = 0; ///< of the picture alone

    static StandingPicture of(const QImage& picture);

    struct View {
        QImage image;
        QPoint origin; ///< of the image, from the place in front at which the middle of the picture stands
    };
    /// As it is seen by an eye @p eyeLevel above the floor and @p distance away. @p turn -1…1: from facing
    /// right to facing left; @p scale of the size that it has in front. One that @p isAtRest is drawn with
    /// more care.
    View seen(double turn, double scale, int eyeLevel, double distance, bool isAtRest) const;
};
