#pragma once
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// A country or territory of ISO 3166-1, or Kosovo. A value type.
struct KTCountry {
    std::string code; ///< two capitals
    std::string name; ///< in the user's language, as KTCountryName gives it
};

/// All of them by name, as the user's language sorts. Made at the first call, and again when the language has
/// changed. Any thread.
const std::vector<KTCountry>& KTCountries();
/// The code of the country that @p text names: "de" gives "DE"; "deu" gives "DEU", a code of three letters
/// that exists, as some files hold it; a name in the user's language or in English, without regard to letter
/// case and diacritical marks, gives the code of two. Nothing for any other text.
std::optional<std::string> KTCountryCodeFromText(std::string_view text);
/// The name for a code of two or three letters; empty for one that does not exist.
std::string KTCountryNameOfCode(std::string_view code);
