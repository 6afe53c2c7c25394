#pragma once
#include "platform/cartography/KTGeometry.h"

#include <optional>
#include <string_view>

/// What symbols show of a feature beside its place. A plain value.
struct KTFeatureValues {
    std::optional<double> imageDirection = {}; ///< degrees clockwise from north
    std::optional<double> fieldOfView = {};    ///< degrees
    std::optional<KTMapPoint> placeShown = {}; ///< what a picture shows
    bool isProvisional = false;                ///< the feature's place is not saved yet
    unsigned pointType = 0;                    ///< of a candidate location: where it comes from

    /// Whether there is a value for the property by which a rule asks.
    bool hasValueForKey(std::string_view key) const {
        return (key == "imageDirection" && imageDirection) || (key == "fieldOfView" && fieldOfView) ||
               (placeShown && (key == "latitudeShown" || key == "longitudeShown"));
    }
    bool operator==(const KTFeatureValues&) const = default;
};
