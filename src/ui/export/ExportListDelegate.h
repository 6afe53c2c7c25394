#pragma once
#include <QStyledItemDelegate>

/// Draws an export: its name above what is being done, with a progress bar and a sign that stops it, or above
/// what was done.
class ExportListDelegate : public QStyledItemDelegate {
    Q_OBJECT
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                     const QModelIndex& index) override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

signals:
    void stopPressed(const QModelIndex& index);
    void revealPressed(const QModelIndex& index);
};
