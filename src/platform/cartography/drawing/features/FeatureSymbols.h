#pragma once
#include <QImage>
#include <QPointF>
#include <map>

class QPainter;

/// What features look like, light and dark. Draws in logical pixels; for one drawing, on one thread.
class FeatureSymbols {
public:
    /// A ball is filled, or an open ring where the place is not saved yet.
    struct Ball {
        bool isSelected = false, isProvisional = false;
        auto operator<=>(const Ball&) const = default;
    };
    // Sizes, in logical pixels, also for finding what lies under the pointer
    static constexpr double kBallRadius = 7;
    static constexpr double kWedgeRadius = 76;
    static constexpr double kFlagHeight = 26;       ///< from the point to the top, in whatever direction
    static constexpr double kMargin = kWedgeRadius; ///< no symbol reaches further from its feature
    static double clusterRadius(std::size_t count);

    FeatureSymbols(bool isDarkMap, double devicePixelRatio) : isDark(isDarkMap), ratio(devicePixelRatio) {}

    void drawBall(QPainter& painter, QPointF centre, Ball ball);
    /// On the rim of a ball; @p direction in degrees clockwise from north.
    void drawFinger(QPainter& painter, QPointF centre, double direction, Ball ball) const;
    /// The part of the surroundings that a picture shows; both in degrees.
    void drawWedge(QPainter& painter, QPointF centre, double direction, double fieldOfView) const;
    void drawStar(QPainter& painter, QPointF centre) const;
    /// Where one of a cluster's features is.
    void drawDot(QPainter& painter, QPointF centre, Ball ball);
    /// The number of features put together, and how many of them are selected; round for a cluster, like a
    /// pile of prints for features at one place.
    void drawCluster(QPainter& painter, QPointF centre, std::size_t count, std::size_t selected) const;
    void drawStack(QPainter& painter, QPointF centre, std::size_t count, std::size_t selected) const;
    /// The flag of a candidate location of a type, turned clockwise about its foot by @p rotation radians.
    void drawFlag(QPainter& painter, QPointF foot, unsigned pointType, double rotation);
    void setLinePen(QPainter& painter) const; ///< of lines from pictures to what they show

private:
    const QImage& sprite(int kind, double radius, const auto& paint);
    void drawSprite(QPainter& painter, QPointF centre, const QImage& image) const;
    void drawCount(QPainter& painter, QPointF centre, std::size_t count, std::size_t selected) const;

    const bool isDark;
    const double ratio;
    std::map<int, QImage> sprites;
};
