#pragma once
#include "platform/cartography/KTMapViewState.h"

#include <atomic>
#include <functional>
#include <memory>
#include <optional>
#include <string>

class QPainter;

/// How a picture of the map is to look. A plain value.
struct KTMapLook {
    bool isDark = false;
    /// Off while the map moves, where a drawing must be quick.
    bool isAntialiased = true;

    bool operator==(const KTMapLook&) const = default;
};

/// What a layer draws: an immutable snapshot that a worker thread draws while the layer goes on changing.
class KTMapDrawing {
public:
    virtual ~KTMapDrawing() = default;

    /// Draws what @p state shows. @p painter counts in logical pixels of that view and takes care of the
    /// device pixel ratio; its state (pen, brush, transformation, hints, clip) may be left changed.
    /// Antialiasing is set as the look says.
    ///
    /// Called on a worker thread, by several at once for different views. Should look at @p isCancelled every
    /// few milliseconds and return early when it is set: what was drawn is thrown away then.
    virtual void draw(QPainter& painter, const KTMapViewState& state, const KTMapLook& look,
                      const std::atomic<bool>& isCancelled) const = 0;
};

/// One layer of a map. It lives on the main thread, on which everything is called that is not said to be for
/// other threads. Layers that features are picked from answer questions about points of the view themselves:
/// they know what their features are.
class KTMapLayer {
public:
    /// The order of the layers, from below; layers of one place lie in the order in which they were added.
    /// Images are drawn and kept for runs of layers: for the ground, for the features, and none for what is
    /// above, which is drawn at every frame on the main thread and must take a millisecond at most.
    enum class Place {
        BaseMap, ///< fills the view
        Tiles,   ///< over the base map, which shows through where there is none
        // Features
        Tracks,
        Geodesics,
        Photos,
        LinkablePoints,
        Selection,
        // At every frame
        Animations,
        Crosshairs,
        Marginalia, ///< scale bar, coordinates, attribution
    };
    static bool isGround(Place place) { return place <= Place::Tiles; }
    static bool isDrawnAtEveryFrame(Place place) { return place >= Place::Animations; }

    explicit KTMapLayer(Place place) : layerPlace(place) {}
    virtual ~KTMapLayer() = default;
    KTMapLayer(const KTMapLayer&) = delete;
    KTMapLayer& operator=(const KTMapLayer&) = delete;

    Place place() const { return layerPlace; }

    /// Told what the user sees, before drawings for it or for a wider view are asked for. What is fetched
    /// from servers follows this alone: nothing is fetched that nobody looks at.
    virtual void willShow(const KTMapViewState& visible) { static_cast<void>(visible); }

    /// What there is to be drawn now in @p state, which may be larger than the visible view; null for
    /// nothing. Quick: whatever takes time belongs into the drawing. A layer that did not change may return
    /// the same object again.
    virtual std::shared_ptr<const KTMapDrawing> drawing(const KTMapViewState& state) = 0;

    /// Whom the layer owes thanks, as plain text; empty for nobody.
    virtual std::string attribution() const { return {}; }

    /// What does not work, in the user's language, for the map to say once; nothing when all is well.
    virtual std::optional<std::string> problem() const { return std::nullopt; }

    /// Called, on the main thread, by the layer when its drawing has changed; set by the map that shows it.
    void setChangeHandler(std::function<void()> handler) { changeHandler = std::move(handler); }

protected:
    void changed() const {
        if (changeHandler)
            changeHandler();
    }

private:
    const Place layerPlace;
    std::function<void()> changeHandler;
};
