#include "ui/support/SwitchButton.h"

#include <QApplication>
#include <QEvent>

SwitchButton::SwitchButton(QWidget* parent) : QToolButton(parent) {
    connect(this, &QToolButton::toggled, this, &SwitchButton::colour);
}

void SwitchButton::changeEvent(QEvent* event) {
    QToolButton::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && !isColouring)
        colour();
}

/// Between the button's own colour and that of the selection, so that icon and text stay readable on it.
void SwitchButton::colour() {
    isColouring = true;
    const QPalette general = QApplication::palette("QToolButton");
    QPalette own = general;
    if (isChecked())
        for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
            const QColor selection = general.color(QPalette::Active, QPalette::Highlight);
            const QColor ground = general.color(group, QPalette::Button);
            own.setColor(group, QPalette::Button,
                         QColor((selection.red() + ground.red()) / 2,
                                (selection.green() + ground.green()) / 2,
                                (selection.blue() + ground.blue()) / 2));
        }
    setPalette(own);
    isColouring = false;
}
