#pragma once
#include "ui/map/MapView.h"

class QToolButton;

/// The map with its controls: scale, fitting, the source of the ground.
class MapPane : public QWidget {
    Q_OBJECT
public:
    /// @p fit shows all that is selected.
    MapPane(KTMapController& mapController, MapFeatures features, KTThumbnailService& thumbnails,
            std::function<void()> fit, QWidget* parent = nullptr);

    MapView& view() { return *map; }

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void makeScaleButtons(std::function<void()> fit);
    void makeSourceButton();
    void showSource();
    void place();

    MapView* map;
    QWidget* scaleButtons;
    QToolButton* sourceButton;
    KTObservable::Observation observation;
};
