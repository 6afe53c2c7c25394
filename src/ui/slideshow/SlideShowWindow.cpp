#include "ui/slideshow/SlideShowWindow.h"

#include "ui/slideshow/ScreenSaverInhibitor.h"
#include "ui/support/ObservationLink.h"
#include "ui/support/UIText.h"

#include <QCloseEvent>
#include <QScreen>
#include <QSplitter>
#include <QVBoxLayout>
#include <QWheelEvent>

namespace {

constexpr std::chrono::milliseconds kIdleTime{2500};
constexpr int kPhotoShare = 62, kMapShare = 38; // of the width
constexpr int kBarMargin = 24;
constexpr int kWheelClick = 120; // eighths of a degree

enum class Command { Next, Previous, Pause, Map, Cycle, End };
constexpr std::pair<int, Command> kKeys[] = {
    {Qt::Key_Right, Command::Next},
    {Qt::Key_Down, Command::Next},
    {Qt::Key_PageDown, Command::Next},
    {Qt::Key_Return, Command::Next},
    {Qt::Key_Enter, Command::Next},
    {Qt::Key_MediaNext, Command::Next},
    {Qt::Key_Left, Command::Previous},
    {Qt::Key_Up, Command::Previous},
    {Qt::Key_PageUp, Command::Previous},
    {Qt::Key_Backspace, Command::Previous},
    {Qt::Key_MediaPrevious, Command::Previous},
    {Qt::Key_Space, Command::Pause},
    {Qt::Key_MediaPlay, Command::Pause},
    {Qt::Key_MediaTogglePlayPause, Command::Pause},
    {Qt::Key_M, Command::Map},
    {Qt::Key_C, Command::Cycle},
    {Qt::Key_Escape, Command::End},
};

} // namespace

SlideShowWindow::SlideShowWindow(SlideShowController& slideShow, KTOperationQueue& lineQueue, QWidget* beside)
    : show(slideShow), neighbour(beside), pictures(this), panes(new QSplitter), photo(new SlideShowView),
      mapView(new SlideShowMap(slideShow, lineQueue)), controls(new SlideShowBar(slideShow, this)) {
    setObjectName("SlideShowWindow");
    setWindowTitle(uiText("Slide Show"));
    setAccessibleName(uiText("Slide Show"));
    setMouseTracking(true);
    panes->addWidget(photo);
    panes->addWidget(mapView);
    panes->setStretchFactor(0, kPhotoShare);
    panes->setStretchFactor(1, kMapShare);
    panes->setHandleWidth(2);
    panes->setMouseTracking(true);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(panes);
    photo->installEventFilter(this);
    controls->raise();
    idle.setSingleShot(true);
    connect(&idle, &QTimer::timeout, this, [this] { setControlsShown(controls->underMouse()); });
    connect(&pictures, &SlideShowPictures::arrived, this, &SlideShowWindow::showPicture);
    connect(controls, &SlideShowBar::mapWanted, this, &SlideShowWindow::setMapShown);
    running = observeFor(this, show, "isRunning", [this] { show.isRunning() ? enter() : leave(); });
    current = observeFor(this, show, "currentPhoto", [this] { followPhoto(); });
}

SlideShowWindow::~SlideShowWindow() = default;

void SlideShowWindow::enter() {
    const QScreen* const screen = neighbour ? neighbour->screen() : QWidget::screen();
    setGeometry(screen->geometry());
    setMapShown(show.hasGeotaggedPhotos());
    setControlsShown(false);
    wakefulness = std::make_unique<ScreenSaverInhibitor>(uiText("Slide show in progress"),
                                                         QDBusConnection::sessionBus(), nullptr);
    showFullScreen();
    raise();
    activateWindow();
}

/// The show's controller has this window destroyed later.
void SlideShowWindow::leave() {
    wakefulness.reset();
    idle.stop();
    setMapShown(false);
    setWindowState(windowState() & ~Qt::WindowFullScreen);
    hide();
}

