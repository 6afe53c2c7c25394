#pragma once
#include "ui/windows/ToolWindow.h"

class ExportListModel;
class KTPhotoExportProgressWindowController;
class QLabel;
class QPushButton;
class QTreeView;

/// The list of exports, those that run and those of the past.
class ExportListWindow : public ToolWindow {
    Q_OBJECT
public:
    explicit ExportListWindow(KTPhotoExportProgressWindowController& windowController);

protected:
    void makeContent() override;

private:
    QWidget* makeButtons();
    void showMenu();
    void updateButtons();
    void stopChosen();

    KTPhotoExportProgressWindowController& controller;
    ExportListModel* model = nullptr;
    QTreeView* list = nullptr;
    QLabel* emptyText = nullptr;
    QPushButton *stop = nullptr, *reveal = nullptr, *remove = nullptr;
};
