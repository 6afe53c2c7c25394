#pragma once
#include "ui/inspector/ListFieldView.h"

#include <QStyledItemDelegate>

/// Lets a row of a list editor be typed, as an edit of the photos that are selected at its beginning.
class ListFieldDelegate : public QStyledItemDelegate {
    Q_OBJECT
public:
    using Item = ListFieldModel::Item;

    ListFieldDelegate(Item& edited, ListFieldView& list);

    static int rowHeight(const QWidget& list) { return list.fontMetrics().height() + 8; }
    /// Whether the last text was typed into the row for adding.
    bool hasAdded() const { return isAdding && !typed.isEmpty(); }
    /// While the list itself ends the typing.
    bool isCommitting() const { return isEnding; }

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;
    bool eventFilter(QObject* editor, QEvent* event) override;

private:
    Item& item;
    ListFieldView& view;
    mutable bool isAdding = false, isEnding = false;
    mutable QString typed;
};
