#include "ui/photos/ThumbnailBrowser.h"

#include "platform/defaults/KTUserDefaults.h"
#include "ui/photos/PhotoSelectionLink.h"
#include "ui/photos/PhotoViewActions.h"
#include "ui/photos/ThumbnailDelegate.h"
#include "ui/photos/ThumbnailModel.h"
#include "ui/photos/ThumbnailWisher.h"
#include "ui/support/ObservationLink.h"
#include "ui/support/UIText.h"

#include <QContextMenuEvent>
#include <QScrollBar>

namespace {

constexpr const char *kSizeSetting = "defaultPhotoCellSize", *kTitleSetting = "shouldShowTitleDefault",
                     *kSubtitleSetting = "shouldShowSubtitleDefault";
constexpr double kSmallest = 48, kLargest = 400;

} // namespace

ThumbnailBrowser::ThumbnailBrowser(PhotoListModel& list, KTPhotoController& photoController,
                                   KTThumbnailService& thumbnails, QWidget* parent)
    : QListView(parent), controller(photoController), cells(new ThumbnailDelegate(thumbnails, this)) {
    setAccessibleName(uiText("Thumbnails"));
    setModel(new ThumbnailModel(list, this));
    setItemDelegate(cells);
    setFlow(LeftToRight);
    setWrapping(true);
    setResizeMode(Adjust);
    setUniformItemSizes(true);
    setSelectionMode(ExtendedSelection);
    setVerticalScrollMode(ScrollPerPixel);
    setFrameShape(NoFrame);
    setDragEnabled(true);
    setAcceptDrops(true);
    setDropIndicatorShown(true);
    setDragDropMode(DragDrop);

    new PhotoSelectionLink(*this, list, controller);
    wisher = new ThumbnailWisher(
        *this, thumbnails,
        [this] {
            const int perLine = std::max(1, viewport()->width() / std::max(1, gridSize().width()));
            const int lineHeight = std::max(1, gridSize().height());
            const int firstLine = verticalScrollBar()->value() / lineHeight;
            const int lastLine = (verticalScrollBar()->value() + viewport()->height()) / lineHeight;
            return ThumbnailWisher::Rows{firstLine * perLine,
                                         std::min((lastLine + 1) * perLine, this->model()->rowCount()) - 1};
        },
        [&list](int row) { return list.photoAt(row)->fileURL(); }, [this] { return cells->edge(); });
    settingObservation =
        observeFor(this, KTUserDefaults::standardUserDefaults(), {}, [this] { applySettings(); });
    applySettings();
}

void ThumbnailBrowser::applySettings() {
    const auto& settings = KTUserDefaults::standardUserDefaults();
    const double edge = std::clamp(settings.doubleForKey(kSizeSetting), kSmallest, kLargest);
    cells->setPictureEdge(int(edge));
    cells->setTexts(settings.boolForKey(kTitleSetting), settings.boolForKey(kSubtitleSetting));
    const QSize size = cells->cellSize(fontMetrics());
    if (size == gridSize())
        return;
    setGridSize(size);
    verticalScrollBar()->setSingleStep(size.height() / 3);
    wisher->updateSoon();
}

void ThumbnailBrowser::changeEvent(QEvent* event) {
    QListView::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        applySettings();
}

void ThumbnailBrowser::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Delete))
        controller.removeSelectedPhotosAction();
    else
        QListView::keyPressEvent(event);
}

void ThumbnailBrowser::wheelEvent(QWheelEvent* event) {
    if ((event->modifiers() & Qt::ControlModifier) == 0) {
        QListView::wheelEvent(event);
        return;
    }
    const double edge = cells->edge() * (event->angleDelta().y() > 0 ? 1.15 : 1 / 1.15);
    KTUserDefaults::standardUserDefaults().setValue(
        kSizeSetting, KTDecimal::fromDouble(std::clamp(edge, kSmallest, kLargest)));
    event->accept();
}

void ThumbnailBrowser::contextMenuEvent(QContextMenuEvent* event) {
    showPhotoMenu(*this, controller, indexAt(event->pos()));
}

void ThumbnailBrowser::startDrag(Qt::DropActions) {
    startPhotoDrag(*this);
}

/// Only photos of this program are moved here; files go to the window.
void ThumbnailBrowser::dragEnterEvent(QDragEnterEvent* event) {
    if (qobject_cast<const PhotoMimeData*>(event->mimeData()))
        QListView::dragEnterEvent(event);
    else
        event->ignore();
}

void ThumbnailBrowser::dragMoveEvent(QDragMoveEvent* event) {
    if (qobject_cast<const PhotoMimeData*>(event->mimeData()))
        QListView::dragMoveEvent(event);
    else
        event->ignore();
}
