#pragma once
#include "ui/datetools/CoverFlowView.h"

#include <QAccessibleWidget>

/// The strip of photos for assistive technology: a slider whose value is the place of the photo in front,
/// counted from 1, and whose text names that photo.
class AccessibleCoverFlow : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    explicit AccessibleCoverFlow(CoverFlowView& strip)
        : QAccessibleWidget(&strip, QAccessible::Slider), view(strip) {}

    /// Lets strips be found by assistive technology.
    static void install();

    QString text(QAccessible::Text kind) const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    QVariant currentValue() const override { return int(view.front().value_or(0)) + 1; }
    void setCurrentValue(const QVariant& value) override;
    QVariant minimumValue() const override { return 1; }
    QVariant maximumValue() const override { return int(view.count()); }
    QVariant minimumStepSize() const override { return 1; }

private:
    CoverFlowView& view;
};
