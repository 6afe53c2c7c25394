#pragma once
#include "app/MediaBrowserWindowController.h"
#include "app/thumbnails/KTThumbnailService.h"
#include "ui/windows/ToolWindow.h"

class MediaBrowserModel;
class QLabel;
class QListView;
class QStackedWidget;
class QToolButton;

/// The pictures folder as a grid, from which photos are added by a double click, a button or a drag.
class MediaBrowserWindow : public ToolWindow {
    Q_OBJECT
public:
    MediaBrowserWindow(MediaBrowserWindowController& browserController, KTThumbnailService& thumbnailService);

protected:
    void makeContent() override;
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QWidget* makeHead();
    QListView* makeGrid();
    void showFolder();
    void noteFrame();
    void addChosen();

    MediaBrowserWindowController& controller;
    KTThumbnailService& thumbnails;
    MediaBrowserModel* model = nullptr;
    QListView* grid = nullptr;
    QLabel *place = nullptr, *nothing = nullptr;
    QStackedWidget* stack = nullptr;
    QToolButton* up = nullptr;
    std::vector<KTObservable::Observation> observations;
};
