#pragma once
#include "ui/windows/ToolWindow.h"

class KTTagDetailsWindowController;
class QSortFilterProxyModel;
class QTreeView;

/// The tag details: one of the selected photos' dictionaries of tags, searched
/// and copied.
class TagDetailsWindow : public ToolWindow {
    Q_OBJECT
public:
    explicit TagDetailsWindow(KTTagDetailsWindowController& tagController);

protected:
    void makeContent() override;

private:
    QWidget* makeHead();
    void copy() const;

    KTTagDetailsWindowController& controller;
    QSortFilterProxyModel* narrowed = nullptr;
    QTreeView* list = nullptr;
};
