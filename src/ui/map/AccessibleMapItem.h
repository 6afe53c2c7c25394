#pragma once
#include "ui/map/MapItems.h"

#include <QAccessible>
#include <QPointer>

/// One thing on the map for assistive technology: a list item that can be
/// pressed.
class AccessibleMapItem : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    explicit AccessibleMapItem(MapView& view) : mapView(&view) {}

    /// What it stands for now; without one it is no longer in view.
    void setItem(std::optional<MapItem> newItem) { item = std::move(newItem); }

    bool isValid() const override { return mapView && item; }
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(mapView); }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override;
    QAccessible::Role role() const override { return QAccessible::ListItem; }
    QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    QStringList actionNames() const override;
    void doAction(const QString& name) override;
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    QPointer<MapView> mapView;
    std::optional<MapItem> item;
};
