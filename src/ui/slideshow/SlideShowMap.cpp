#include "ui/slideshow/SlideShowMap.h"

#include "platform/concurrency/KTMainThread.h"
#include "platform/concurrency/KTOperationQueue.h"
#include "ui/application/ApplicationLook.h"
#include "ui/support/ObservationLink.h"
#include "ui/support/UIText.h"

#include <QApplication>
#include <QEasingCurve>
#include <QPainter>
#include <QWheelEvent>
#include <cmath>

namespace {

constexpr int kFrameTime = 16, kGlideTime = 900; // milliseconds
constexpr double kFarAway = 4;                   // view widths; further ways are not glided
constexpr double kWheelStep = 480;               // eighths of a degree of the wheel that double the scale

KTViewPoint viewPoint(QPointF point) {
    return {point.x(), point.y()};
}

/// On the shorter way around the world.
double wayBetween(double from, double to) {
    return to - from - std::round(to - from);
}

bool isFar(const KTMapViewState& from, const KTMapViewState& to) {
    const double scale = std::min(from.worldSize(), to.worldSize());
    const double way = std::hypot(wayBetween(from.worldCentre().x, to.worldCentre().x),
                                  to.worldCentre().y - from.worldCentre().y);
    return way * scale > kFarAway * to.width();
}

/// The middle moves as it looks even while the scale changes.
KTMapViewState between(const KTMapViewState& from, const KTMapViewState& to, double share) {
    const double zoom = from.zoom() + (to.zoom() - from.zoom()) * share;
    const double growth = to.worldSize() / from.worldSize();
    const double way =
        std::abs(growth - 1) < 1e-6 ? share : (1 - std::pow(growth, -share)) / (1 - 1 / growth);
    const KTWorldPoint start = from.worldCentre(), end = to.worldCentre();
    const KTWorldPoint middle = {start.x + wayBetween(start.x, end.x) * way,
                                 start.y + (end.y - start.y) * way};
    return to.zoomedTo(zoom).withCentre(KTUnproject(middle));
}

std::vector<std::vector<KTTrackPosition>> positionsOf(const KTExportedTrack& track) {
    std::vector<std::vector<KTTrackPosition>> result;
    for (const auto& segment : track.segments()) {
        auto& positions = result.emplace_back();
        for (const KTExportedPoint& point : segment)
            positions.push_back({{point.longitude, point.latitude}, point.date});
    }
    return result;
}

} // namespace

SlideShowMap::SlideShowMap(SlideShowController& slideShow, KTOperationQueue& lineQueue, QWidget* parent)
    : QWidget(parent), show(slideShow), map(slideShow.mapController()), scene(map),
      photos(scene.addPhotos(slideShow.photosOnMap())) {
    setAccessibleName(uiText("Map of the slide show"));
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
    setMinimumSize(120, 90);
    for (KTMapLayer* layer : scene.layers())
        composition.addLayer(*layer);
    composition.setDark(isDarkPalette(palette()));
    composition.setUpdateHandler([this] { update(); });
    gliding.setTimerType(Qt::PreciseTimer);
    connect(&gliding, &QTimer::timeout, this, &SlideShowMap::glide);
    observation = observeFor(this, map, "", [this] { follow(); });
    showTracks(lineQueue);
}

SlideShowMap::~SlideShowMap() {
    *isGone = true;
}

/// Lines are made one after the other and show as soon as they are made.
void SlideShowMap::showTracks(KTOperationQueue& lineQueue) {
    std::int64_t number = 0;
    for (const auto& track : show.tracks())
        lineQueue.addOperationWithBlock([track, id = ++number, gone = isGone, guard = QPointer(this)] {
            if (*gone)
                return;
            KTMapTrack made{id, track->name(), std::make_shared<const KTTrackLine>(positionsOf(*track))};
            KTPerformOnMainThread([made = std::move(made), guard] {
                if (!guard)
                    return;
                guard->tracks.push_back(made);
                guard->scene.tracks().setTracks(guard->tracks);
            });
        });
}

void SlideShowMap::follow() {
    const KTMapViewState& target = map.viewState();
    if (target == composition.viewState())
        return;
    start = composition.viewState();
    if (isLed || !isVisible() || target.width() != start.width() || target.height() != start.height() ||
        isFar(start, target)) {
        gliding.stop();
        composition.setViewState(target, isLed);
        update();
    } else {
        sinceStart.start();
        gliding.start(kFrameTime);
    }
}

void SlideShowMap::glide() {
    const double share = double(sinceStart.elapsed()) / kGlideTime;
    if (share >= 1) {
        gliding.stop();
        composition.setViewState(map.viewState(), false);
    } else {
        const double eased = QEasingCurve(QEasingCurve::InOutSine).valueForProgress(share);
        composition.setViewState(between(start, map.viewState(), eased), true);
    }
    update();
}

void SlideShowMap::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    composition.paint(painter);
}

void SlideShowMap::resizeEvent(QResizeEvent* event) {
    map.setViewSize(event->size().width(), event->size().height(), devicePixelRatioF());
    show.moveMapToPhoto();
}

void SlideShowMap::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        composition.setDark(isDarkPalette(palette()));
}

/// By hand, so at once.
void SlideShowMap::moveTo(const KTMapViewState& state) {
    isLed = true;
    map.setViewState(state);
    isLed = false;
}

void SlideShowMap::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        pressedAt = lastAt = event->position();
}

void SlideShowMap::mouseMoveEvent(QMouseEvent* event) {
    event->ignore(); // the window shows the pointer
    if ((event->buttons() & Qt::LeftButton) == 0)
        return;
    const QPointF way = event->position() - lastAt;
    lastAt = event->position();
    if ((lastAt - pressedAt).manhattanLength() >= QApplication::startDragDistance())
        moveTo(map.viewState().pannedBy(way.x(), way.y()));
}

void SlideShowMap::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton)
        return;
    if ((event->position() - pressedAt).manhattanLength() < QApplication::startDragDistance()) {
        if (const auto mark = photos.hitTest(viewPoint(event->position()), map.viewState()))
            show.showPhoto(*photos.objectsOf(*mark).front());
    } else {
        composition.setViewState(map.viewState(), false);
    }
}

void SlideShowMap::wheelEvent(QWheelEvent* event) {
    const double steps = event->angleDelta().y() / kWheelStep;
    map.setViewState(map.viewState().zoomedTo(map.scale() + steps, viewPoint(event->position())));
    event->accept();
}