void SlideShowWindow::followPhoto() {
    isDue = true;
    wishForPictures();
    showPicture();
}

void SlideShowWindow::wishForPictures() {
    std::vector<std::filesystem::path> files;
    for (long steps : {0, 1, -1})
        if (const auto wished = show.photoBeside(steps))
            files.push_back(wished->fileURL());
    pictures.setWishes(std::move(files), photo->frameSize());
}

/// Shows the current photo if its picture is there, else when it comes.
void SlideShowWindow::showPicture() {
    const auto wanted = show.photoBeside();
    const SlideShowPictures::Picture* const made = wanted ? pictures.picture(wanted->fileURL()) : nullptr;
    show.setLoadsPhoto(wanted && made == nullptr);
    if (made == nullptr)
        return;
    if (isDue && wanted != shown)
        photo->showSlide({made->image, uiPath(wanted->filename()), made->problem},
                         KTTransitionStyle(show.transitionStyle()));
    else if (wanted == shown && shownFor != photo->frameSize() && !made->image.isNull())
        photo->replacePicture(made->image);
    isDue = false;
    shown = wanted;
    shownFor = photo->frameSize();
}

void SlideShowWindow::setMapShown(bool isShown) {
    mapView->setVisible(isShown);
    controls->setMapShown(isShown);
}

/// With the controls the pointer comes and goes.
void SlideShowWindow::setControlsShown(bool areShown) {
    controls->setVisible(areShown);
    if (areShown)
        unsetCursor();
    else
        setCursor(Qt::BlankCursor);
    if (areShown)
        idle.start(kIdleTime);
}

void SlideShowWindow::keyPressEvent(QKeyEvent* event) {
    const auto place = std::ranges::find(kKeys, event->key(), &std::pair<int, Command>::first);
    if (place == std::end(kKeys) || (event->modifiers() & ~Qt::KeypadModifier) != 0) {
        if (event->matches(QKeySequence::Close) || event->matches(QKeySequence::Quit))
            return show.stop();
        return QWidget::keyPressEvent(event);
    }
    switch (place->second) {
    case Command::Next:
        return show.nextPhoto();
    case Command::Previous:
        return show.previousPhoto();
    case Command::Pause:
        show.setAutomaticallyAdvances(!show.automaticallyAdvances());
        return setControlsShown(true); // which say so
    case Command::Map:
        return setMapShown(!mapView->isVisible());
    case Command::Cycle:
        show.setCyclesTransitionStyles(!show.cyclesTransitionStyles());
        return setControlsShown(true);
    case Command::End:
        return show.stop();
    }
}

/// Some systems tell of a move when a window comes up below a pointer that rests.
void SlideShowWindow::mouseMoveEvent(QMouseEvent* event) {
    const QPoint pointer = event->globalPosition().toPoint();
    if (!lastPointer.isNull() && pointer != lastPointer)
        setControlsShown(true);
    lastPointer = pointer;
}

void SlideShowWindow::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        show.nextPhoto();
    else if (event->button() == Qt::RightButton)
        show.previousPhoto();
}

void SlideShowWindow::wheelEvent(QWheelEvent* event) {
    wheel += event->angleDelta().y();
    if (std::abs(wheel) < kWheelClick)
        return;
    if (std::exchange(wheel, 0) < 0)
        show.nextPhoto();
    else
        show.previousPhoto();
}

bool SlideShowWindow::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize && watched == photo && show.isRunning())
        QMetaObject::invokeMethod(this, &SlideShowWindow::wishForPictures, Qt::QueuedConnection);
    return QWidget::eventFilter(watched, event);
}

void SlideShowWindow::resizeEvent(QResizeEvent*) {
    controls->adjustSize();
    controls->move((width() - controls->width()) / 2, height() - controls->height() - kBarMargin);
}

void SlideShowWindow::closeEvent(QCloseEvent* event) {
    event->accept();
    show.stop();
}
