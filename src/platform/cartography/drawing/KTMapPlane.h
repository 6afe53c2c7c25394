#pragma once
#include "platform/cartography/drawing/KTMapPicture.h"

/// One of the images that a map is put together from: that of a run of layers, drawn by a worker thread for
/// the view and some space around it. Main thread.
class KTMapPlane {
public:
    /// @p isOpaque: whether its layers fill the view. @p onArrival is called when a drawing has ended.
    KTMapPlane(bool isOpaque, std::function<void()> onArrival);
    ~KTMapPlane();
    KTMapPlane(const KTMapPlane&) = delete;
    KTMapPlane& operator=(const KTMapPlane&) = delete;

    /// The layers, from below; from now on the image is another.
    void setLayers(std::vector<KTMapLayer*> layers);
    /// Something that is drawn has changed.
    void invalidate() { ++generation; }
    /// Has what @p state needs drawn, if that is not at hand.
    void request(const KTMapViewState& state, const KTMapLook& look, bool isMoving);
    /// Paints the image where it belongs in @p state.
    void paint(QPainter& painter, const KTMapViewState& state) const;
    /// Whether the image at hand is what was last requested.
    bool isUpToDate() const { return !job && !needsDrawing(); }

    static constexpr double kMargin = 160; ///< logical pixels of the image beyond each side of the view

private:
    struct Job;
    struct Image {
        QImage pixels;
        KTMapViewState state; ///< that of the whole image
        KTMapLook look;
        unsigned generation = 0;
    };

    bool needsDrawing() const;
    bool isUseless(const Job& running) const;
    void start();
    void arrived(const std::shared_ptr<Job>& finished);

    const bool opaque;
    const std::function<void()> arrivalHandler;
    std::vector<KTMapLayer*> layerList;
    unsigned generation = 1; // of what is drawn; the image's is an earlier or the same one
    KTMapViewState wantedState;
    KTMapLook wantedLook;
    bool moving = false;
    Image image;
    std::shared_ptr<Job> job; // null while nothing is drawn
};
