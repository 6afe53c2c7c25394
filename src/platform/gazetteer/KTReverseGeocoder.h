#pragma once
#include "platform/common/KTValue.h"

#include <stop_token>

/// What a reverse geocoder knows of a position.
struct KTPlaceAnswer {
    /// Texts under "city", "state", "country" and "countryCode" (ISO 3166-1, two letters); what is unknown or
    /// does not exist there is left out. Empty on the open sea.
    KTValue::Dictionary place = {};
    /// A sentence for the user when nothing could be found out; the place is then empty.
    std::optional<std::string> error = {};
    /// Whether the failure is the geocoder's own, so that asking it for other positions soon is no use
    /// either.
    bool isUnavailable = false;
};

/// Finds the place names of positions. The gazetteer owns the thread on which it is asked.
class KTReverseGeocoder {
public:
    virtual ~KTReverseGeocoder() = default;

    /// What people know it by, as in "Fetching the city from %@…". Any thread.
    virtual std::string name() const = 0;
    /// The place at a position in degrees, WGS 84; longitudes beyond ±180 are wrapped, other positions that
    /// do not exist give an error. One call at a time, always on the same thread. May take a while, but
    /// returns soon, with an error, once @p stop is requested. Throws nothing.
    virtual KTPlaceAnswer placeAtLatitude(double latitude, double longitude, const std::stop_token& stop) = 0;
};
