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

bool isAsWritten(const KTValue& written, const KTValue& read) {
    if (written.isNull() || (written.list() && written.list()->empty()))
        return !read.isSomething();
    if (written == read)
        return true;
    auto left = numberIn(written), right = numberIn(read);
    if (left && right)
        return isSameNumber(*left, *right);
    const std::vector<std::string> writtenTexts = textsIn(written), readTexts = textsIn(read);
    return std::ranges::equal(writtenTexts, readTexts, [](const std::string& a, const std::string& b) {
        // Formats pad or cut at the end, and dates come back without the zone that an EXIF date cannot hold.
        std::string_view x = KTTrimmed(a), y = KTTrimmed(b);
        return x == y ||
               (x.size() > 19 && y == x.substr(0, 19) && KTDateComponents::dateComponentsWithString(x));
    });
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

KTTagDictionary valuesNotWritten(const KTTagDictionary& changes, const KTTagDictionary& asRead) {
    KTTagDictionary result;
    for (const auto& [key, value] : changes) {
        std::string plain = key.text();
        if (plain.ends_with(kDefaultLanguage))
            plain.resize(plain.size() - kDefaultLanguage.size());
        if (!isAsWritten(value, asRead.valueForKey(plain)))
            result.set(plain, value);
    }
    return result;
}

void addWarning(KTPhotoOperation& operation, const KTTagDictionary& values) {
    std::vector<std::string> keys;
    for (const auto& [key, value] : values)
        keys.push_back(key.text());
    std::string warning =
        KTStringWithFormat(KTLocalizedString("The file does not hold these values as they were given: %@"),
                           {KTJoin(keys, ", ")});
    if (operation.warningDescription)
        warning = *operation.warningDescription + "; " + warning;
    operation.isWarning = true;
    operation.warningDescription = warning;
}
