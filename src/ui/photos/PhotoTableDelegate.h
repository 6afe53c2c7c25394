#pragma once
#include "app/thumbnails/KTThumbnailService.h"

#include <QStyledItemDelegate>

/// Draws the cells of the photo table: signs, thumbnail, and texts, of which those that say "nothing" are
/// faint.
class PhotoTableDelegate : public QStyledItemDelegate {
    Q_OBJECT
public:
    PhotoTableDelegate(KTThumbnailService& thumbnails, QObject* parent)
        : QStyledItemDelegate(parent), service(thumbnails) {}

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

private:
    KTThumbnailService& service;
};
