#include "ui/map/AccessibleMapItem.h"

QString AccessibleMapItem::text(QAccessible::Text kind) const {
    if (!item)
        return {};
    if (kind == QAccessible::Name)
        return item->name;
    return kind == QAccessible::Description ? item->description : QString();
}

QRect AccessibleMapItem::rect() const {
    return isValid() ? QRect(mapView->mapToGlobal(item->place.topLeft()), item->place.size()) : QRect();
}

QAccessible::State AccessibleMapItem::state() const {
    QAccessible::State result;
    result.invalid = !isValid();
    if (!isValid())
        return result;
    result.selectable = true;
    result.selected = item->isSelected;
    return result;
}

void* AccessibleMapItem::interface_cast(QAccessible::InterfaceType type) {
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
}

QStringList AccessibleMapItem::actionNames() const {
    return item && item->press ? QStringList{pressAction()} : QStringList();
}

void AccessibleMapItem::doAction(const QString& name) {
    if (isValid() && name == pressAction() && item->press)
        item->press();
}
