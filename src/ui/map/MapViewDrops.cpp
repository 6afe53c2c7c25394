#include "ui/map/MapView.h"
#include "ui/photos/PhotoMimeData.h"
#include "ui/support/UICount.h"
#include "ui/support/UIText.h"

#include <QDropEvent>

/// Photos of the program are geotagged by a drop; files go to the window.
void MapView::dragEnterEvent(QDragEnterEvent* event) {
    if (qobject_cast<const PhotoMimeData*>(event->mimeData()))
        event->acceptProposedAction();
}

void MapView::dragMoveEvent(QDragMoveEvent* event) {
    const auto* const photos = qobject_cast<const PhotoMimeData*>(event->mimeData());
    if (photos == nullptr)
        return;
    event->acceptProposedAction();
    const std::size_t count = photos->photos().size();
    card->show(
        {photos,
         {},
         count == 1 ? uiPath(photos->photos().front()->filename()) : uiCount("1 photo", "%d photos", count),
         uiText("Dropping geotags to this place.")},
        event->position().toPoint());
}

void MapView::dropEvent(QDropEvent* event) {
    card->show({}, {});
    if (const auto* const photos = qobject_cast<const PhotoMimeData*>(event->mimeData())) {
        event->acceptProposedAction();
        shown.geotagPhotos(photos->photos(),
                           map.viewState().position({event->position().x(), event->position().y()}));
    }
}
