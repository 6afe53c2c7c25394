#pragma once
#include "app/WaymarkWindow.h"
#include "platform/observing/KTObservable.h"

#include <QToolBar>

class KTPhotoManagerToolbarController;
class WaymarkAppController;
class WaymarkWindowController;
class QAbstractButton;
class QToolButton;

/// The tool bar of the main window: adding, undoing, how the photos are shown,
/// the filter, the panes, and "Write Changed Tags".
class MainToolBar : public QToolBar {
    Q_OBJECT
public:
    /// @p filterBar becomes part of the bar.
    MainToolBar(WaymarkWindowController& windowController, QWidget* filterBar, QWidget* parent = nullptr);

private:
    QToolButton* addButton(const QString& text, const char* icon, const QString& tip,
                           std::function<void()> command);
    void addViewButtons();
    void addPaneButton(WaymarkPane pane, const QString& text, const char* icon, const QString& tip);
    void addWriteButton();
    void showUndo();

    WaymarkWindowController& controller;
    WaymarkAppController& app;
    QToolButton *undoButton = nullptr, *redoButton = nullptr;
    std::vector<KTObservable::Observation> observations;
};
