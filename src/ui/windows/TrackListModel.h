#pragma once
#include "geotagging/KTAppTrackPickerController.h"

#include <QAbstractTableModel>

/// The tracks and waypoints that the track library shows.
class TrackListModel : public QAbstractTableModel {
    Q_OBJECT
public:
    enum Column { NameColumn, BeginColumn, EndColumn, LengthColumn, PointsColumn, PhotosColumn, ColumnCount };
    /// For sorting by what stands behind the texts.
    static constexpr int SortRole = Qt::UserRole;

    /// @p pickerController must outlive the model.
    explicit TrackListModel(KTAppTrackPickerController& pickerController, QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : int(rows->size());
    }
    int columnCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : ColumnCount;
    }
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QVariant sortValue(const KTTrackRecord& record, int column) const;
    QString text(const KTTrackRecord& record, int column) const;
    std::optional<KTInstant> begin(const KTTrackRecord& record) const;

    KTAppTrackPickerController& picker;
    KTTrackSourceList& list;
    KTTrackSourceList::Snapshot rows;
    KTObservable::Observation observation, matchesObservation;
};
