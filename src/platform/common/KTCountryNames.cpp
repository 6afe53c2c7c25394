#include "platform/common/KTCountryNames.h"

#include <QLocale>
#include <map>
#include <memory>
#include <mutex>
#include <unicode/uldnames.h>

namespace {

struct DisplayNamesClosing {
    void operator()(ULocaleDisplayNames* names) const { uldn_close(names); }
};

/// The full names of these two say what they are under law ("Hong Kong SAR China"); nobody captions so.
UDisplayContext lengthFor(std::string_view isoCode) {
    return isoCode == "HK" || isoCode == "MO" ? UDISPCTX_LENGTH_SHORT : UDISPCTX_LENGTH_FULL;
}

bool isCountryCode(std::string_view code) {
    return code.size() == 2 && code != "ZZ" &&
           std::ranges::all_of(code, [](char letter) { return letter >= 'A' && letter <= 'Z'; });
}

/// Empty where @p language does not know it.
std::string nameInLanguage(const std::string& isoCode, const std::string& language) {
    UDisplayContext contexts[] = {lengthFor(isoCode), UDISPCTX_NO_SUBSTITUTE};
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<ULocaleDisplayNames, DisplayNamesClosing> names(
        uldn_openForContext(language.c_str(), contexts, int32_t(std::size(contexts)), &status));
    char16_t name[200];
    const int32_t length =
        uldn_regionDisplayName(names.get(), isoCode.c_str(), name, int32_t(std::size(name)), &status);
    if (U_FAILURE(status) || length > int32_t(std::size(name)))
        return {};
    return QString::fromUtf16(name, length).toStdString();
}

} // namespace

/// From the tables that Qt's own names stand on: Qt gives a name in English and in the country's own
/// languages only. They are slow to open, so that each name is asked once.
std::string KTCountryName(std::string_view isoCode) {
    if (!isCountryCode(isoCode))
        return {};
    using Names = std::map<std::pair<QString, std::string>, std::string>;
    static std::mutex mutex;
    static Names& known = *new Names; // threads may ask until the last moment
    const QLocale user;
    const QString language = user.language() == QLocale::C ? QStringLiteral("en") : user.bcp47Name();

    std::lock_guard guard(mutex);
    const auto [entry, isNew] = known.try_emplace({language, std::string(isoCode)});
    if (isNew) {
        entry->second = nameInLanguage(entry->first.second, language.toStdString());
        if (entry->second.empty())
            entry->second = nameInLanguage(entry->first.second, "en");
    }
    return entry->second;
}
