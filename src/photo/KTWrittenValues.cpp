#include "photo/KTWrittenValues.h"

#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTText.h"

#include <cmath>

namespace {

constexpr std::string_view kDefaultLanguage = "-x-default";

bool isSameNumber(const KTDecimal& left, const KTDecimal& right) {
    const double a = left.toDouble(), b = right.toDouble();
    return std::abs(a - b) <= 1e-6 * std::max({1.0, std::abs(a), std::abs(b)});
}

std::optional<KTDecimal> numberIn(const KTValue& value) {
    return value.text() ? KTDecimal::fromText(KTTrimmed(*value.text())) : value.number();
}

/// One element, a list of one and text are the same thing to a file.
std::vector<std::string> textsIn(const KTValue& value) {
    return value.list() ? value.texts() : std::vector<std::string>{value.description()};
}

/// Formats pad or cut at the end; an EXIF date comes back without the zone that it cannot hold, an IPTC time
/// with the zone that it must have.
bool isSameText(std::string_view written, std::string_view read) {
    constexpr std::size_t dateLength = 19, timeLength = 8, zoneLength = 6;
    written = KTTrimmed(written);
    read = KTTrimmed(read);
    if (written == read)
        return true;
    if (written.size() > dateLength && read == written.substr(0, dateLength))
        return KTDateComponents::dateComponentsWithString(written).has_value();
    return written.size() == timeLength && read.size() == timeLength + zoneLength &&
           read.starts_with(written) && written[2] == ':';
}

bool isAsWritten(const KTValue& written, const KTValue& read) {
    if (written == read)
        return true;
    auto left = numberIn(written), right = numberIn(read);
    if (left && right)
        return isSameNumber(*left, *right);
    const std::vector<std::string> writtenTexts = textsIn(written), readTexts = textsIn(read);
    return std::ranges::equal(writtenTexts, readTexts, isSameText);
}

} // namespace

KTTagDictionary adaptedToLanguageAlternatives(const KTTagDictionary& changes, const KTTagDictionary& saved) {
    KTTagDictionary result;
    for (const auto& [key, value] : changes) {
        const std::string plain = key.text();
        const std::string other = plain + "-";
        const bool hasOtherLanguages =
            plain.starts_with("XMP:") &&
            std::ranges::any_of(saved, [&](const auto& tag) { return tag.key.text().starts_with(other); });
        const bool addressesDefault = hasOtherLanguages && value.text();
        result.set(addressesDefault ? plain + std::string(kDefaultLanguage) : plain, value);
    }
    return result;
}

KTTagDictionary valuesNotWritten(const KTTagDictionary& changes,
                                 const std::vector<KTTagDictionary::Entry>& asRead) {
    KTTagDictionary result;
    for (const auto& [key, value] : changes) {
        std::string plain = key.text();
        if (plain.ends_with(kDefaultLanguage))
            plain.resize(plain.size() - kDefaultLanguage.size());
        const KTTagKey plainKey(plain);
        const bool deletes = value.isNull() || (value.list() && value.list()->empty());
        const bool stands = std::ranges::any_of(asRead, [&](const KTTagDictionary::Entry& tag) {
            return tag.key == plainKey && (deletes || isAsWritten(value, tag.value));
        });
        if (stands == deletes)
            result.set(plain, value);
    }
    return result;
}

std::string valuesNotWrittenText(const KTTagDictionary& values) {
    std::vector<std::string> keys;
    for (const auto& [key, value] : values)
        keys.push_back(key.text());
    return KTStringWithFormat(KTLocalizedString("The file does not hold these values as they were given: %@"),
                              {KTJoin(keys, ", ")});
}

void addWarning(KTPhotoOperation& operation, const std::string& warning) {
    operation.warningDescription =
        operation.warningDescription ? *operation.warningDescription + "; " + warning : warning;
    operation.isWarning = true;
}
