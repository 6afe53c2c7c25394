#pragma once
#include "collection/KTTagDetailsWindowController.h"

#include <QAbstractTableModel>

/// The tags of the tag details, one a row.
class TagDetailsModel : public QAbstractTableModel {
    Q_OBJECT
public:
    enum Column { KeyColumn, ValueColumn };

    /// @p tagController must outlive the model.
    explicit TagDetailsModel(KTTagDetailsWindowController& tagController, QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : int(rows.size());
    }
    int columnCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : 2; }
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    void update();

    KTTagDetailsWindowController& controller;
    std::vector<KTTagDetailsWindowController::Row> rows;
    KTObservable::Observation observation;
};
