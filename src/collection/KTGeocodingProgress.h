#pragma once
#include <string>
#include <string_view>

/// The progress format of a batch that fetches place names: "@p step. Fetching the location description from
/// …", in the user's language, with the name of the selected reverse geocoder. @p step is a key of the texts
/// whose two numbers the batch fills in.
std::string KTGeocodingProgressDescription(std::string_view step);
