#include "ui/map/MapItems.h"

#include "photo/KTLinkablePoint.h"
#include "ui/support/UIText.h"

namespace {

constexpr int kFlagEdge = 26;

QRect around(KTViewPoint centre, double radius) {
    return QRectF(centre.x - radius, centre.y - radius, 2 * radius, 2 * radius).toRect();
}

QString names(const KTSpatialObjectController::Objects& objects) {
    QStringList list;
    for (const auto& object : objects)
        list << QString::fromStdString(object->featureName());
    return list.join(", ");
}

MapItem itemOf(MapView& view, const KTPhotoLayers::Mark& mark) {
    const auto objects = view.layers().photos().objectsOf(mark);
    const auto content = view.pointing().describe(mark);
    return {objects.front().get(),
            content.title,
            objects.size() == 1 ? content.text : names(objects),
            around(mark.centre, mark.radius),
            mark.selected > 0,
            [&view, mark] { view.press(mark, Qt::NoModifier); }};
}

void appendPoints(MapView& view, std::vector<MapItem>& items) {
    for (const auto& object : view.features().points.spatialObjects()) {
        const auto geometry = object->geometry();
        if (geometry->isEmpty())
            continue;
        const KTViewPoint foot = view.controller().viewState().viewPoint(geometry->points().front());
        const QRect place(int(foot.x) - kFlagEdge / 2, int(foot.y) - kFlagEdge, kFlagEdge, kFlagEdge);
        if (view.rect().intersects(place))
            items.push_back({object.get(),
                             QString::fromStdString(object->featureName()),
                             QString::fromStdString(object->featureDescription()),
                             place,
                             false,
                             {}});
    }
}

void appendTracks(MapView& view, std::vector<MapItem>& items) {
    const KTMapViewState& state = view.controller().viewState();
    for (const KTMapTrack& track : view.layers().tracks().tracks()) {
        const auto bounds = track.line->bounds();
        if (!bounds)
            continue;
        const KTViewPoint first = state.viewPoint(bounds->southWest()),
                          last = state.viewPoint(bounds->northEast());
        const QRect place = QRectF(QPointF(first.x, first.y), QPointF(last.x, last.y)).normalized().toRect();
        if (view.rect().intersects(place.adjusted(-1, -1, 1, 1)))
            items.push_back({track.line.get(),
                             QString::fromStdString(track.name),
                             uiText("Track"),
                             place.intersected(view.rect()),
                             false,
                             {}});
    }
}

} // namespace

std::vector<MapItem> itemsOf(MapView& view) {
    std::vector<MapItem> items;
    for (const auto& mark : view.layers().photos().visibleMarks(view.controller().viewState()))
        items.push_back(itemOf(view, mark));
    appendPoints(view, items);
    appendTracks(view, items);
    return items;
}
