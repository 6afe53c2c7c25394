#include "export/KTExportedLibraryTrack.h"

namespace {

std::optional<double> toDouble(const std::optional<KTDecimal>& number) {
    return number ? std::optional(number->toDouble()) : std::nullopt;
}

} // namespace

std::vector<std::vector<KTExportedPoint>> KTExportedLibraryTrack::segments() const {
    std::vector<std::vector<KTExportedPoint>> result;
    for (const auto& segment : store.segments(track.id)) {
        auto& points = result.emplace_back();
        for (const KTGeoPoint& point : segment)
            if (point.latitude && point.longitude)
                points.push_back({point.latitude->toDouble(), point.longitude->toDouble(),
                                  toDouble(point.elevation), point.date});
    }
    return result;
}
