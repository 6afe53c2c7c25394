#include "ui/photos/PhotoTableDelegate.h"

#include "ui/photos/PhotoListModel.h"
#include "ui/photos/PhotoStatus.h"
#include "ui/photos/ThumbnailPainter.h"

#include <QApplication>
#include <QPainter>

namespace {

constexpr int kSignEdge = 13, kThumbnailMargin = 3;

void paintGround(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index) {
    QStyleOptionViewItem ground = option;
    ground.index = index;
    ground.text.clear();
    const QWidget* const widget = option.widget;
    (widget ? widget->style() : QApplication::style())
        ->drawPrimitive(QStyle::PE_PanelItemViewItem, &ground, &painter, widget);
}

/// A failure hides the mark of unsaved changes, which it implies, and a warning gives way to it.
void paintSigns(QPainter& painter, const QStyleOptionViewItem& option, unsigned signs) {
    const bool isSelected = (option.state & QStyle::State_Selected) != 0;
    const QRect& cell = option.rect;
    auto sign = [&](PhotoStatus::Sign which, int place) {
        const QRectF square(cell.x() + 4 + place * (kSignEdge + 2),
                            cell.y() + (cell.height() - kSignEdge) / 2.0, kSignEdge, kSignEdge);
        PhotoStatus::paint(painter, which, square, option.palette, isSelected);
    };
    if (signs & PhotoStatus::Failed)
        sign(PhotoStatus::Failed, 0);
    else if (signs & PhotoStatus::Unsaved)
        sign(PhotoStatus::Unsaved, 0);
    if (signs & PhotoStatus::Geotagged)
        sign(PhotoStatus::Geotagged, 1);
}

} // namespace

void PhotoTableDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                               const QModelIndex& index) const {
    if (index.column() >= PhotoListModel::FirstFieldColumn) {
        QStyledItemDelegate::paint(painter, option, index);
        return;
    }
    paintGround(*painter, option, index);
    if (index.column() == PhotoListModel::StatusColumn) {
        paintSigns(*painter, option, index.data(PhotoListModel::StatusRole).toUInt());
        return;
    }
    const auto photo = index.data(PhotoListModel::PhotoRole).value<PhotoListModel::Photo>();
    const int margin = option.rect.height() > 30 ? kThumbnailMargin : 1;
    paintThumbnail(*painter, service, photo->fileURL(),
                   option.rect.adjusted(margin, margin, -margin, -margin), option.palette);
}
