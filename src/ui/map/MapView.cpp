#include "ui/map/MapView.h"

#include "ui/application/ApplicationLook.h"
#include "ui/support/MenuBuilder.h"
#include "ui/support/UICount.h"
#include "ui/support/UIText.h"

#include <QApplication>
#include <QLocale>
#include <QPainter>
#include <QResizeEvent>
#include <QRubberBand>

namespace {

constexpr std::chrono::milliseconds kRest{140};
constexpr double kWheelStep = 480; // eighths of a degree of the wheel that double the scale

KTViewPoint viewPoint(QPointF point) {
    return {point.x(), point.y()};
}

} // namespace

MapView::MapView(KTMapController& mapController, MapFeatures mapFeatures, KTThumbnailService& thumbnails,
                 QWidget* parent)
    : QWidget(parent), map(mapController), shown(std::move(mapFeatures)), mapLayers(map, shown),
      mapPointing(mapLayers, map), card(new MapHoverCard(thumbnails, this)) {
    setAccessibleName(uiText("Map"));
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAcceptDrops(true);
    setMinimumSize(120, 90);
    restTimer.setSingleShot(true);
    connect(&restTimer, &QTimer::timeout, this, &MapView::comeToRest);
    mapLayers.compositor().setDark(isDarkPalette(palette()));
    mapLayers.compositor().setUpdateHandler([this] { update(); });
    observation = map.observe([this](const KTChange& change) { follow(change); });
}

void MapView::follow(const KTChange& change) {
    if (change.isPrior)
        return;
    if (change.key == "viewState") {
        mapLayers.compositor().setViewState(map.viewState(), isMoving);
        update();
        if (!isMoving)
            restTimer.start(kRest);
    } else if (change.key == "needsDisplay" || change.key == "shouldShowCrosshairs") {
        update();
    }
}

void MapView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    mapLayers.compositor().paint(painter);
    if (hasFocus()) {
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
        painter.drawRect(rect().adjusted(1, 1, -1, -1));
    }
}

void MapView::resizeEvent(QResizeEvent* event) {
    map.setViewSize(event->size().width(), event->size().height(), devicePixelRatioF());
    mapLayers.compositor().setViewState(map.viewState(), false);
}

void MapView::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        mapLayers.compositor().setDark(isDarkPalette(palette()));
}

/// Moves the map; it counts as moving until it has been left alone for a
/// moment.
void MapView::setPlace(const KTMapViewState& state) {
    isMoving = true;
    map.setViewState(state);
    restTimer.start(kRest);
}

void MapView::comeToRest() {
    if (gesture == Gesture::Pan)
        return;
    isMoving = false;
    mapLayers.compositor().setViewState(map.viewState(), false);
    update();
    emit itemsMayHaveChanged();
}

void MapView::zoomBy(double steps) {
    setPlace(map.viewState().zoomedTo(map.scale() + steps));
}

// Gestures

void MapView::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton)
        return;
    card->show({}, {});
    pressedAt = lastAt = event->position();
    pressedPhoto = mapPointing.photoAt(viewPoint(pressedAt));
    gesture = Gesture::Undecided;
}

void MapView::beginGesture(QPointF at) {
    if (QApplication::keyboardModifiers() & Qt::ShiftModifier) {
        gesture = Gesture::Select;
        if (band == nullptr)
            band = new QRubberBand(QRubberBand::Rectangle, this);
        band->setGeometry(QRect(pressedAt.toPoint(), at.toPoint()).normalized());
        band->show();
    } else if (pressedPhoto) {
        gesture = Gesture::MoveMarker;
        setCursor(Qt::CrossCursor);
    } else {
        gesture = Gesture::Pan;
        setCursor(Qt::ClosedHandCursor);
    }
}

void MapView::mouseMoveEvent(QMouseEvent* event) {
    const QPointF at = event->position();
    mapLayers.scaleBar().setShownPosition(map.viewState().position(viewPoint(at)));
    if (gesture == Gesture::Undecided &&
        (at - pressedAt).manhattanLength() >= QApplication::startDragDistance())
        beginGesture(at);
    if (gesture == Gesture::Pan)
        setPlace(map.viewState().pannedBy(at.x() - lastAt.x(), at.y() - lastAt.y()));
    else if (gesture == Gesture::Select)
        band->setGeometry(QRect(pressedAt.toPoint(), at.toPoint()).normalized());
    else if (gesture == Gesture::None)
        hover(at);
    lastAt = at;
    update();
}

void MapView::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || gesture == Gesture::None)
        return;
    const Gesture ended = std::exchange(gesture, Gesture::None);
    const KTViewPoint at = viewPoint(event->position());
    unsetCursor();
    if (ended == Gesture::Select) {
        band->hide();
        selectInBand((event->modifiers() & Qt::ControlModifier) != 0);
    } else if (ended == Gesture::MoveMarker) {
        shown.geotagPhotos({pressedPhoto}, map.viewState().position(at));
    } else if (ended == Gesture::Undecided) {
        if (const auto mark = mapLayers.photos().hitTest(at, map.viewState()))
            press(*mark, event->modifiers());
    }
    pressedPhoto = nullptr;
    restTimer.start(kRest);
}

