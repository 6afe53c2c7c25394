#pragma once
#include "ui/windows/ToolWindow.h"

class KTDateTool;
class KTDateToolsWindowController;
class QLabel;
class QTabBar;
class QTreeWidget;
class QVBoxLayout;

/// The date tools: shift, set and copy the capture dates of the selected photos, with what would become of
/// some of them before it is done.
class DateToolsWindow : public ToolWindow {
    Q_OBJECT
public:
    explicit DateToolsWindow(KTDateToolsWindowController& toolsController);

protected:
    void makeContent() override;

private:
    void showTool();
    void removePanel();
    void showPreviews();

    KTDateToolsWindowController& controller;
    QTabBar* tabs = nullptr;
    QVBoxLayout* place = nullptr;
    QWidget* panel = nullptr;
    QLabel* selectionLine = nullptr;
    QTreeWidget* previews = nullptr;
    KTObservable::Observation windowObservation, toolObservation;
};
