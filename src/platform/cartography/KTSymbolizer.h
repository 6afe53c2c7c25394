#pragma once
#include <variant>

/// The ways in which a feature is drawn; the map layer knows what each looks like and takes what it needs to
/// know from the feature. Plain values.

/// A ball at the feature's place.
struct KTShinyBallSymbolizer {
    bool operator==(const KTShinyBallSymbolizer&) const = default;
};

/// A finger on the rim of the ball that points in the direction in which a picture was taken.
struct KTCompassFingerSymbolizer {
    bool operator==(const KTCompassFingerSymbolizer&) const = default;
};

/// The geodesic from the feature's place to the place that it shows.
struct KTGeodesicLineSymbolizer {
    bool operator==(const KTGeodesicLineSymbolizer&) const = default;
};

/// A wedge from the feature's place that covers the field of view.
struct KTPieWedgeSymbolizer {
    bool operator==(const KTPieWedgeSymbolizer&) const = default;
};

/// A star that marks a selected feature.
struct KTStarSymbolizer {
    bool operator==(const KTStarSymbolizer&) const = default;
};

/// A flag at a candidate location, by where that comes from; under the pointer it opens a bubble that tells
/// of the candidate.
struct KTLinkablePointSmartSymbolizer {
    bool operator==(const KTLinkablePointSmartSymbolizer&) const = default;
};

using KTSymbolizer = std::variant<KTShinyBallSymbolizer, KTCompassFingerSymbolizer, KTGeodesicLineSymbolizer,
                                  KTPieWedgeSymbolizer, KTStarSymbolizer, KTLinkablePointSmartSymbolizer>;
