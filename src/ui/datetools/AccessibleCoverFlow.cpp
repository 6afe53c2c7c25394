#include "ui/datetools/AccessibleCoverFlow.h"

void AccessibleCoverFlow::install() {
    [[maybe_unused]] static const bool isInstalled = [] {
        QAccessible::installFactory([](const QString& className, QObject* object) -> QAccessibleInterface* {
            auto* const view = className == "CoverFlowView" ? qobject_cast<CoverFlowView*>(object) : nullptr;
            return view ? new AccessibleCoverFlow(*view) : nullptr;
        });
        return true;
    }();
}

/// The bus carries no text of a value, so that the description names the photo, too.
QString AccessibleCoverFlow::text(QAccessible::Text kind) const {
    return kind == QAccessible::Value || kind == QAccessible::Description ? view.frontText()
                                                                          : QAccessibleWidget::text(kind);
}

void* AccessibleCoverFlow::interface_cast(QAccessible::InterfaceType type) {
    return type == QAccessible::ValueInterface ? static_cast<QAccessibleValueInterface*>(this)
                                               : QAccessibleWidget::interface_cast(type);
}

void AccessibleCoverFlow::setCurrentValue(const QVariant& value) {
    view.step(value.toInt() - 1 - std::ptrdiff_t(view.front().value_or(0)));
}
