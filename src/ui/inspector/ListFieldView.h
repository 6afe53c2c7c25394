#pragma once
#include "ui/inspector/ListFieldModel.h"

#include <QListView>

/// The rows of a list editor. A text is typed into the row for adding, also when another row is the current
/// one; F2 or a double click edits a row, Delete removes the chosen rows, a drag or Alt with the arrows moves
/// them. As high as its rows, up to some.
class ListFieldView : public QListView {
    Q_OBJECT
public:
    using Item = ListFieldModel::Item;

    /// @p edited must outlive the view.
    explicit ListFieldView(Item& edited);

    void showValue();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void startDrag(Qt::DropActions supportedActions) override;
    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    friend class ListFieldDelegate;

    void fitRows();
    void goToAddRow(bool isEdited);
    void deleteChosen();
    void moveChosen(int by);
    Item::Rows chosenRows() const;

    Item& item;
    ListFieldModel* const rows;
    KTObservable::Observation observation;
};
