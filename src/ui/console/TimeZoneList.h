#pragma once
#include "platform/common/KTTimeZone.h"

#include <QAbstractTableModel>
#include <vector>

/// The time zones of the world: offsets in whole and half hours, then regions by name; each with its offset
/// and the time that clocks show there now.
class TimeZoneList : public QAbstractTableModel {
    Q_OBJECT
public:
    enum Column { NameColumn, OffsetColumn, TimeColumn };

    explicit TimeZoneList(QObject* parent = nullptr);

    KTTimeZone zoneAt(int row) const;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : 3; }
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    std::vector<std::string> names;
};
