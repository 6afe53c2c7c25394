#include "platform/common/KTDateComponents.h"

#include "platform/common/KTText.h"

namespace {

std::string padded(std::int64_t value, std::size_t width) {
    std::string digits = std::to_string(value);
    return digits.size() < width ? std::string(width - digits.size(), '0') + digits : digits;
}

std::string padded(std::int64_t value, std::size_t width, std::string_view whenUndefined) {
    return value == KTDateComponents::kUndefined ? std::string(whenUndefined) : padded(value, width);
}

/// Reads the parts of a date text from left to right.
class Reader {
public:
    explicit Reader(std::string_view dateText) : rest(dateText) {}

    bool atEnd() const { return rest.empty(); }
    bool skip(std::string_view anyOf) {
        if (rest.empty() || anyOf.find(rest.front()) == std::string_view::npos)
            return false;
        rest.remove_prefix(1);
        return true;
    }
    bool startsNumber() const { return !rest.empty() && isDigit(rest.front()); }

    /// A number of 1 to @p width digits, or as many blanks (fewer at the end) for an unset part; false when neither stands here.
    bool part(std::size_t width, std::int64_t& value) {
        value = KTDateComponents::kUndefined;
        std::size_t length = 0;
        while (length < width && length < rest.size() && isDigit(rest[length]))
            ++length;
        if (length == 0) {
            std::string_view blanks = rest.substr(0, width); // fewer where the end of the text was trimmed
            if (blanks.find_first_not_of(' ') != std::string_view::npos)
                return false;
            rest.remove_prefix(blanks.size());
            return true;
        }
        value = 0;
        for (char c : rest.substr(0, length))
            value = value * 10 + (c - '0');
        rest.remove_prefix(length);
        return true;
    }

    static bool isDigit(char c) { return c >= '0' && c <= '9'; }

private:
    std::string_view rest;
};

bool isUndefined(std::int64_t part) {
    return part == KTDateComponents::kUndefined;
}

bool readTime(Reader& reader, KTDateComponents& result) {
    if (!reader.part(2, result.hour))
        return false;
    if (!reader.skip(":"))
        return true;
    if (!reader.part(2, result.minute))
        return false;
    return !reader.skip(":") || reader.part(2, result.second);
}

int daysInMonth(std::int64_t year, std::int64_t month) {
    using namespace std::chrono;
    auto last = std::chrono::year(int(year)) / std::chrono::month(unsigned(month)) / std::chrono::last;
    return int(unsigned(year_month_day_last(last).day()));
}

bool isPossible(KTDateComponents& result) {
    if (isUndefined(result.year) || result.year == 0)
        return false;
    if (result.month == 0)
        result.month = KTDateComponents::kUndefined;
    if (result.day == 0)
        result.day = KTDateComponents::kUndefined;
    auto within = [](std::int64_t part, std::int64_t limit) { return isUndefined(part) || part <= limit; };
    if (!within(result.month, 12) || !within(result.hour, 23) || !within(result.minute, 59) ||
        !within(result.second, 60))
        return false;
    return within(result.day, isUndefined(result.month) ? 31 : daysInMonth(result.year, result.month));
}

} // namespace

std::optional<KTDateComponents> KTDateComponents::dateComponentsWithString(std::string_view text) {
    text = KTTrimmed(text);
    Reader reader(text);
    KTDateComponents result;
    if (text.size() < 4 || !Reader::isDigit(text[3]) || !reader.part(4, result.year))
        return std::nullopt;
    if (reader.skip(":-")) {
        if (!reader.part(2, result.month))
            return std::nullopt;
        if (reader.skip(":-") && !reader.part(2, result.day))
            return std::nullopt;
    }
    if (reader.skip(" T") && !reader.atEnd() && !readTime(reader, result))
        return std::nullopt;
    // What may follow is a fraction, a zone or nothing; more digits mean that this was no date.
    if (reader.startsNumber() || !isPossible(result))
        return std::nullopt;
    result.calendar = KTCalendarIdentifier::Gregorian;
    return result;
}

std::array<bool, 6> KTDateComponents::unitFlags() const {
    return {!isUndefined(year), !isUndefined(month),  !isUndefined(day),
            !isUndefined(hour), !isUndefined(minute), !isUndefined(second)};
}

bool KTDateComponents::hasSameReading(const KTDateComponents& other) const {
    return year == other.year && month == other.month && day == other.day && hour == other.hour &&
           minute == other.minute && second == other.second;
}

std::optional<std::string> KTDateComponents::xmpString() const {
    if (isUndefined(year))
        return std::nullopt;
    std::string text = padded(year, 4);
    auto append = [&](char separator, std::int64_t part) {
        if (!isUndefined(part))
            text += separator + padded(part, 2);
    };
    append(':', month);
    append(':', day);
    append(' ', hour);
    if (!isUndefined(hour) && isUndefined(minute))
        text += ":00";
    append(':', minute);
    append(':', second);
    return text;
}

std::optional<std::string> KTDateComponents::exifString() const {
    if (isUndefined(year))
        return std::nullopt;
    return padded(year, 4) + ":" + padded(month, 2, "  ") + ":" + padded(day, 2, "  ") + " " +
           padded(hour, 2, "  ") + ":" + padded(minute, 2, "  ") + ":" + padded(second, 2, "  ");
}

std::optional<std::string> KTDateComponents::iptcDateString() const {
    if (isUndefined(year))
        return std::nullopt;
    return padded(year, 4) + ":" + padded(month, 2, "00") + ":" + padded(day, 2, "00");
}

std::string KTDateComponents::iptcTimeString() const {
    return padded(hour, 2, "00") + ":" + padded(minute, 2, "00") + ":" + padded(second, 2, "00");
}
