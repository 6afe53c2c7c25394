#include "platform/tracklibrary/GPXTime.h"

#include "platform/common/KTText.h"

namespace {

/// Takes a text apart from its front.
class TimeScanner {
public:
    explicit TimeScanner(std::string_view remaining) : rest(remaining) {}

    bool atEnd() const { return rest.empty(); }
    bool skip(std::string_view oneOf) {
        if (rest.empty() || oneOf.find(rest.front()) == std::string_view::npos)
            return false;
        rest.remove_prefix(1);
        return true;
    }
    /// A number of exactly @p digits digits; -1 when there is none.
    int number(std::size_t digits) {
        if (rest.size() < digits)
            return -1;
        int value = 0;
        for (std::size_t i = 0; i < digits; ++i) {
            auto digit = static_cast<unsigned>(rest[i] - '0');
            if (digit > 9)
                return -1;
            value = value * 10 + static_cast<int>(digit);
        }
        rest.remove_prefix(digits);
        return value;
    }
    /// The digits that follow as thousandths of one, the rest of them cut off; -1 when there are none.
    int thousandths() {
        int value = 0, weight = 100, digit = number(1);
        if (digit < 0)
            return -1;
        for (; digit >= 0; digit = number(1), weight /= 10)
            value += digit * weight;
        return value;
    }

private:
    std::string_view rest;
};

/// Minutes east of Greenwich of what is left of @p scan.
std::optional<int> zoneOffset(TimeScanner& scan) {
    if (scan.atEnd() || scan.skip("Zz"))
        return 0;
    bool west = scan.skip("-");
    if (!west && !scan.skip("+"))
        return std::nullopt;
    int hours = scan.number(2), minutes = 0;
    if (!scan.atEnd()) {
        scan.skip(":");
        minutes = scan.number(2);
    }
    if (hours < 0 || hours > 18 || minutes < 0 || minutes > 59)
        return std::nullopt;
    int offset = hours * 60 + minutes;
    return west ? -offset : offset;
}

std::optional<std::chrono::milliseconds> timeOfDay(TimeScanner& scan) {
    using namespace std::chrono;
    int hour = scan.number(2), minute = scan.skip(":") ? scan.number(2) : -1;
    int second = 0, thousandths = 0;
    if (scan.skip(":")) {
        second = scan.number(2);
        if (scan.skip(".,"))
            thousandths = scan.thousandths();
    }
    if (hour < 0 || minute < 0 || minute > 59 || second < 0 || second > 60 || thousandths < 0)
        return std::nullopt;
    if (hour > 23 && (hour > 24 || minute + second + thousandths > 0))
        return std::nullopt;
    return hours(hour) + minutes(minute) + seconds(second) + milliseconds(thousandths);
}

} // namespace

std::optional<KTInstant> GPXInstantFromText(std::string_view text) {
    using namespace std::chrono;
    TimeScanner scan(KTTrimmed(text));
    int year = scan.number(4), month = scan.skip("-") ? scan.number(2) : -1,
        day = scan.skip("-") ? scan.number(2) : -1;
    if (year < 0 || month < 0 || day < 0)
        return std::nullopt;
    year_month_day date(std::chrono::year{year}, std::chrono::month{static_cast<unsigned>(month)},
                        std::chrono::day{static_cast<unsigned>(day)});
    if (!date.ok())
        return std::nullopt;
    milliseconds time{0};
    if (!scan.atEnd()) {
        auto clock = scan.skip("Tt ") ? timeOfDay(scan) : std::nullopt;
        if (!clock)
            return std::nullopt;
        time = *clock;
    }
    auto offset = zoneOffset(scan);
    if (!offset || !scan.atEnd())
        return std::nullopt;
    return KTInstant(sys_days(date)) + time - minutes(*offset);
}
