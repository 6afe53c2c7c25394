#pragma once
#include "platform/cartography/KTGeometry.h"

#include <vector>

/// A line through points, in their order.
class KTMultiPointGeometry : public KTGeometry {
public:
    explicit KTMultiPointGeometry(std::vector<KTMapPoint> line) : linePoints(std::move(line)) {}

    std::span<const KTMapPoint> points() const override { return linePoints; }

private:
    const std::vector<KTMapPoint> linePoints;
};
