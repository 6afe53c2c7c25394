#include "metadata/KTDateFormatters.h"

#include "platform/common/KTCalendar.h"
#include "platform/common/KTTimeZoneManager.h"

#include <QDate>
#include <QLocale>
#include <algorithm>

namespace {

/// The locale's short form of the time, which leaves the seconds out, with the seconds where they are set.
QString timeText(const QTime& time, bool withSeconds) {
    QString format = QLocale().timeFormat(QLocale::ShortFormat);
    if (const auto minutes = format.indexOf("mm"); withSeconds && minutes > 0 && !format.contains("ss"))
        format.insert(minutes + 2, format.mid(minutes - 1, 1) + "ss"); // behind the locale's own separator
    return QLocale().toString(time, format);
}

int partOrElse(std::int64_t part, bool isSet, int otherwise) {
    return isSet ? static_cast<int>(std::clamp<std::int64_t>(part, -1, 99999)) : otherwise;
}

std::string textOf(const KTDateComponents& components) {
    const auto [year, month, day, hour, minute, second] = components.unitFlags();
    if (!year || !month)
        return year ? std::to_string(components.year) : "";
    const QDate date(partOrElse(components.year, year, 0), partOrElse(components.month, month, 0),
                     partOrElse(components.day, day, 1));
    const QTime time(partOrElse(components.hour, hour, 0), partOrElse(components.minute, minute, 0),
                     partOrElse(components.second, second, 0));
    if (!date.isValid() || !time.isValid()) // the reading of a clock that was wrong; shown all the same
        return components.xmpString().value_or("");
    QString text =
        day ? QLocale().toString(date, QLocale::ShortFormat) : QLocale().toString(date, "MMM yyyy");
    if (day && hour)
        text += " " + timeText(time, second);
    return text.toStdString();
}

} // namespace

std::string KTDateTimeFormatter::stringForObjectValue(const KTValue& value) const {
    if (!value.date())
        return "";
    const KTCalendar calendar(KTTimeZoneManager::sharedTimeZoneManager().timeZone());
    return textOf(calendar.componentsFromDate(*value.date()));
}

std::string KTDateComponentsFormatter::stringForObjectValue(const KTValue& value) const {
    return value.components() ? textOf(*value.components()) : "";
}
