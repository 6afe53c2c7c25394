#include "ui/datetools/InstantEdit.h"

#include <QSignalBlocker>
#include <QStyle>

InstantEdit::InstantEdit(QWidget* parent) : QDateTimeEdit(parent) {
    setDisplayFormat("yyyy-MM-dd HH:mm:ss");
    setTimeSpec(Qt::UTC); // its own fields only: what they show is the clock of the zone
    setDateTimeRange({QDate(100, 1, 1), QTime(0, 0), Qt::UTC},
                     {QDate(9999, 12, 31), QTime(23, 59, 59), Qt::UTC});
    setSpecialValueText("–");
    setCalendarPopup(true);
    connect(this, &QDateTimeEdit::dateTimeChanged, this, [this](const QDateTime& shown) {
        const std::chrono::milliseconds reading(
            QDateTime(shown.date(), shown.time(), Qt::UTC).toMSecsSinceEpoch());
        emit instantEdited(
            zone.instantOfLocalTime(std::chrono::local_time<std::chrono::milliseconds>(reading)));
    });
}

/// Qt counts no button for the calendar.
QSize InstantEdit::sizeHint() const {
    const int button = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    const int text = fontMetrics().horizontalAdvance("8888-88-88 88:88:88");
    return {text + 2 * button, QDateTimeEdit::sizeHint().height()};
}

void InstantEdit::setInstant(std::optional<KTInstant> instant, const KTTimeZone& clockZone) {
    zone = clockZone;
    setEnabled(instant.has_value());
    QDateTime reading = minimumDateTime();
    if (instant) {
        const auto whole = std::chrono::floor<std::chrono::seconds>(instant->time_since_epoch()).count();
        reading = QDateTime::fromSecsSinceEpoch(whole + zone.secondsFromGMT(*instant), Qt::UTC);
    }
    if (reading == dateTime())
        return; // it may be being typed
    const QSignalBlocker quiet(this);
    setDateTime(reading);
}
