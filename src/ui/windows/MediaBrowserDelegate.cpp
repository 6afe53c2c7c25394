#include "ui/windows/MediaBrowserDelegate.h"

#include "ui/photos/ThumbnailPainter.h"
#include "ui/windows/MediaBrowserModel.h"

#include <QIcon>
#include <QPainter>

namespace {

constexpr int kMargin = 8;

} // namespace

QSize MediaBrowserDelegate::cellSize(const QFontMetrics& metrics) {
    return {kPicture + 2 * kMargin, kPicture + 2 * kMargin + metrics.lineSpacing()};
}

QSize MediaBrowserDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const {
    return cellSize(option.fontMetrics);
}

void MediaBrowserDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                                 const QModelIndex& index) const {
    const bool isSelected = (option.state & QStyle::State_Selected) != 0;
    const QRect cell = option.rect;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(isSelected ? option.palette.highlight() : QBrush(Qt::NoBrush));
    painter->drawRoundedRect(cell.adjusted(2, 2, -2, -2), 5, 5);
    if (option.state & QStyle::State_HasFocus) {
        painter->setBrush(Qt::NoBrush);
        painter->setPen(QPen(option.palette.color(QPalette::Text), 1, Qt::DotLine));
        painter->drawRoundedRect(QRectF(cell).adjusted(2.5, 2.5, -2.5, -2.5), 5, 5);
    }
    const QRect picture(cell.x() + kMargin, cell.y() + kMargin, kPicture, kPicture);
    const auto& entry = static_cast<const MediaBrowserModel*>(index.model())->entryAt(index.row());
    if (entry.isFolder)
        QIcon::fromTheme("folder").paint(painter, picture.adjusted(24, 24, -24, -24));
    else
        paintThumbnail(*painter, service, entry.path, picture, option.palette);
    painter->setPen(option.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text));
    const QRect line(picture.x(), picture.bottom() + 3, kPicture, option.fontMetrics.lineSpacing());
    painter->drawText(line, Qt::AlignCenter,
                      option.fontMetrics.elidedText(index.data().toString(), Qt::ElideMiddle, kPicture));
    painter->restore();
}
