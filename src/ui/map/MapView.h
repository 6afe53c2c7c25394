#pragma once
#include "ui/map/MapFeatures.h"
#include "ui/map/MapHoverCard.h"
#include "ui/map/MapLayers.h"

#include <QTimer>
#include <QWidget>

/// The map: shows what its controller says and lets the user move, zoom and drop. Dragging pans.
class MapView : public QWidget {
    Q_OBJECT
public:
    MapView(KTMapController& mapController, MapFeatures mapFeatures, KTThumbnailService& thumbnails,
            QWidget* parent = nullptr);

    MapLayers& layers() { return mapLayers; }
    KTMapController& controller() const { return map; }
    const MapFeatures& features() const { return shown; }
    void zoomBy(double steps);

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
    enum class Gesture { None, Undecided, Pan };

    void follow(const KTChange& change);
    void setPlace(const KTMapViewState& state);
    void comeToRest();

    KTMapController& map;
    const MapFeatures shown;
    MapLayers mapLayers;
    MapHoverCard* card;
    Gesture gesture = Gesture::None;
    QPointF pressedAt, lastAt;
    bool isMoving = false;
    QTimer restTimer;
    KTObservable::Observation observation;
};
