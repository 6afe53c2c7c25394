#include "ui/photos/ThumbnailModel.h"

#include "ui/photos/PhotoListModel.h"

ThumbnailModel::ThumbnailModel(PhotoListModel& photos, QObject* parent)
    : QIdentityProxyModel(parent), list(photos) {
    setSourceModel(&photos);
}

int ThumbnailModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : 1;
}

QModelIndex ThumbnailModel::mapToSource(const QModelIndex& index) const {
    return index.isValid() ? list.index(index.row(), PhotoListModel::ThumbnailColumn) : QModelIndex();
}

QModelIndex ThumbnailModel::mapFromSource(const QModelIndex& index) const {
    return index.isValid() ? createIndex(index.row(), 0) : QModelIndex();
}

QVariant ThumbnailModel::data(const QModelIndex& index, int role) const {
    if (role == Qt::AccessibleDescriptionRole)
        return list.index(index.row(), PhotoListModel::StatusColumn).data(Qt::AccessibleTextRole);
    return QIdentityProxyModel::data(index, role);
}

QMimeData* ThumbnailModel::mimeData(const QModelIndexList& indexes) const {
    return list.mimeData(indexes); // of which it takes the rows
}

bool ThumbnailModel::canDropMimeData(const QMimeData* data, Qt::DropAction, int, int,
                                     const QModelIndex&) const {
    return qobject_cast<const PhotoMimeData*>(data) != nullptr;
}

bool ThumbnailModel::dropMimeData(const QMimeData* data, Qt::DropAction, int row, int,
                                  const QModelIndex& parent) {
    const auto* const photos = qobject_cast<const PhotoMimeData*>(data);
    if (photos == nullptr)
        return false;
    list.movePhotosToRow(photos->photos(), parent.isValid() ? parent.row() : row);
    return true;
}
