#pragma once
#include "export/slideshow/KTSlideShowScreen.h"
#include "export/slideshow/SlideShowController.h"
#include "ui/slideshow/SlideShowBar.h"
#include "ui/slideshow/SlideShowMap.h"
#include "ui/slideshow/SlideShowPictures.h"
#include "ui/slideshow/SlideShowView.h"

#include <QPointer>

class QSplitter;
class ScreenSaverInhibitor;

/// A slide show on the whole screen: the photo, beside it the map, over both the controls, which come with
/// the pointer and go with it. The screen stays awake as long.
///
/// Keys: right, down, Page Down, Return and left, up, Page Up, Backspace go to and fro, Space pauses, M shows
/// the map, C changes transitions, Escape ends the show. A click on the photo goes on, with the right button
/// back.
class SlideShowWindow : public QWidget, public KTSlideShowWindow {
    Q_OBJECT
public:
    /// @p lineQueue as for the map; @p beside a widget on the screen to be filled, or null.
    SlideShowWindow(SlideShowController& slideShow, KTOperationQueue& lineQueue, QWidget* beside);
    ~SlideShowWindow() override;

    SlideShowView& view() { return *photo; }
    SlideShowMap& map() { return *mapView; }
    SlideShowBar& bar() { return *controls; }

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void enter();
    void leave();
    void followPhoto();
    void wishForPictures();
    void showPicture();
    void setMapShown(bool isShown);
    void setControlsShown(bool areShown);

    SlideShowController& show;
    const QPointer<QWidget> neighbour;
    SlideShowPictures pictures;
    QSplitter* panes;
    SlideShowView* photo;
    SlideShowMap* mapView;
    SlideShowBar* controls;
    std::unique_ptr<ScreenSaverInhibitor> wakefulness;
    SlideShowController::Photo shown; // what the view shows, of several sizes perhaps
    QSize shownFor;
    bool isDue = false; // the current photo is yet to be shown
    QTimer idle;
    QPoint lastPointer;
    int wheel = 0;
    KTObservable::Observation running, current;
};