void MapView::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        setPlace(map.viewState().zoomedTo(map.scale() + 1, viewPoint(event->position())));
}

void MapView::wheelEvent(QWheelEvent* event) {
    const double steps = event->angleDelta().y() / kWheelStep;
    setPlace(map.viewState().zoomedTo(map.scale() + steps, viewPoint(event->position())));
    event->accept();
}

bool MapView::event(QEvent* event) {
    if (event->type() == QEvent::NativeGesture) {
        auto* const pinch = static_cast<QNativeGestureEvent*>(event);
        if (pinch->gestureType() == Qt::ZoomNativeGesture) {
            setPlace(
                map.viewState().zoomedTo(map.scale() + pinch->value() * 1.5, viewPoint(pinch->position())));
            return true;
        }
    }
    return QWidget::event(event);
}

void MapView::keyPressEvent(QKeyEvent* event) {
    const double step = event->modifiers() & Qt::ShiftModifier ? 200 : 60;
    auto pan = [&](double x, double y) { setPlace(map.viewState().pannedBy(x * step, y * step)); };
    switch (event->key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        return zoomBy(1);
    case Qt::Key_Minus:
        return zoomBy(-1);
    case Qt::Key_Left:
        return pan(1, 0);
    case Qt::Key_Right:
        return pan(-1, 0);
    case Qt::Key_Up:
        return pan(0, 1);
    case Qt::Key_Down:
        return pan(0, -1);
    default:
        QWidget::keyPressEvent(event);
    }
}

void MapView::contextMenuEvent(QContextMenuEvent* event) {
    card->show({}, {});
    popUpMenu(shown.contextMenu(map.viewState().position(viewPoint(event->pos()))), *this);
}

// Pointing and selecting

void MapView::hover(QPointF at) {
    const auto content = mapPointing.contentAt(viewPoint(at));
    card->show(content, at.toPoint());
    setCursor(content.subject ? Qt::PointingHandCursor : Qt::ArrowCursor);
}

void MapView::leaveEvent(QEvent*) {
    card->show({}, {});
    mapLayers.scaleBar().setShownPosition(std::nullopt);
    update();
}

KTSpatialObjectController::Objects MapView::selectedObjects() const {
    const auto all = shown.photos.spatialObjects();
    KTSpatialObjectController::Objects selected;
    for (const std::size_t index : shown.photos.spatialObjectSelectionIndexes())
        selected.push_back(all[index]);
    return selected;
}

/// A cluster opens; a photo, or a pile of them, is selected, with Ctrl added to
/// the selection or taken out.
void MapView::press(const KTPhotoLayers::Mark& mark, Qt::KeyboardModifiers modifiers) {
    const bool adds = (modifiers & Qt::ControlModifier) != 0;
    if (mark.kind == KTPhotoLayers::Mark::Kind::Cluster && !adds) {
        if (const auto bounds = mapLayers.photos().boundsOf(mark))
            map.fitBounds(*bounds);
        return;
    }
    const auto pressed = mapLayers.photos().objectsOf(mark);
    if (!adds) {
        shown.photos.addSelectedSpatialObjects(pressed);
        return;
    }
    auto selection = selectedObjects();
    const bool areAllSelected = mark.selected == pressed.size();
    for (const auto& object : pressed) {
        std::erase(selection, object);
        if (!areAllSelected)
            selection.push_back(object);
    }
    shown.photos.addSelectedSpatialObjects(selection);
}

void MapView::selectInBand(bool adds) {
    const QRect frame = band->geometry();
    auto selection = mapLayers.photos().objectsIn(viewPoint(frame.topLeft()), viewPoint(frame.bottomRight()),
                                                  map.viewState());
    if (adds)
        for (const auto& object : selectedObjects())
            if (std::ranges::find(selection, object) == selection.end())
                selection.push_back(object);
    shown.photos.addSelectedSpatialObjects(selection);
}

QString MapView::spokenState() {
    std::size_t visible = 0;
    for (const auto& mark : mapLayers.photos().visibleMarks(map.viewState()))
        visible += mark.numbers.size();
    return uiText("Zoom %1, centre %2, %3, %4, %5")
        .arg(QLocale().toString(map.scale(), 'f', 1), QLocale().toString(map.latitude(), 'f', 4),
             QLocale().toString(map.longitude(), 'f', 4),
             uiCount("1 photo shown", "%d photos shown", visible),
             uiCount("1 track", "%d tracks", mapLayers.tracks().tracks().size()));
}
