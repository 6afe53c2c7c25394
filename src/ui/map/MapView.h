#pragma once
#include "ui/map/MapFeatures.h"
#include "ui/map/MapLayers.h"
#include "ui/map/MapPointing.h"

#include <QTimer>
#include <QWidget>

class QRubberBand;

/// The map: shows what its controller says and lets the user move, zoom,
/// select, drag and drop. Dragging pans, with Shift it selects what a frame
/// encloses; dragging a photo's marker moves the photo.
class MapView : public QWidget {
    Q_OBJECT
public:
    MapView(KTMapController& mapController, MapFeatures mapFeatures, KTThumbnailService& thumbnails,
            QWidget* parent = nullptr);

    MapLayers& layers() { return mapLayers; }
    KTMapController& controller() const { return map; }
    MapPointing& pointing() { return mapPointing; }
    const MapFeatures& features() const { return shown; }
    /// Selects the photos of a sign as a click does, or opens a cluster.
    void press(const KTPhotoLayers::Mark& mark, Qt::KeyboardModifiers modifiers);
    void zoomBy(double steps);
    /// "Zoom 7, centre 47.5° 7.5°, 12 photos shown", for those who hear it.
    QString spokenState();

signals:
    void itemsMayHaveChanged(); ///< what lies in the view, after it has come to rest

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool event(QEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    enum class Gesture { None, Undecided, Pan, Select, MoveMarker };

    void follow(const KTChange& change);
    void beginGesture(QPointF at);
    void selectInBand(bool adds);
    void hover(QPointF at);
    void setPlace(const KTMapViewState& state);
    void comeToRest();
    KTSpatialObjectController::Objects selectedObjects() const;

    KTMapController& map;
    const MapFeatures shown;
    MapLayers mapLayers;
    MapPointing mapPointing;
    MapHoverCard* card;
    QRubberBand* band = nullptr;
    Gesture gesture = Gesture::None;
    QPointF pressedAt, lastAt;
    std::shared_ptr<KTPhoto> pressedPhoto;
    bool isMoving = false;
    QTimer restTimer;
    KTObservable::Observation observation;
};
