#pragma once
#include "app/editor/KTMetadataFieldArrayViewItem.h"
#include "platform/observing/KTObservable.h"

#include <QWidget>

class FieldEditor;
class FieldLabel;
class QLabel;
class RowUpdates;

/// A field in the inspector: label, editor and, below it, why what was typed is no value. Its context menu
/// reverts and clears the field. Follows its item: at once while the keyboard is in it, else when @p updates
/// comes to it, and never while it is hidden.
class FieldRow : public QWidget {
    Q_OBJECT
public:
    using Item = KTMetadataFieldArrayViewItem;

    /// @p updates must outlive the row. @p group is the name of its group.
    FieldRow(std::unique_ptr<Item> edited, const QString& group, RowUpdates& updates);
    ~FieldRow() override;

    const Item& item() const { return *fieldItem; }
    /// Shows what the item holds, if that has changed since.
    void bringUpToDate();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void itemDidChange(std::string_view key);
    void showLabel();
    void showMenu(class QMenu* standard, QPoint place);
    bool hasKeyboard() const;

    std::unique_ptr<Item> fieldItem;
    const QString groupName;
    RowUpdates& updates;
    FieldLabel* label;
    QLabel *problem, *syncing = nullptr;
    FieldEditor* editor;
    bool isDue = true;
    KTObservable::Observation observation;
};
