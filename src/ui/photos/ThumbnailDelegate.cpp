#include "ui/photos/ThumbnailDelegate.h"

#include "ui/photos/PhotoListModel.h"
#include "ui/photos/PhotoStatus.h"
#include "ui/photos/ThumbnailPainter.h"

#include <QPainter>

namespace {

constexpr int kMargin = 8, kBadge = 16;

void paintBadges(QPainter& painter, const QRect& picture, unsigned signs, const QPalette& palette) {
    int place = 0;
    for (const auto sign : {PhotoStatus::Failed, PhotoStatus::Unsaved, PhotoStatus::Geotagged}) {
        if ((signs & sign) == 0)
            continue;
        const QRectF board(picture.right() - kBadge - 2 - place++ * (kBadge + 2),
                           picture.bottom() - kBadge - 2, kBadge, kBadge);
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(palette.base());
        painter.drawRoundedRect(board, 4, 4);
        painter.restore();
        PhotoStatus::paint(painter, sign, board.adjusted(2, 2, -2, -2), palette, false);
    }
}

} // namespace

void ThumbnailDelegate::setTexts(bool title, bool subtitle) {
    hasTitle = title;
    hasSubtitle = subtitle;
}

QSize ThumbnailDelegate::cellSize(const QFontMetrics& metrics) const {
    const int lines = int(hasTitle) + int(hasSubtitle);
    return {pictureEdge + 2 * kMargin, pictureEdge + 2 * kMargin + lines * metrics.lineSpacing()};
}

QSize ThumbnailDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const {
    return cellSize(option.fontMetrics);
}

void ThumbnailDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const {
    const bool isSelected = (option.state & QStyle::State_Selected) != 0;
    const QPalette::ColorGroup group =
        option.state & QStyle::State_Active ? QPalette::Active : QPalette::Inactive;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    if (isSelected) {
        painter->setPen(Qt::NoPen);
        painter->setBrush(option.palette.color(group, QPalette::Highlight));
        painter->drawRoundedRect(option.rect.adjusted(2, 2, -2, -2), 5, 5);
    }
    if (option.state & QStyle::State_HasFocus) {
        painter->setBrush(Qt::NoBrush);
        painter->setPen(QPen(option.palette.color(QPalette::Text), 1, Qt::DotLine));
        painter->drawRoundedRect(QRectF(option.rect).adjusted(2.5, 2.5, -2.5, -2.5), 5, 5);
    }
    painter->restore();

    const auto photo = index.data(PhotoListModel::PhotoRole).value<PhotoListModel::Photo>();
    const QRect area(option.rect.x() + kMargin, option.rect.y() + kMargin, option.rect.width() - 2 * kMargin,
                     pictureEdge);
    const QRect picture = paintThumbnail(*painter, service, photo->fileURL(), area, option.palette);
    paintBadges(*painter, picture, index.data(PhotoListModel::StatusRole).toUInt(), option.palette);

    int top = area.bottom() + 3;
    auto line = [&](const QString& text, bool isFaint) {
        QColor colour = option.palette.color(group, isSelected ? QPalette::HighlightedText : QPalette::Text);
        if (isFaint && !isSelected)
            colour = option.palette.color(QPalette::PlaceholderText);
        painter->setPen(colour);
        const QRect place(area.x(), top, area.width(), option.fontMetrics.lineSpacing());
        painter->drawText(place, Qt::AlignHCenter | Qt::AlignVCenter,
                          option.fontMetrics.elidedText(text, Qt::ElideMiddle, place.width()));
        top += option.fontMetrics.lineSpacing();
    };
    if (hasTitle)
        line(index.data(Qt::DisplayRole).toString(), false);
    if (hasSubtitle)
        line(index.data(PhotoListModel::SubtitleRole).toString(), true);
}
