#include "metadata/KTDateFormatters.h"

#include "platform/common/KTCalendar.h"
#include "platform/common/KTTimeZoneManager.h"

#include <QDate>
#include <QLocale>

namespace {

std::string timeText(const QTime& time) {
    // The platform's short time leaves the seconds out.
    QString format = QLocale().timeFormat(QLocale::ShortFormat);
    if (!format.contains("ss"))
        format.replace("mm", "mm:ss");
    return QLocale().toString(time, format).toStdString();
}

std::string textOf(const KTDateComponents& components) {
    const auto set = components.unitFlags();
    if (!set[0])
        return "";
    if (!set[1] || !set[2])
        return set[1] ? QLocale()
                            .toString(QDate(int(components.year), int(components.month), 1), "MMM yyyy")
                            .toStdString()
                      : std::to_string(components.year);
    std::string text = QLocale()
                           .toString(QDate(int(components.year), int(components.month), int(components.day)),
                                     QLocale::ShortFormat)
                           .toStdString();
    if (!set[3])
        return text;
    auto part = [](bool isSet, std::int64_t value, std::int64_t most) {
        return isSet ? int(std::min(value, most)) : 0;
    };
    return text + " " +
           timeText({part(true, components.hour, 23), part(set[4], components.minute, 59),
                     part(set[5], components.second, 59)});
}

} // namespace

std::string KTDateTimeFormatter::stringForObjectValue(const KTValue& value) const {
    if (!value.date())
        return "";
    return textOf(
        KTCalendar(KTTimeZoneManager::sharedTimeZoneManager().timeZone()).componentsFromDate(*value.date()));
}

std::string KTDateComponentsFormatter::stringForObjectValue(const KTValue& value) const {
    return value.components() ? textOf(*value.components()) : "";
}
