#pragma once
#include "collection/KTPhotoOperationController.h"

#include <QAbstractTableModel>
#include <QTimer>

/// The operations that the log's filter lets through, oldest first: when, on which file, what, and what came
/// of it.
class OperationLogModel : public QAbstractTableModel {
    Q_OBJECT
public:
    enum Column { ResultColumn, TimeColumn, FileColumn, StepColumn, TextColumn, ColumnCount };

    /// @p operationController must outlive the model.
    explicit OperationLogModel(KTPhotoOperationController& operationController, QObject* parent = nullptr);

    const KTPhotoOperation& operationAt(int row) const {
        return *controller.arrangedObjects()[std::size_t(row)];
    }
    /// One operation as a line of text, columns parted by tabs.
    QString lineOf(int row) const;

    int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : rows; }
    int columnCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : ColumnCount;
    }
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    void synchronize();

    KTPhotoOperationController& controller;
    unsigned mask;
    int rows = 0;
    QTimer timer;
    KTObservable::Observation observation;
};
