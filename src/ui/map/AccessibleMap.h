#pragma once
#include "ui/map/MapItems.h"

#include <QAccessibleWidget>
#include <unordered_map>

class AccessibleMapItem;

/// The map for assistive technology: a widget with a child for each photo,
/// cluster, candidate location and track in view. A child stays the same object
/// as long as what it stands for is in view.
class AccessibleMap : public QAccessibleWidget {
public:
    explicit AccessibleMap(MapView& view);
    ~AccessibleMap() override;

    /// Lets maps be found by assistive technology. Before the first is made.
    static void install();

    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QString text(QAccessible::Text kind) const override;

private:
    const std::vector<MapItem>& items() const;
    AccessibleMapItem* childFor(const MapItem& item) const;

    MapView& mapView;
    mutable std::vector<MapItem> shown;
    mutable bool isOutOfDate = true;
    mutable std::unordered_map<const void*, AccessibleMapItem*> children; // owned by the accessibility cache
    KTObservable::Observation photos, points;
};
