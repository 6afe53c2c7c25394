#include "export/slideshow/SlideShowController.h"

#include <QTimer>
#include <algorithm>
#include <cmath>

namespace {

constexpr double kLongestInterval = 86400; // seconds

} // namespace

SlideShowController::SlideShowController(double interval, unsigned autoZoomPhotoStyle,
                                         unsigned firstTransitionStyle)
    : seconds(std::isfinite(interval) ? std::min(interval, kLongestInterval) : 0),
      zoomStyle(autoZoomPhotoStyle),
      style(firstTransitionStyle < kTransitionStyles ? firstTransitionStyle : 0),
      timer(std::make_unique<QTimer>()) {
    timer->callOnTimeout([this] { tick(); });
}

SlideShowController::~SlideShowController() = default;

void SlideShowController::setPhotos(std::vector<Photo> photos, std::size_t firstShown) {
    shownPhotos = std::move(photos);
    first = firstShown;
    current.reset();
    mapPhotos.setPhotos(shownPhotos);
}

void SlideShowController::start() {
    if (running)
        return;
    willChange("isRunning");
    running = true;
    didChange("isRunning");
    if (shownPhotos.empty())
        return stop();
    moveMap(mapPhotos.geotaggedPhotos());
    show(std::min(first, shownPhotos.size() - 1));
    startTimer();
}

void SlideShowController::stop() {
    if (!running)
        return;
    timer->stop();
    willChange("isRunning");
    running = false;
    didChange("isRunning");
    if (delegate != nullptr)
        delegate->slideShowDidFinish();
}

std::size_t SlideShowController::indexBeside(long steps) const {
    const long count = long(shownPhotos.size());
    if (!current)
        return steps < 0 ? std::size_t(count - 1) : 0;
    return std::size_t(((long(*current) + steps) % count + count) % count);
}

SlideShowController::Photo SlideShowController::photoBeside(long steps) const {
    return current ? shownPhotos[indexBeside(steps)] : nullptr;
}

void SlideShowController::nextPhoto() {
    showByHand(1);
}

void SlideShowController::previousPhoto() {
    showByHand(-1);
}

void SlideShowController::showByHand(long steps) {
    if (shownPhotos.empty())
        return;
    timer->stop();
    show(indexBeside(steps));
    startTimer();
}

void SlideShowController::showPhoto(const KTSpatialObject& photo) {
    const auto place =
        std::ranges::find_if(shownPhotos, [&](const Photo& each) { return each.get() == &photo; });
    if (place == shownPhotos.end())
        return;
    timer->stop();
    show(std::size_t(place - shownPhotos.begin()));
    startTimer();
}

void SlideShowController::show(std::size_t index) {
    if (cycles)
        setTransitionStyle((style + 1) % kTransitionStyles);
    willChange("currentPhoto");
    current = index;
    mapPhotos.setCurrentIndex(index);
    didChange("currentPhoto");
    moveMapToPhoto();
}

void SlideShowController::moveMapToPhoto() {
    if (const Photo photo = photoBeside(0); photo && photo->isGeotagged())
        moveMap({photo});
}

void SlideShowController::moveMap(const KTMapController::Objects& objects) {
    if (objects.empty())
        return;
    if (zoomStyle == kRevealPhotos)
        map.revealSpatialObjects(objects);
    else if (zoomStyle == kFitPhotos)
        map.fitSpatialObjects(objects);
}

void SlideShowController::startTimer() {
    if (running && advances && hasInterval())
        timer->start(std::chrono::milliseconds(std::max(1L, std::lround(seconds * 1000))));
}

void SlideShowController::tick() {
    if (!loadsPhoto)
        show(indexBeside(1));
}

void SlideShowController::setAutomaticallyAdvances(bool shouldAdvance) {
    willChange("automaticallyAdvances");
    advances = shouldAdvance;
    timer->stop();
    startTimer();
    didChange("automaticallyAdvances");
}

void SlideShowController::setTransitionStyle(unsigned newStyle) {
    willChange("transitionStyle");
    style = newStyle;
    didChange("transitionStyle");
}

void SlideShowController::setCyclesTransitionStyles(bool shouldCycle) {
    willChange("cyclesTransitionStyles");
    cycles = shouldCycle;
    didChange("cyclesTransitionStyles");
}
