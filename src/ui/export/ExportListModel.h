#pragma once
#include "export/KTPhotoExportProgressWindowController.h"

#include <QAbstractTableModel>
#include <QIcon>

/// The exports of the history, oldest first: icon, what is exported and how far it is, where to.
class ExportListModel : public QAbstractTableModel {
    Q_OBJECT
public:
    enum Column { IconColumn, DescriptionColumn, RevealColumn, ColumnCount };
    using Record = KTPhotoExportOperationController::Record;

    /// @p history must outlive the model.
    explicit ExportListModel(KTPhotoExportOperationController& history, QObject* parent = nullptr);

    const Record& recordAt(int row) const { return shown[std::size_t(row)]; }

    int rowCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : int(shown.size());
    }
    int columnCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : ColumnCount;
    }
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    void synchronize();

    KTPhotoExportOperationController& controller;
    KTPhotoExportOperationController::Records shown;
    std::vector<bool> wasInProgress; // decides how high the rows are
    KTObservable::Observation observation;
};
