#include "export/KTExportedLibraryTrack.h"

namespace {

std::optional<double> toDouble(const std::optional<KTDecimal>& number) {
    return number ? std::optional(number->toDouble()) : std::nullopt;
}

} // namespace

std::vector<std::vector<KTExportedPoint>> KTExportedLibraryTrack::segments() const {
    std::vector<std::vector<KTExportedPoint>> result;
    for (const auto& segment : store.segments(track.id)) {
        bool isParted = true;
        for (const KTGeoPoint& point : segment) {
            if (!point.latitude || !point.longitude)
                continue;
            const KTExportedPoint exported{point.latitude->toDouble(), point.longitude->toDouble(),
                                           toDouble(point.elevation), point.date};
            if (zones->contain(exported.latitude, exported.longitude)) {
                isParted = true;
                continue;
            }
            if (std::exchange(isParted, false))
                result.emplace_back();
            result.back().push_back(exported);
        }
    }
    return result;
}
