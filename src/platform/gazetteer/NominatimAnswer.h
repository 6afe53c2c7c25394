#pragma once
#include "platform/common/KTValue.h"

/// What a Nominatim server says of a position.
struct NominatimAnswer {
    /// The place under the keys of KTPlaceAnswer, empty where the server says that there is none; nothing
    /// when the answer is no such answer.
    std::optional<KTValue::Dictionary> place;
    /// The server's own words when it says that something went wrong, as one line; else empty.
    std::string complaint;

    /// Reads the body of an answer in format jsonv2 with address details, whatever it holds.
    static NominatimAnswer fromJSON(std::string_view body);
};
