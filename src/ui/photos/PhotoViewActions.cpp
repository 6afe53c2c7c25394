#include "ui/photos/PhotoViewActions.h"

#include "ui/photos/PhotoListModel.h"
#include "ui/support/MenuBuilder.h"
#include "ui/support/UICount.h"
#include "ui/support/UIText.h"

#include <QDrag>
#include <QPainter>
#include <QPixmap>

namespace {

QPixmap dragSign(const QWidget& widget, std::size_t photos) {
    const QString text = uiCount("1 photo", "%d photos", photos);
    const QSize size(widget.fontMetrics().horizontalAdvance(text) + 20, widget.fontMetrics().height() + 10);
    QPixmap pixmap(size * widget.devicePixelRatioF());
    pixmap.setDevicePixelRatio(widget.devicePixelRatioF());
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(widget.palette().highlight());
    painter.setPen(Qt::NoPen);
    painter.drawRoundedRect(QRect(QPoint(), size), 5, 5);
    painter.setFont(widget.font());
    painter.setPen(widget.palette().color(QPalette::HighlightedText));
    painter.drawText(QRect(QPoint(), size), Qt::AlignCenter, text);
    return pixmap;
}

} // namespace

void showPhotoMenu(QAbstractItemView& view, KTPhotoController& controller, const QModelIndex& index) {
    const auto photo = index.data(PhotoListModel::PhotoRole).value<PhotoListModel::Photo>();
    if (!photo)
        return;
    const auto all = controller.photos();
    const auto place = std::ranges::find(*all, photo);
    if (place != all->end())
        popUpMenu(controller.menuForRightClickAtIndex(std::size_t(place - all->begin())), view);
}

void startPhotoDrag(QAbstractItemView& view) {
    QModelIndexList rows;
    for (const QItemSelectionRange& range : view.selectionModel()->selection())
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows << view.model()->index(row, 0);
    if (rows.isEmpty())
        return;
    auto* const drag = new QDrag(&view);
    QMimeData* const data = view.model()->mimeData(rows);
    drag->setMimeData(data);
    drag->setPixmap(dragSign(view, static_cast<PhotoMimeData*>(data)->photos().size()));
    drag->exec(Qt::CopyAction, Qt::CopyAction); // a file manager must never move the photos
}
