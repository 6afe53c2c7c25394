#pragma once
#include "app/thumbnails/KTThumbnailService.h"

#include <QStyledItemDelegate>

/// A cell of the media browser: a picture or a folder's icon, and the name.
class MediaBrowserDelegate : public QStyledItemDelegate {
    Q_OBJECT
public:
    static constexpr int kPicture = 112; ///< pixels of the pictures' longer edge

    explicit MediaBrowserDelegate(KTThumbnailService& thumbnails, QObject* parent = nullptr)
        : QStyledItemDelegate(parent), service(thumbnails) {}

    static QSize cellSize(const QFontMetrics& metrics);
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

private:
    KTThumbnailService& service;
};
