#include "export/KTPrivacyZones.h"

#include "platform/common/KTDecimal.h"
#include "platform/common/KTText.h"
#include "platform/defaults/KTUserDefaults.h"
#include "platform/geodesy/KTGeodesy.h"

#include <algorithm>
#include <cmath>

std::optional<KTPrivacyZone> KTPrivacyZone::fromText(const std::string& text) {
    std::vector<std::string> parts = KTSplit(std::string(KTTrimmed(text)), ' ');
    std::erase(parts, "");
    double numbers[3];
    for (std::size_t i = 0; i < 3; ++i) {
        const auto number = i < parts.size() ? KTDecimal::fromText(parts[i]) : std::nullopt;
        if (!number)
            return std::nullopt;
        numbers[i] = number->toDouble();
    }
    const KTPrivacyZone zone{numbers[0], numbers[1], numbers[2],
                             KTJoin({parts.begin() + 3, parts.end()}, " ")};
    const bool isPlace = std::abs(zone.latitude) <= 90 && std::abs(zone.longitude) <= 180;
    return isPlace && zone.radius > 0 ? std::optional(zone) : std::nullopt;
}

std::string KTPrivacyZone::text() const {
    const auto decimal = [](double number, int digits) {
        return KTDecimal::fromDouble(number).rounded(digits).toText();
    };
    return KTJoin({decimal(latitude, 6), decimal(longitude, 6), decimal(radius, 0), name}, " ");
}

KTPrivacyZones KTPrivacyZones::ofUser() {
    KTPrivacyZones result;
    for (const std::string& text : KTUserDefaults::standardUserDefaults().textsForKey("exportPrivacyZones")) {
        if (auto zone = KTPrivacyZone::fromText(text))
            result.zones.push_back(std::move(*zone));
        else if (!result.problem)
            result.problem = text;
    }
    return result;
}

bool KTPrivacyZones::contain(double latitude, double longitude) const {
    return std::ranges::any_of(zones, [&](const KTPrivacyZone& zone) {
        return KTEarthDistance(zone.longitude, zone.latitude, longitude, latitude) <= zone.radius;
    });
}
