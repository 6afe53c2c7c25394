#pragma once
#include <optional>
#include <string>
#include <vector>

/// A circle around a place that no export may tell. A value type.
struct KTPrivacyZone {
    double latitude = 0, longitude = 0; ///< degrees
    double radius = 0;                  ///< metres, more than 0
    std::string name = {};

    /// "46.05108 14.50513 500 Home", as the settings keep it; the name may be missing. Nothing for a text
    /// that is none.
    static std::optional<KTPrivacyZone> fromText(const std::string& text);
    std::string text() const;
};

/// The circles that the user has drawn. Positions inside them leave the program with no export. A value type.
class KTPrivacyZones {
public:
    /// Those of the setting "exportPrivacyZones".
    static KTPrivacyZones ofUser();

    bool empty() const { return zones.empty(); }
    const std::vector<KTPrivacyZone>& all() const { return zones; }
    /// Whether the position, in degrees, lies in one of them.
    bool contain(double latitude, double longitude) const;
    /// The first entry of the setting that cannot be read: nothing located may be exported then.
    const std::optional<std::string>& unreadable() const { return problem; }

private:
    std::vector<KTPrivacyZone> zones;
    std::optional<std::string> problem;
};
