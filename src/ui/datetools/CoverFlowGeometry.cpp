#include "ui/datetools/CoverFlowGeometry.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double kProportions = 1.5;           // the widest that pictures usually are
constexpr double kTop = 0.07, kFloor = 0.80;   // parts of the height; below lies the reflection
constexpr double kGap = 0.70, kSpacing = 0.21; // parts of the largest picture's width
constexpr double kScaleBehind = 0.80;

} // namespace

CoverFlowGeometry::CoverFlowGeometry(QSize strip)
    : middle(strip.width() / 2.0), baseline(std::round(strip.height() * kFloor)) {
    const int height = std::max(1, int(std::round(strip.height() * (kFloor - kTop))));
    const int width = std::max(1, std::min(int(height * kProportions), int(strip.width() * 0.6)));
    largest = {width, height};
    spacing = std::max(1.0, width * kSpacing);
    picturesToEachSide = std::max(0, int(std::ceil((middle - width * kGap) / spacing)) + 2);
}

CoverFlowGeometry::Place CoverFlowGeometry::placeAt(double distance) const {
    const double turn = std::clamp(distance, -1.0, 1.0);
    const double offset = turn * largest.width() * kGap + (distance - turn) * spacing;
    return {middle + offset, turn, 1 - (1 - kScaleBehind) * std::abs(turn)};
}
