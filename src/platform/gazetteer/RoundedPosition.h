#pragma once
#include <compare>
#include <optional>
#include <string>

/// A position on a grid of 0.0001 degrees (11 m from south to north). Photos taken within a few steps mostly
/// share one, and a server learns no more of a photo's place than this.
struct RoundedPosition {
    int latitude = 0;  ///< 1/10,000 degrees, within ±900,000
    int longitude = 0; ///< 1/10,000 degrees, within [-1,800,000, 1,800,000)

    /// The nearest one to a position in degrees, the longitude wrapped; nothing for a position that does not
    /// exist.
    static std::optional<RoundedPosition> nearestTo(double latitude, double longitude);
    /// In degrees, "52.5163".
    std::string latitudeText() const;
    std::string longitudeText() const;

    auto operator<=>(const RoundedPosition&) const = default;
};
