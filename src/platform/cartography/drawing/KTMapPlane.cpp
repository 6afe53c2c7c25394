#include "platform/cartography/drawing/KTMapPlane.h"

#include "platform/concurrency/KTLatch.h"
#include "platform/concurrency/KTMainThread.h"
#include "platform/concurrency/KTThreadPool.h"

#include <QPainter>
#include <cmath>

namespace {

constexpr double kBlurryZooms = 0.7; // while it moves, an image is scaled by so many zooms at most

/// @p rect moved by whole turns of the world, to where its middle is nearest to @p middle.
KTWorldRect turnedTo(KTWorldRect rect, double middle) {
    const double turns = std::round(middle - rect.centre().x);
    rect.left += turns;
    rect.right += turns;
    return rect;
}

bool covers(const KTMapViewState& image, const KTMapViewState& view) {
    const KTWorldRect visible = view.visibleRect();
    const double rounding = 0.01 / view.worldSize();
    KTWorldRect drawn = turnedTo(image.visibleRect(), visible.centre().x);
    drawn = {drawn.left - rounding, drawn.top - rounding, drawn.right + rounding, drawn.bottom + rounding};
    return drawn.contains(visible);
}

/// The margin, in whole physical pixels, so that an image that is not moved is not blurred.
double marginOf(const KTMapViewState& view) {
    return std::round(KTMapPlane::kMargin * view.devicePixelRatio()) / view.devicePixelRatio();
}

} // namespace

struct KTMapPlane::Job {
    KTMapViewState state;
    KTMapLook look;
    unsigned generation = 0;
    KTMapDrawings drawings;
    std::atomic<bool> isCancelled = false;
    QImage pixels; // the worker's until `hasEnded`
    KTLatch hasEnded;
    KTMapPlane* plane = nullptr; // main thread; null when nobody waits for the image any more
};

KTMapPlane::KTMapPlane(bool isOpaque, std::function<void()> onArrival)
    : opaque(isOpaque), arrivalHandler(std::move(onArrival)) {}

KTMapPlane::~KTMapPlane() {
    if (!job)
        return;
    job->isCancelled = true;
    job->plane = nullptr;
    job->hasEnded.waitWithoutServing();
}

void KTMapPlane::setLayers(std::vector<KTMapLayer*> layers) {
    layerList = std::move(layers);
    invalidate();
}

void KTMapPlane::request(const KTMapViewState& state, const KTMapLook& look, bool isMoving) {
    wantedState = state;
    wantedLook = look;
    moving = isMoving;
    if (job) {
        if (isUseless(*job))
            job->isCancelled = true;
    } else if (needsDrawing()) {
        start();
    }
}

bool KTMapPlane::needsDrawing() const {
    if (image.generation != generation || image.look.isDark != wantedLook.isDark)
        return true;
    if (moving)
        return !covers(image.state, wantedState) ||
               std::abs(image.state.zoom() - wantedState.zoom()) > kBlurryZooms;
    return image.state != wantedState.widenedBy(marginOf(wantedState)) || !image.look.isAntialiased;
}

/// While the map moves, an image that is nearly right is better than none.
bool KTMapPlane::isUseless(const Job& running) const {
    if (moving)
        return !covers(running.state, wantedState) && running.look.isAntialiased;
    return running.generation != generation || running.look.isDark != wantedLook.isDark ||
           running.state != wantedState.widenedBy(marginOf(wantedState));
}

void KTMapPlane::start() {
    job = std::make_shared<Job>();
    job->plane = this;
    job->state = wantedState.widenedBy(marginOf(wantedState));
    job->look = wantedLook;
    job->look.isAntialiased = !moving;
    job->generation = generation;
    for (KTMapLayer* layer : layerList) {
        layer->willShow(wantedState);
        if (auto drawing = layer->drawing(job->state))
            job->drawings.push_back(std::move(drawing));
    }
    if (job->drawings.empty()) {
        image = {{}, job->state, job->look, generation};
        image.look.isAntialiased = true; // nothing is the same either way
        job = nullptr;
        return;
    }
    KTRunOnThreadPool([isOpaque = opaque, running = job] {
        if (!running->isCancelled) {
            running->pixels = KTMakeMapImage(running->state, isOpaque);
            KTDrawMap(running->pixels, running->state, running->look, running->drawings,
                      running->isCancelled);
            running->pixels.setDevicePixelRatio(1); // it is painted pixel by pixel
        }
        running->hasEnded.signal();
        KTPerformOnMainThread([running] {
            if (running->plane != nullptr)
                running->plane->arrived(running);
        });
    });
}

void KTMapPlane::arrived(const std::shared_ptr<Job>& finished) {
    finished->hasEnded.waitWithoutServing();
    job = nullptr;
    if (!finished->isCancelled)
        image = {finished->pixels, finished->state, finished->look, finished->generation};
    if (needsDrawing())
        start();
    arrivalHandler();
}

void KTMapPlane::paint(QPainter& painter, const KTMapViewState& state) const {
    if (image.pixels.isNull())
        return;
    const KTWorldRect drawn = turnedTo(image.state.visibleRect(), state.worldCentre().x);
    const KTViewPoint corner = state.viewPoint(KTWorldPoint{drawn.left, drawn.top});
    const double scale = state.worldSize() / image.state.worldSize(), ratio = state.devicePixelRatio();
    painter.save();
    painter.scale(1 / ratio, 1 / ratio);                         // to physical pixels
    if (scale == 1 && ratio == image.state.devicePixelRatio()) { // sharp and quick at whole pixels
        painter.drawImage(QPointF(std::round(corner.x * ratio), std::round(corner.y * ratio)), image.pixels);
    } else {
        const double growth = scale * ratio / image.state.devicePixelRatio();
        painter.drawImage(QRectF(corner.x * ratio, corner.y * ratio, image.pixels.width() * growth,
                                 image.pixels.height() * growth),
                          image.pixels);
    }
    painter.restore();
}
