#pragma once
#include "app/thumbnails/KTThumbnailService.h"

#include <QStyledItemDelegate>

/// Draws the cells of the thumbnail browser: the picture, badges on it, and below it title and subtitle as
/// far as they are wanted.
class ThumbnailDelegate : public QStyledItemDelegate {
    Q_OBJECT
public:
    ThumbnailDelegate(KTThumbnailService& thumbnails, QObject* parent)
        : QStyledItemDelegate(parent), service(thumbnails) {}

    /// The longer edge of the pictures, in logical pixels.
    void setPictureEdge(int edge) { pictureEdge = edge; }
    int edge() const { return pictureEdge; }
    void setTexts(bool title, bool subtitle);
    QSize cellSize(const QFontMetrics& metrics) const;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    KTThumbnailService& service;
    int pictureEdge = 89;
    bool hasTitle = true, hasSubtitle = false;
};
