#include "ui/map/AccessibleMap.h"

#include "ui/map/AccessibleMapItem.h"
#include "ui/support/ObservationLink.h"

AccessibleMap::AccessibleMap(MapView& view) : QAccessibleWidget(&view, QAccessible::Canvas), mapView(view) {
    auto outdate = [this] { isOutOfDate = true; };
    QObject::connect(&view, &MapView::itemsMayHaveChanged, &view, outdate);
    photos = observeFor(&view, view.features().photos, {}, outdate);
    points = observeFor(&view, view.features().points, {}, outdate);
}

AccessibleMap::~AccessibleMap() {
    for (const auto& [key, item] : children)
        QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(item));
}

void AccessibleMap::install() {
    QAccessible::installFactory([](const QString& className, QObject* object) -> QAccessibleInterface* {
        auto* const view = className == "MapView" ? qobject_cast<MapView*>(object) : nullptr;
        return view ? new AccessibleMap(*view) : nullptr;
    });
}

const std::vector<MapItem>& AccessibleMap::items() const {
    if (!isOutOfDate)
        return shown;
    isOutOfDate = false;
    shown = itemsOf(mapView);
    for (const auto& [key, child] : children)
        child->setItem(std::nullopt);
    for (const MapItem& item : shown)
        childFor(item)->setItem(item);
    return shown;
}

AccessibleMapItem* AccessibleMap::childFor(const MapItem& item) const {
    AccessibleMapItem*& child = children[item.key];
    if (child == nullptr) {
        child = new AccessibleMapItem(mapView);
        QAccessible::registerAccessibleInterface(child);
    }
    return child;
}

int AccessibleMap::childCount() const {
    return int(items().size());
}

QAccessibleInterface* AccessibleMap::child(int index) const {
    const auto& all = items();
    return index >= 0 && index < int(all.size()) ? childFor(all[std::size_t(index)]) : nullptr;
}

int AccessibleMap::indexOfChild(const QAccessibleInterface* child) const {
    const auto& all = items();
    for (std::size_t i = 0; i < all.size(); ++i)
        if (childFor(all[i]) == child)
            return int(i);
    return -1;
}

QAccessibleInterface* AccessibleMap::childAt(int x, int y) const {
    const QPoint point = mapView.mapFromGlobal(QPoint(x, y));
    for (const MapItem& item : items())
        if (item.place.contains(point))
            return childFor(item);
    return nullptr;
}

QString AccessibleMap::text(QAccessible::Text kind) const {
    return kind == QAccessible::Description ? mapView.spokenState() : QAccessibleWidget::text(kind);
}
