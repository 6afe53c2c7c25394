#include "ui/support/PrimaryButton.h"

#include <QApplication>
#include <QEvent>

PrimaryButton::PrimaryButton(const QString& text, QWidget* parent) : QPushButton(text, parent) {
    colour();
}

void PrimaryButton::changeEvent(QEvent* event) {
    QPushButton::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && !isColouring)
        colour();
}

void PrimaryButton::colour() {
    isColouring = true;
    const QPalette general = QApplication::palette();
    QPalette own = general;
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
        own.setColor(group, QPalette::Button, general.color(QPalette::Active, QPalette::Highlight));
        own.setColor(group, QPalette::ButtonText, general.color(QPalette::Active, QPalette::HighlightedText));
    }
    setPalette(own);
    isColouring = false;
}
