#include "platform/network/HTTPFreshness.h"

#include "platform/common/KTText.h"

#include <QDateTime>
#include <QLocale>
#include <charconv>

namespace {

using std::chrono::seconds;

constexpr seconds kLongest = std::chrono::years(1);

std::string_view header(const HTTPAnswer& answer, const std::string& name) {
    auto found = answer.headers.find(name);
    return found == answer.headers.end() ? std::string_view() : std::string_view(found->second);
}

std::optional<seconds> secondsFromText(std::string_view text) {
    text = KTTrimmed(text, " \"");
    std::int64_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error == std::errc::result_out_of_range)
        return kLongest;
    if (error != std::errc() || end != text.data() + text.size() || number < 0)
        return std::nullopt;
    return std::min(seconds(number), kLongest);
}

/// The one form of a date that servers still write: "Sun, 06 Nov 1994 08:49:37 GMT".
std::optional<KTInstant> instantFromText(std::string_view text) {
    QDateTime date = QLocale::c().toDateTime(QString::fromUtf8(text.data(), qsizetype(text.size())),
                                             "ddd, dd MMM yyyy hh:mm:ss 'GMT'");
    if (!date.isValid())
        return std::nullopt;
    date.setTimeSpec(Qt::UTC);
    return KTInstantFromMilliseconds(date.toMSecsSinceEpoch());
}

struct CacheControl {
    std::optional<seconds> maxAge = {};
    bool noCache = false, noStore = false;

    explicit CacheControl(std::string_view text) {
        for (const std::string& part : KTSplit(KTLowercase(text), ',')) {
            const std::string_view directive = KTTrimmed(part);
            noCache |= directive == "no-cache";
            noStore |= directive == "no-store";
            if (directive.starts_with("max-age="))
                maxAge = secondsFromText(directive.substr(8)).value_or(seconds(0));
        }
    }
};

} // namespace

HTTPFreshness HTTPFreshness::of(const HTTPAnswer& answer, KTInstant now, seconds otherwise) {
    const CacheControl control(header(answer, "cache-control"));
    const std::string_view expires = header(answer, "expires");
    seconds lifetime = otherwise;
    if (control.noCache || control.noStore) {
        lifetime = seconds(0);
    } else if (control.maxAge) {
        lifetime = *control.maxAge - secondsFromText(header(answer, "age")).value_or(seconds(0));
    } else if (!expires.empty()) { // anything that is not a date has expired
        const KTInstant sent = instantFromText(header(answer, "date")).value_or(now);
        lifetime = std::chrono::floor<seconds>(instantFromText(expires).value_or(sent) - sent);
    }
    return {now + std::clamp(lifetime, seconds(0), kLongest), !control.noStore};
}
