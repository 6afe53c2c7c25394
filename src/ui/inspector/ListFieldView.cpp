#include "ui/inspector/ListFieldView.h"

#include "ui/inspector/ListFieldDelegate.h"
#include "ui/support/ObservationLink.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QLineEdit>

namespace {

constexpr int kMostShownRows = 8;

} // namespace

ListFieldView::ListFieldView(Item& edited) : item(edited), rows(new ListFieldModel(edited, this)) {
    setModel(rows);
    setItemDelegate(new ListFieldDelegate(item, *this));
    setUniformItemSizes(true);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(DoubleClicked | EditKeyPressed | AnyKeyPressed);
    setDragEnabled(true);
    setAcceptDrops(true);
    setDragDropMode(InternalMove);
    setDefaultDropAction(Qt::MoveAction);
    setDragDropOverwriteMode(false);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(this, &QAbstractItemView::clicked, this, [this](const QModelIndex& index) {
        if (index.row() == rows->addRow())
            edit(index);
    });
    // Another selection, or another field, has ended what was being typed here.
    observation = observeFor(this, item, "editedRow", [this] {
        const bool isOwn = static_cast<ListFieldDelegate*>(itemDelegate())->isCommitting();
        for (QLineEdit* const editor : viewport()->findChildren<QLineEdit*>())
            if (!item.editedRow() && !isOwn && editor->isVisible())
                QListView::closeEditor(editor, QAbstractItemDelegate::NoHint);
    });
    fitRows();
}

void ListFieldView::showValue() {
    rows->showValue();
    setEnabled(item.isEditable());
    fitRows();
    if (!currentIndex().isValid() && hasFocus())
        goToAddRow(false);
}

void ListFieldView::fitRows() {
    const int count = std::min(rows->rowCount(), kMostShownRows);
    const int height = count * ListFieldDelegate::rowHeight(*this) + 2 * frameWidth() + 2;
    if (height != minimumHeight())
        setFixedHeight(height);
}

void ListFieldView::goToAddRow(bool isEdited) {
    const QModelIndex index = rows->index(rows->addRow());
    setCurrentIndex(index);
    if (isEdited)
        edit(index);
}

ListFieldView::Item::Rows ListFieldView::chosenRows() const {
    Item::Rows chosen;
    for (const QModelIndex& index : selectionModel()->selectedRows())
        if (index.row() < rows->addRow())
            chosen.push_back(std::size_t(index.row()));
    std::ranges::sort(chosen);
    return chosen;
}

void ListFieldView::deleteChosen() {
    item.deleteValuesAtIndexes(chosenRows());
    showValue();
    goToAddRow(false);
}

/// The chosen rows, one place up or down.
void ListFieldView::moveChosen(int by) {
    const Item::Rows chosen = chosenRows();
    const bool isAtEnd =
        chosen.empty() || (by < 0 ? chosen.front() == 0 : int(chosen.back()) + 1 >= rows->addRow());
    if (isAtEnd)
        return;
    const std::size_t first = by < 0 ? chosen.front() - 1 : chosen.back() + 2 - chosen.size();
    item.moveValuesAtIndexes(chosen, by < 0 ? chosen.front() - 1 : chosen.back() + 2);
    showValue();
    clearSelection();
    for (std::size_t i = 0; i < chosen.size(); ++i)
        selectionModel()->select(rows->index(int(first + i)), QItemSelectionModel::Select);
    selectionModel()->setCurrentIndex(rows->index(int(first)), QItemSelectionModel::NoUpdate);
}

void ListFieldView::keyPressEvent(QKeyEvent* event) {
    const bool isArrow = event->key() == Qt::Key_Up || event->key() == Qt::Key_Down;
    const bool isLetter = !event->text().isEmpty() && event->text().front().isPrint() &&
                          !event->modifiers().testFlag(Qt::ControlModifier);
    if (state() == EditingState) {
        QListView::keyPressEvent(event); // what the row that is being typed leaves
    } else if (event->key() == Qt::Key_Delete || event->key() == Qt::Key_Backspace) {
        deleteChosen();
    } else if (isArrow && event->modifiers().testFlag(Qt::AltModifier)) {
        moveChosen(event->key() == Qt::Key_Up ? -1 : 1);
    } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        edit(currentIndex().isValid() ? currentIndex() : rows->index(rows->addRow()));
    } else {
        if (isLetter)
            goToAddRow(false);
        QListView::keyPressEvent(event);
    }
}

void ListFieldView::startDrag(Qt::DropActions supportedActions) {
    for (const QModelIndex& index : selectionModel()->selectedRows())
        if (index.row() == rows->addRow())
            return;
    QListView::startDrag(supportedActions);
}

/// After Return, another one can be added at once.
void ListFieldView::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) {
    const bool isAdded = static_cast<ListFieldDelegate*>(itemDelegate())->hasAdded();
    if (editor != nullptr && editor->isHidden())
        setState(NoState); // the rows have changed by what was typed
    else
        QListView::closeEditor(editor, hint);
    if (hint == QAbstractItemDelegate::RevertModelCache)
        item.cancelEditing();
    if (hint != QAbstractItemDelegate::SubmitModelCache)
        return;
    setFocus();
    showValue();
    goToAddRow(isAdded);
}

void ListFieldView::focusInEvent(QFocusEvent* event) {
    QListView::focusInEvent(event);
    const bool isByKey = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
    if (isByKey && selectionModel()->selectedRows().isEmpty())
        goToAddRow(false);
}

/// The row for adding is chosen for the keyboard alone.
void ListFieldView::focusOutEvent(QFocusEvent* event) {
    QListView::focusOutEvent(event);
    if (currentIndex().row() == rows->addRow())
        clearSelection();
}

/// The row's menu comes up.
void ListFieldView::contextMenuEvent(QContextMenuEvent* event) {
    event->ignore();
}
