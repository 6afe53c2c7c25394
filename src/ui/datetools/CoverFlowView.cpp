#include "ui/datetools/CoverFlowView.h"

#include "ui/datetools/AccessibleCoverFlow.h"
#include "ui/support/ObservationLink.h"
#include "ui/support/UIText.h"

#include <QKeyEvent>
#include <QPainter>
#include <QStyle>
#include <cmath>

namespace {

constexpr int kWheelStep = 120;        // what a notch of a wheel tells
constexpr double kFarthest = 10;       // pictures that a movement passes; it leaves out the rest
constexpr double kFadingPart = 0.12;   // of the width, at both ends
constexpr double kTimeForPictures = 4; // milliseconds of a frame

} // namespace

CoverFlowView::CoverFlowView(KTThumbnailService& thumbnails, QWidget* parent)
    : QWidget(parent), pictures(thumbnails) {
    AccessibleCoverFlow::install();
    setAccessibleName(uiText("Selected photos"));
    setToolTip(
        uiText("The selected photos: arrow keys, the wheel or a click bring another one to the front"));
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    movement.setEasingCurve(QEasingCurve::OutCubic);
    connect(&movement, &QVariantAnimation::valueChanged, this, [this](const QVariant& value) {
        position = value.toDouble();
        update();
    });
    observation = observeFor(this, thumbnails, {}, [this] {
        if (pictures.takeThumbnails())
            update();
    });
}

void CoverFlowView::setPhotos(std::shared_ptr<const Photos> newPhotos, std::optional<std::size_t> newFront) {
    const bool isSame = photos && newPhotos && (photos == newPhotos || *photos == *newPhotos);
    photos = std::move(newPhotos);
    frontIndex = count() > 0 ? newFront : std::nullopt;
    const double target = double(frontIndex.value_or(0));
    if (isSame)
        moveTo(target);
    else {
        movement.stop();
        position = target;
    }
    wish();
    update();
    QAccessibleValueChangeEvent event(this, int(target) + 1);
    QAccessible::updateAccessibility(&event);
}

void CoverFlowView::moveTo(double target) {
    const bool isOnItsWay = movement.state() == QAbstractAnimation::Running;
    if (target == (isOnItsWay ? movement.endValue().toDouble() : position))
        return;
    movement.stop();
    const int duration = style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, this);
    if (duration == 0 || !isVisible()) {
        position = target;
        return;
    }
    position = std::clamp(position, target - kFarthest, target + kFarthest);
    movement.setStartValue(position);
    movement.setEndValue(target);
    movement.setDuration(duration);
    movement.start();
}

void CoverFlowView::step(std::ptrdiff_t places) {
    if (!frontIndex)
        return;
    const auto last = std::ptrdiff_t(count()) - 1;
    const auto next = std::size_t(std::clamp<std::ptrdiff_t>(std::ptrdiff_t(*frontIndex) + places, 0, last));
    if (next == *frontIndex)
        return;
    setPhotos(photos, next);
    emit frontChosen(next);
}

QString CoverFlowView::frontText() const {
    if (!frontIndex)
        return {};
    return uiText("%1, %2 of %3")
        .arg(uiPath((*photos)[*frontIndex]->filename()), QString::number(*frontIndex + 1),
             QString::number(count()));
}

void CoverFlowView::wish() {
    if (isVisible() && frontIndex)
        pictures.wishAround(*photos, *frontIndex, reach());
    else
        pictures.wishNothing();
}

void CoverFlowView::renewLook() {
    pictures.setLook(CoverFlowGeometry(size()), palette(), devicePixelRatioF());
    wish();
    update();
}

void CoverFlowView::resizeEvent(QResizeEvent*) {
    renewLook();
}

void CoverFlowView::showEvent(QShowEvent*) {
    renewLook();
}

void CoverFlowView::hideEvent(QHideEvent*) {
    pictures.wishNothing();
}

void CoverFlowView::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        renewLook();
}

