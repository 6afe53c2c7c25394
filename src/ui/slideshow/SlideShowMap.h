#pragma once
#include "export/slideshow/SlideShowController.h"
#include "platform/cartography/drawing/KTMapCompositor.h"
#include "platform/cartography/drawing/KTMapScene.h"

#include <QElapsedTimer>
#include <QTimer>
#include <QWidget>

class KTOperationQueue;

/// The map beside a slide show: glides to where its controller goes, and lets the user pan, zoom and choose a
/// photo.
class SlideShowMap : public QWidget {
    Q_OBJECT
public:
    /// @p lineQueue makes the tracks' lines; it outlives the view, which does not wait for it.
    SlideShowMap(SlideShowController& slideShow, KTOperationQueue& lineQueue, QWidget* parent = nullptr);
    ~SlideShowMap() override;

    /// Whether the map has come to rest and is drawn in full.
    bool isUpToDate() const { return !gliding.isActive() && composition.isUpToDate(); }
    std::size_t shownTracks() { return scene.tracks().tracks().size(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void follow();
    void glide();
    void moveTo(const KTMapViewState& state);
    void showTracks(KTOperationQueue& lineQueue);

    SlideShowController& show;
    KTMapController& map;
    KTMapScene scene;
    KTPhotoLayers& photos;
    KTMapCompositor composition; // after the scene, which it draws
    KTMapViewState start;        // of a glide; it ends where the controller is
    QElapsedTimer sinceStart;
    QTimer gliding;
    bool isLed = false; // by the user's hand
    QPointF pressedAt, lastAt;
    std::vector<KTMapTrack> tracks;
    const std::shared_ptr<std::atomic<bool>> isGone = std::make_shared<std::atomic<bool>>(false);
    KTObservable::Observation observation;
};
