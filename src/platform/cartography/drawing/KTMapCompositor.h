#pragma once
#include "platform/cartography/drawing/KTMapPlane.h"

#include <set>

/// Puts a map together at every frame, quickly: from images of its ground and of its features, which worker
/// threads draw somewhat larger than the view, and what is drawn at every frame. While the map moves, the
/// images at hand are moved and scaled, and drawn anew without antialiasing where they do not reach; when it
/// has come to rest, exact ones replace them. Drawings that nobody needs any more are cancelled.
///
/// Main thread, whose event loop must run for finished images to arrive. Needs a QGuiApplication.
class KTMapCompositor {
public:
    KTMapCompositor();
    /// Waits for the workers.
    ~KTMapCompositor();
    KTMapCompositor(const KTMapCompositor&) = delete;
    KTMapCompositor& operator=(const KTMapCompositor&) = delete;

    /// Called when another picture can be painted.
    void setUpdateHandler(std::function<void()> handler) { updateHandler = std::move(handler); }
    /// Called once with each problem of a layer, in the user's language.
    void setProblemHandler(std::function<void(const std::string&)> handler) {
        problemHandler = std::move(handler);
    }

    /// The layer must stay until it is removed.
    void addLayer(KTMapLayer& layer);
    void removeLayer(KTMapLayer& layer);
    const std::vector<KTMapLayer*>& layers() const { return layerList; } ///< from below

    const KTMapViewState& viewState() const { return state; }
    /// @p isMoving: whether more will follow soon, as while the user drags. The last one must not be moving.
    void setViewState(const KTMapViewState& newState, bool isMoving);
    bool isDark() const { return dark; }
    void setDark(bool isDark);

    /// Paints the map into the rectangle from (0, 0) to the view's size, in logical pixels. Takes some
    /// milliseconds.
    void paint(QPainter& painter);
    /// Whether what paint paints is exact, and nothing is being drawn.
    bool isUpToDate() const { return ground.isUpToDate() && features.isUpToDate(); }

private:
    void layerDidChange(const KTMapLayer& layer);
    KTMapPlane& planeOf(const KTMapLayer& layer);
    void refresh();
    void planeDidChange();

    std::vector<KTMapLayer*> layerList;
    KTMapViewState state;
    bool moving = false, dark = false;
    std::function<void()> updateHandler;
    std::function<void(const std::string&)> problemHandler;
    std::set<std::string> toldProblems;
    KTMapPlane ground, features;
};
