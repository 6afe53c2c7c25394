#include "ui/datetools/DateToolPanel.h"

#include <QLabel>

QLabel* DateToolPanel::labelFor(QWidget* field, const QString& text) {
    auto* const label = new QLabel(text);
    label->setBuddy(field);
    return label;
}

QLabel* DateToolPanel::note(const QString& text) {
    auto* const label = new QLabel(text);
    label->setWordWrap(true);
    label->setForegroundRole(QPalette::PlaceholderText);
    return label;
}
