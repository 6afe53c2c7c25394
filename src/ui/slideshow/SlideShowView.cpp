#include "ui/slideshow/SlideShowView.h"

#include "ui/support/UIText.h"

#include <QEasingCurve>
#include <QPainter>

namespace {

constexpr int kFrameTime = 16; // milliseconds
constexpr int kDurations[kTransitionStyles] = {0,    700,  800, 800,  800,  1400, 1100,
                                               1100, 1000, 900, 1100, 1300, 900}; // milliseconds
constexpr QColor kTitleColour(235, 235, 235), kTextColour(170, 170, 170);

} // namespace

SlideShowView::SlideShowView(QWidget* parent) : QWidget(parent) {
    setAccessibleName(uiText("Photo of the slide show"));
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
    setMinimumSize(120, 90);
    frames.setTimerType(Qt::PreciseTimer);
    connect(&frames, &QTimer::timeout, this, [this] {
        if (sinceBegin.hasExpired(kDurations[unsigned(transition)]))
            endTransition();
        update();
    });
}

QSize SlideShowView::frameSize() const {
    return (QSizeF(size()) * devicePixelRatioF()).toSize();
}

void SlideShowView::showSlide(Slide slide, KTTransitionStyle style) {
    if (!isInTransition())
        before = canvas;
    else if (!frame.isNull())
        before = frame; // what is seen amid another transition
    shown = std::move(slide);
    canvas = canvasOf(shown);
    setAccessibleDescription(shown.title + ' ' + shown.text);
    transition = style;
    frames.stop();
    if (style != KTTransitionStyle::None && before.size() == canvas.size() && isVisible()) {
        frame = QImage();
        sinceBegin.start();
        frames.start(kFrameTime);
    } else {
        endTransition();
    }
    update();
}

void SlideShowView::replacePicture(const QImage& picture) {
    shown.picture = picture;
    canvas = canvasOf(shown);
    update();
}

void SlideShowView::endTransition() {
    frames.stop();
    before = frame = QImage();
}

void SlideShowView::resizeEvent(QResizeEvent*) {
    endTransition();
    canvas = canvasOf(shown);
}

/// A picture that was made for another size is fitted in quickly; a better one is on its way.
QImage SlideShowView::canvasOf(const Slide& slide) const {
    QImage result(frameSize().expandedTo({1, 1}), QImage::Format_RGB32);
    result.fill(Qt::black);
    QPainter painter(&result);
    if (slide.picture.isNull()) {
        drawText(painter, slide);
        return result;
    }
    QSize size = slide.picture.size();
    if (size.width() != result.width() && size.height() != result.height())
        size.scale(result.size(), Qt::KeepAspectRatio);
    size = size.boundedTo(result.size());
    const QPoint corner((result.width() - size.width()) / 2, (result.height() - size.height()) / 2);
    painter.drawImage(QRect(corner, size), slide.picture);
    return result;
}

void SlideShowView::drawText(QPainter& painter, const Slide& slide) const {
    const double ratio = devicePixelRatioF();
    painter.scale(ratio, ratio);
    const QRect page = rect().adjusted(24, 24, -24, -24);
    QFont large = font();
    large.setPointSizeF(large.pointSizeF() * 1.8);
    painter.setFont(large);
    painter.setPen(kTitleColour);
    painter.drawText(page.adjusted(0, 0, 0, -page.height() / 2),
                     Qt::AlignHCenter | Qt::AlignBottom | Qt::TextWrapAnywhere, slide.title);
    painter.setFont(font());
    painter.setPen(kTextColour);
    painter.drawText(page.adjusted(0, page.height() / 2 + 8, 0, 0),
                     Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, slide.text);
}

void SlideShowView::paintEvent(QPaintEvent*) {
    if (canvas.isNull())
        canvas = canvasOf(shown);
    QImage* seen = &canvas;
    if (isInTransition()) {
        const double progress = double(sinceBegin.elapsed()) / kDurations[unsigned(transition)];
        KTDrawTransition(transition, before, canvas,
                         QEasingCurve(QEasingCurve::InOutSine).valueForProgress(progress), frame);
        seen = &frame;
    }
    QPainter painter(this);
    painter.drawImage(rect(), *seen);
}
