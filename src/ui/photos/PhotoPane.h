#pragma once
#include "ui/photos/EmptyPhotosView.h"
#include "ui/photos/PhotoTableView.h"

class QLabel;
class PhotoViewOptions;
class QSlider;
class QStackedWidget;
class ThumbnailBrowser;

/// The left part of the main window: the photos as a table or as thumbnails, or what to do while there are
/// none; below, how many are selected. Follows the setting "defaultPhotoView".
class PhotoPane : public QWidget {
    Q_OBJECT
public:
    PhotoPane(KTPhotoController& photoController, KTThumbnailService& thumbnails,
              const EmptyPhotosView::Commands& commands, QWidget* parent = nullptr);
    ~PhotoPane() override;

    PhotoListModel& model() { return *list; }
    PhotoTableView& table() { return *tableView; }
    /// Hidden at first.
    void setViewOptionsShown(bool areShown);
    /// As the setting counts.
    enum View : unsigned { Thumbnails = 0, Table = 1 };
    static View shownView();
    static void setShownView(View view);

private:
    void showView();
    void showSelectionCount();
    QWidget* makeFoot();

    KTPhotoController& controller;
    PhotoListModel* list;
    PhotoTableView* tableView;
    ThumbnailBrowser* browser;
    QStackedWidget* stack;
    QLabel *selectionLine, *nothingFound;
    QSlider* sizeSlider;
    PhotoViewOptions* viewOptions;
    KTObservable::Observation controllerObservation, settingObservation;
};
