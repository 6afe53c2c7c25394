#include "ui/windows/TrackListModel.h"

#include "metadata/KTDateFormatters.h"
#include "platform/common/KTUnitConverter.h"
#include "ui/support/ObservationLink.h"
#include "ui/support/UIText.h"

#include <QIcon>
#include <QLocale>

namespace {

constexpr const char* kTitles[] = {"Name", "Begin", "End", "Length", "Points", "Photos"};

QString instantText(const std::optional<KTInstant>& instant) {
    return instant ? QString::fromStdString(KTDateTimeFormatter().stringForObjectValue(*instant)) : QString();
}

} // namespace

TrackListModel::TrackListModel(KTAppTrackPickerController& pickerController, QObject* parent)
    : QAbstractTableModel(parent), picker(pickerController), list(picker.trackSourceList()),
      rows(list.tracksAndWaypoints()) {
    matchesObservation = observeFor(this, picker, "matchedPhotos", [this] {
        if (!rows->empty())
            emit dataChanged(index(0, PhotosColumn), index(rowCount() - 1, PhotosColumn));
    });
    observation = list.observe([this](const KTChange& change) {
        if (change.isPrior)
            return;
        if (change.key == "tracksAndWaypoints") {
            beginResetModel();
            rows = list.tracksAndWaypoints();
            endResetModel();
        } else if (change.key == "trackLengths" && !rows->empty()) {
            emit dataChanged(index(0, LengthColumn), index(rowCount() - 1, LengthColumn));
        }
    });
}

std::optional<KTInstant> TrackListModel::begin(const KTTrackRecord& record) const {
    return record.track() ? record.track()->firstDate : record.waypoint()->point.date;
}

QVariant TrackListModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid())
        return {};
    const KTTrackRecord& record = (*rows)[std::size_t(index.row())];
    switch (role) {
    case Qt::DisplayRole:
        return text(record, index.column());
    case SortRole:
        return sortValue(record, index.column());
    case Qt::DecorationRole:
        if (index.column() != NameColumn)
            return {};
        return QIcon::fromTheme(record.track() ? "draw-polyline" : "flag");
    case Qt::ToolTipRole:
        return record.track() ? uiPath(record.track()->sourceFile)
                              : QString::fromStdString(record.waypoint()->comment);
    default:
        return {};
    }
}

QString TrackListModel::text(const KTTrackRecord& record, int column) const {
    const KTTrack* const track = record.track();
    switch (column) {
    case NameColumn:
        return QString::fromStdString(record.name());
    case BeginColumn:
        return instantText(begin(record));
    case EndColumn:
        return track ? instantText(track->lastDate) : QString();
    case LengthColumn: {
        const auto metres = track ? list.lengthOfTrack(track->id) : std::nullopt;
        return metres
                   ? QString::fromStdString(
                         KTUnitConverter::sharedUnitConverter().roundedDefaultDistanceDescriptionFromMeters(
                             *metres))
                   : QString();
    }
    case PhotosColumn: {
        const std::size_t photos = track ? picker.matchedPhotosOfTrack(track->id) : 0;
        return photos ? QLocale().toString(qulonglong(photos)) : QString();
    }
    default:
        return track ? QLocale().toString(qlonglong(track->pointCount)) : uiText("Waypoint");
    }
}

QVariant TrackListModel::sortValue(const KTTrackRecord& record, int column) const {
    const KTTrack* const track = record.track();
    auto milliseconds = [](const std::optional<KTInstant>& instant) {
        return instant ? qlonglong(instant->time_since_epoch().count()) : 0;
    };
    switch (column) {
    case BeginColumn:
        return milliseconds(begin(record));
    case EndColumn:
        return track ? milliseconds(track->lastDate) : 0;
    case LengthColumn:
        return track ? list.lengthOfTrack(track->id).value_or(0) : 0;
    case PointsColumn:
        return track ? qlonglong(track->pointCount) : 0;
    case PhotosColumn:
        return track ? qulonglong(picker.matchedPhotosOfTrack(track->id)) : 0;
    default:
        return text(record, column);
    }
}

QVariant TrackListModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation == Qt::Horizontal && role == Qt::ToolTipRole && section == PhotosColumn)
        return uiText("How many of the loaded photos would take their place from this track");
    return orientation == Qt::Horizontal && role == Qt::DisplayRole ? QVariant(uiText(kTitles[section]))
                                                                    : QVariant();
}
