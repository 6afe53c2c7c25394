#pragma once
#include "platform/common/KTDecimal.h"

#include <optional>
#include <string>
#include <string_view>

/// A position as people write it. A value type; degrees, WGS 84.
struct KTCoordinates {
    enum class Notation {
        Decimal,               ///< 46.05108, 14.50513
        DegreesMinutes,        ///< 46° 3.0648′ N, 14° 30.3078′ E
        DegreesMinutesSeconds, ///< 46° 3′ 3.89″ N, 14° 30′ 18.47″ E
        GeoLink,               ///< geo:46.05108,14.50513
    };

    KTDecimal latitude, longitude;

    /// Reads a whole text that holds one position and nothing else but labels ("lat", "longitude"): a pair of
    /// decimal numbers; degrees with minutes and seconds; hemisphere letters N, S, E, W before or after the
    /// numbers (not O, which is east in some languages and west in others); a "geo:" link (RFC 5870, WGS 84,
    /// of which altitude and parameters are left out); a web address that carries a position as maps' do
    /// ("@46.05,14.5", "mlat=46.05&mlon=14.5", "#map=9/46.05/14.5", "q=46.05,14.5"). Latitude comes first
    /// where nothing says otherwise. Numbers may have a decimal comma where that leaves no doubt
    /// ("46,05 14,5", "46,05; 14,5").
    ///
    /// Nothing for any other text: where numbers are left over, contradict their letters or marks, lie beyond
    /// ±90 and ±180, or where there are two ways to read it. Texts beyond 2,000 bytes are none. Any thread.
    static std::optional<KTCoordinates> fromText(std::string_view text);
    /// One latitude or longitude alone, in the same notations.
    static std::optional<KTDecimal> latitudeFromText(std::string_view text);
    static std::optional<KTDecimal> longitudeFromText(std::string_view text);

    /// The position as text that fromText reads: decimal degrees and links to 7 decimals (a centimetre),
    /// minutes to 5, seconds to 3, superfluous zeros left out.
    std::string text(Notation notation = Notation::Decimal) const;

    static bool isLatitude(const KTDecimal& degrees);  ///< a number within ±90
    static bool isLongitude(const KTDecimal& degrees); ///< a number within ±180

    bool operator==(const KTCoordinates& other) const = default;
};
