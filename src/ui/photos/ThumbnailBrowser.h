#pragma once
#include "app/thumbnails/KTThumbnailService.h"
#include "ui/photos/PhotoListModel.h"

#include <QListView>

class ThumbnailDelegate;
class ThumbnailWisher;

/// The thumbnail browser: a grid of the photos. Dragging inside puts photos into another order, dragging out
/// gives files. Follows the settings "defaultPhotoCellSize", "shouldShowTitleDefault" and
/// "shouldShowSubtitleDefault".
class ThumbnailBrowser : public QListView {
    Q_OBJECT
public:
    ThumbnailBrowser(PhotoListModel& list, KTPhotoController& photoController, KTThumbnailService& thumbnails,
                     QWidget* parent = nullptr);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void startDrag(Qt::DropActions supportedActions) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void applySettings();

    KTPhotoController& controller;
    ThumbnailDelegate* cells;
    ThumbnailWisher* wisher;
    KTObservable::Observation settingObservation;
};
