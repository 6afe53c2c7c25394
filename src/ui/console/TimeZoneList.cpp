#include "ui/console/TimeZoneList.h"

#include "ui/support/UIText.h"

#include <QDateTime>
#include <QLocale>
#include <QTimeZone>

namespace {

/// "America/Argentina/Buenos_Aires" as people write it.
QString displayName(const std::string& name) {
    return QString::fromStdString(name).replace('_', ' ').replace("/", " / ");
}

std::vector<std::string> offsetNames() {
    std::vector<std::string> names = {"UTC"};
    for (int halfHours = -24; halfHours <= 28; ++halfHours)
        if (halfHours != 0)
            names.push_back(KTTimeZone::fixed(halfHours * 1800).name());
    return names;
}

} // namespace

TimeZoneList::TimeZoneList(QObject* parent) : QAbstractTableModel(parent), names(offsetNames()) {
    for (const QByteArray& region : QTimeZone::availableTimeZoneIds())
        if (region.contains('/') && !region.startsWith("Etc/"))
            names.push_back(region.toStdString());
}

KTTimeZone TimeZoneList::zoneAt(int row) const {
    return KTTimeZone::fromText(names[std::size_t(row)]).value_or(KTTimeZone());
}

int TimeZoneList::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : int(names.size());
}

QVariant TimeZoneList::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || role != Qt::DisplayRole)
        return {};
    if (index.column() == NameColumn)
        return displayName(names[std::size_t(index.row())]);
    const KTTimeZone zone = zoneAt(index.row());
    const KTInstant now = KTInstantNow();
    if (index.column() == OffsetColumn)
        return QString::fromStdString(zone.offsetText(now));
    const auto clock = QDateTime::fromMSecsSinceEpoch(now.time_since_epoch().count(), Qt::OffsetFromUTC,
                                                      zone.secondsFromGMT(now));
    return QLocale().toString(clock.time(), QLocale::ShortFormat);
}

QVariant TimeZoneList::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return uiText(section == NameColumn ? "Time Zone" : section == OffsetColumn ? "Offset" : "Time There");
}