void CoverFlowView::keyPressEvent(QKeyEvent* event) {
    const std::ptrdiff_t page = std::max(1, reach() - 2), all = std::ptrdiff_t(count());
    switch (event->key()) {
    case Qt::Key_Left:
        return step(-1);
    case Qt::Key_Right:
        return step(1);
    case Qt::Key_PageUp:
        return step(-page);
    case Qt::Key_PageDown:
        return step(page);
    case Qt::Key_Home:
        return step(-all);
    case Qt::Key_End:
        return step(all);
    default:
        QWidget::keyPressEvent(event);
    }
}

/// A wheel turned away, or fingers moved to the right, bring the photo to the left.
void CoverFlowView::wheelEvent(QWheelEvent* event) {
    const QPoint turned = event->angleDelta();
    turnedWheel += std::abs(turned.x()) > std::abs(turned.y()) ? turned.x() : turned.y();
    const int steps = turnedWheel / kWheelStep;
    turnedWheel -= steps * kWheelStep;
    step(-steps);
    event->accept();
}

void CoverFlowView::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton)
        return QWidget::mousePressEvent(event);
    for (auto photo = drawn.rbegin(); photo != drawn.rend(); ++photo)
        if (photo->place.contains(event->position())) {
            step(std::ptrdiff_t(photo->index) - std::ptrdiff_t(frontIndex.value_or(photo->index)));
            return;
        }
}

void CoverFlowView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    drawGround(painter);
    drawn.clear();
    if (count() == 0) {
        painter.setPen(palette().color(QPalette::PlaceholderText));
        painter.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap,
                         uiText("No Photos Selected") + "\n" +
                             uiText("Select photos in the main window; they show here."));
        return;
    }
    const CoverFlowGeometry geometry(size());
    const auto nearest = std::ptrdiff_t(std::round(position));
    pictures.beginFrame(kTimeForPictures);
    for (std::ptrdiff_t distance = 0; distance <= geometry.reach(); ++distance) // nearest first made
        for (const std::ptrdiff_t index : {nearest - distance, nearest + distance})
            viewOf(geometry, index);
    for (std::ptrdiff_t distance = geometry.reach(); distance > 0; --distance) {
        drawPhoto(painter, geometry, nearest - distance);
        drawPhoto(painter, geometry, nearest + distance);
    }
    drawPhoto(painter, geometry, nearest);
    drawFocus(painter);
    if (pictures.isBehind())
        update();
}

/// Null outside of the photos, and for what there was no time for.
const StandingPicture::View* CoverFlowView::viewOf(const CoverFlowGeometry& geometry, std::ptrdiff_t index) {
    if (index < 0 || index >= std::ptrdiff_t(count()))
        return nullptr;
    return pictures.view(*(*photos)[std::size_t(index)], geometry.placeAt(double(index) - position));
}

void CoverFlowView::drawPhoto(QPainter& painter, const CoverFlowGeometry& geometry, std::ptrdiff_t index) {
    const StandingPicture::View* const view = viewOf(geometry, index);
    if (view == nullptr)
        return;
    const auto place = geometry.placeAt(double(index) - position);
    const double ratio = devicePixelRatioF();
    const QPointF foot(std::round(place.centre * ratio) / ratio, geometry.floor());
    const QRectF area(foot + QPointF(view->origin) / ratio, QSizeF(view->image.size()) / ratio);
    const double toEnd = std::min(place.centre, width() - place.centre);
    painter.setOpacity(std::clamp(toEnd / (width() * kFadingPart), 0.0, 1.0));
    painter.drawImage(area.topLeft(), view->image);
    painter.setOpacity(1);
    drawn.push_back(
        {std::size_t(index), QRectF(area.topLeft(), QSizeF(area.width(), geometry.floor() - area.top()))});
}

/// A wall above a floor, a little darker than a page and a little lighter.
void CoverFlowView::drawGround(QPainter& painter) const {
    const QColor base = palette().color(QPalette::Base);
    QLinearGradient ground(0, 0, 0, height());
    ground.setColorAt(0, base);
    ground.setColorAt(CoverFlowGeometry(size()).floor() / height(), base.darker(112));
    ground.setColorAt(1, base.darker(104));
    painter.fillRect(rect(), ground);
}

void CoverFlowView::drawFocus(QPainter& painter) const {
    if (!hasFocus() || drawn.empty())
        return;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
    painter.drawRoundedRect(drawn.back().place.adjusted(-3, -3, 3, 3), 3, 3);
}
