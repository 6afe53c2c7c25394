#include "ui/inspector/ListFieldDelegate.h"

#include "ui/inspector/TagLineEdit.h"

#include <QKeyEvent>

ListFieldDelegate::ListFieldDelegate(Item& edited, ListFieldView& list)
    : QStyledItemDelegate(&list), item(edited), view(list) {}

QSize ListFieldDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    return {QStyledItemDelegate::sizeHint(option, index).width(), rowHeight(view)};
}

QWidget* ListFieldDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                         const QModelIndex& index) const {
    auto* const editor = new TagLineEdit(parent);
    isAdding = std::size_t(index.row()) >= item.values().size();
    typed.clear();
    editor->setFrame(false);
    editor->setAutoFillBackground(true);
    editor->setPlaceholderText(QString::fromStdString(item.placeholderOfRow(std::size_t(index.row()))));
    editor->setAccessibleName(isAdding ? editor->placeholderText() : index.data(Qt::EditRole).toString());
    editor->setToolTip(view.toolTip());
    editor->setCompletion([this](const std::string& text) { return item.firstValueMatchingPrefix(text); });
    item.beginEditingRow(std::size_t(index.row()));
    connect(editor, &QLineEdit::textEdited, editor, [this](const QString& text) {
        typed = text;
        item.setEditedText(text.toStdString());
    });
    return editor;
}

void ListFieldDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const {
    static_cast<TagLineEdit*>(editor)->setText(index.data(Qt::EditRole).toString());
}

/// The item has followed the typing.
void ListFieldDelegate::setModelData(QWidget*, QAbstractItemModel*, const QModelIndex&) const {
    isEnding = true;
    item.endEditing();
    isEnding = false;
}

/// Tab leaves the list, for the next field of the page; Escape reaches the view before the line.
bool ListFieldDelegate::eventFilter(QObject* editor, QEvent* event) {
    auto* const widget = qobject_cast<QWidget*>(editor);
    const auto* const key = event->type() == QEvent::KeyPress ? static_cast<QKeyEvent*>(event) : nullptr;
    const bool isTab = key != nullptr && (key->key() == Qt::Key_Tab || key->key() == Qt::Key_Backtab);
    if (!isTab || widget == nullptr)
        return QStyledItemDelegate::eventFilter(editor, event);
    emit commitData(widget);
    emit closeEditor(widget, NoHint);
    view.setFocus();
    view.focusNextPrevChild(key->key() == Qt::Key_Tab);
    return true;
}
