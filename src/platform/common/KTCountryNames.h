#pragma once
#include <string>
#include <string_view>

/// The name of the country or territory with the code @p isoCode (ISO 3166-1, two capitals, or XK) in the
/// user's language (QLocale's default), in English where that is not known; empty for a code that does not
/// exist. Any thread.
std::string KTCountryName(std::string_view isoCode);
