#include "platform/common/KTCountryCodes.h"

#include "platform/common/KTCountryNames.h"
#include "platform/common/KTSortDescriptor.h"
#include "platform/common/KTText.h"
#include "platform/common/KTTextFolding.h"

#include <QLocale>
#include <algorithm>
#include <unicode/uloc.h>

namespace {

std::string capitals(std::string_view text) {
    std::string result(text);
    std::ranges::transform(result, result.begin(),
                           [](char c) { return c >= 'a' && c <= 'z' ? char(c - 'a' + 'A') : c; });
    return result;
}

std::string threeLetters(const std::string& code) {
    return uloc_getISO3Country(("und_" + code).c_str());
}

std::string englishName(const std::string& code) {
    return QLocale::territoryToString(QLocale(QString::fromStdString("en_" + code)).territory())
        .toStdString();
}

std::vector<KTCountry> countriesByName() {
    std::vector<KTCountry> countries;
    for (const char* const* code = uloc_getISOCountries(); *code != nullptr; ++code)
        if (std::string name = KTCountryName(*code); !name.empty())
            countries.push_back({*code, std::move(name)});
    std::ranges::sort(countries, [](const KTCountry& left, const KTCountry& right) {
        return KTCompareForSorting(left.name, right.name) < 0;
    });
    return countries;
}

/// The code of two letters for one of two or three; empty for none.
std::string codeOfTwo(std::string_view text) {
    const std::string code = capitals(text);
    for (const KTCountry& country : KTCountries())
        if (country.code == code || (code.size() == 3 && threeLetters(country.code) == code))
            return country.code;
    return {};
}

} // namespace

const std::vector<KTCountry>& KTCountries() {
    static std::mutex mutex;
    static auto& byLanguage = *new std::map<QString, std::vector<KTCountry>>; // kept: callers hold references
    std::lock_guard guard(mutex);
    const auto [entry, isNew] = byLanguage.try_emplace(QLocale().bcp47Name());
    if (isNew)
        entry->second = countriesByName();
    return entry->second;
}

std::optional<std::string> KTCountryCodeFromText(std::string_view text) {
    text = KTTrimmed(text);
    if ((text.size() == 2 || text.size() == 3) && !codeOfTwo(text).empty())
        return capitals(text);
    const std::string wanted = KTCaseAndDiacriticsFolded(text);
    for (const KTCountry& country : KTCountries())
        if (KTCaseAndDiacriticsFolded(country.name) == wanted ||
            KTCaseAndDiacriticsFolded(englishName(country.code)) == wanted)
            return country.code;
    return std::nullopt;
}

std::string KTCountryNameOfCode(std::string_view code) {
    const std::string two = codeOfTwo(code);
    return two.empty() ? std::string() : KTCountryName(two);
}
