#include "ui/export/ExportListDelegate.h"

#include "ui/export/ExportListModel.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>

namespace {

constexpr int kMargin = 6, kBarHeight = 8, kSign = 18; // pixels

const KTPhotoExportOperation& recordOf(const QModelIndex& index) {
    return *static_cast<const ExportListModel*>(index.model())->recordAt(index.row());
}

QRect stopSign(const QRect& cell) {
    return {cell.right() - kMargin - kSign, cell.center().y() - kSign / 2, kSign, kSign};
}

void drawLine(QPainter& painter, const QRect& place, const QString& text, bool isStrong) {
    QFont font = painter.font();
    font.setBold(isStrong);
    painter.setFont(font);
    painter.drawText(place, Qt::AlignLeft | Qt::AlignVCenter,
                     QFontMetrics(font).elidedText(text, Qt::ElideRight, place.width()));
}

void drawBar(QPainter& painter, const QRect& place, const KTPhotoExportOperation& record,
             const QWidget* widget) {
    QStyleOptionProgressBar bar;
    bar.initFrom(widget);
    bar.rect = place;
    bar.minimum = 0;
    // Counts beyond an int are shown by thousandths.
    bar.maximum = record.indeterminateProgress || record.totalValue == 0 ? 0 : 1000;
    bar.progress = bar.maximum == 0 ? 0
                                    : int(1000.0 * double(std::min(record.currentValue, record.totalValue)) /
                                          double(record.totalValue));
    bar.state |= QStyle::State_Horizontal | QStyle::State_Enabled;
    QApplication::style()->drawControl(QStyle::CE_ProgressBar, &bar, &painter, widget);
}

} // namespace

QSize ExportListDelegate::sizeHint(const QStyleOptionViewItem&, const QModelIndex& index) const {
    return index.data(Qt::SizeHintRole).toSize();
}

void ExportListDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                               const QModelIndex& index) const {
    if (index.column() != ExportListModel::DescriptionColumn)
        return QStyledItemDelegate::paint(painter, option, index);
    QApplication::style()->drawPrimitive(QStyle::PE_PanelItemViewItem, &option, painter, option.widget);
    const KTPhotoExportOperation& record = recordOf(index);
    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    QRect text = option.rect.adjusted(kMargin, 2, -kMargin, -2);
    if (record.inProgress)
        text.setRight(stopSign(option.rect).left() - kMargin);
    painter->save();
    painter->setFont(option.font);
    painter->setPen(option.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text));
    const int lines = record.inProgress ? text.height() - kBarHeight - 2 : text.height();
    const QStringList texts = index.data(Qt::DisplayRole).toString().split('\n');
    drawLine(*painter, {text.left(), text.top(), text.width(), lines / 2}, texts.value(0), true);
    drawLine(*painter, {text.left(), text.top() + lines / 2, text.width(), lines / 2}, texts.value(1), false);
    if (record.inProgress) {
        drawBar(*painter, {text.left(), text.bottom() - kBarHeight, text.width(), kBarHeight}, record,
                option.widget);
        QIcon::fromTheme("process-stop").paint(painter, stopSign(option.rect));
    }
    painter->restore();
}

bool ExportListDelegate::editorEvent(QEvent* event, QAbstractItemModel*, const QStyleOptionViewItem& option,
                                     const QModelIndex& index) {
    if (event->type() != QEvent::MouseButtonRelease)
        return false;
    const auto* const mouse = static_cast<QMouseEvent*>(event);
    if (mouse->button() != Qt::LeftButton)
        return false;
    const KTPhotoExportOperation& record = recordOf(index);
    if (index.column() == ExportListModel::RevealColumn && !record.destinationURL.empty())
        emit revealPressed(index);
    else if (index.column() == ExportListModel::DescriptionColumn && record.inProgress &&
             stopSign(option.rect).contains(mouse->position().toPoint()))
        emit stopPressed(index);
    else
        return false;
    return true;
}
