#pragma once
#include <QIdentityProxyModel>

class PhotoListModel;

/// The photos of the photo table in one column, named by their file names, for the thumbnail browser. A drop
/// of photos moves them.
class ThumbnailModel : public QIdentityProxyModel {
    Q_OBJECT
public:
    explicit ThumbnailModel(PhotoListModel& photos, QObject* parent = nullptr);

    int columnCount(const QModelIndex& parent = {}) const override;
    QModelIndex mapToSource(const QModelIndex& index) const override;
    QModelIndex mapFromSource(const QModelIndex& index) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QMimeData* mimeData(const QModelIndexList& indexes) const override;
    Qt::DropActions supportedDropActions() const override { return Qt::CopyAction; }
    bool canDropMimeData(const QMimeData* data, Qt::DropAction, int, int, const QModelIndex&) const override;
    bool dropMimeData(const QMimeData* data, Qt::DropAction, int row, int,
                      const QModelIndex& parent) override;

private:
    PhotoListModel& list;
};
