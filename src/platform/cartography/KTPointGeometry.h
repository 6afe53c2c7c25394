#pragma once
#include "platform/cartography/KTGeometry.h"

/// A single point.
class KTPointGeometry final : public KTGeometry {
public:
    explicit KTPointGeometry(KTMapPoint position) : place(position) {}

    KTMapPoint point() const { return place; }
    std::span<const KTMapPoint> points() const override { return {&place, 1}; }

private:
    const KTMapPoint place;
};
