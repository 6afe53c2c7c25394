#include "ui/inspector/MarkedFieldEditor.h"

#include "app/editor/KTCopyrightStatus.h"

#include <QComboBox>
#include <QEvent>

MarkedFieldEditor::MarkedFieldEditor(Item& edited) : FieldEditor(edited), choice(new QComboBox) {
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(choice);
    for (const KTCopyrightStatus& status : KTCopyrightStatuses())
        choice->addItem(shown(status.title));
    choice->setFocusPolicy(Qt::StrongFocus);
    choice->installEventFilter(this);
    connect(choice, &QComboBox::activated, this,
            [this](int index) { item.setValue(KTCopyrightStatuses()[std::size_t(index)].value); });
}

QList<QWidget*> MarkedFieldEditor::fields() const {
    return {choice};
}

void MarkedFieldEditor::showValue() {
    const auto index = KTCopyrightStatusIndex(item.selectedValue());
    choice->setPlaceholderText(shown(item.placeholder()));
    choice->setCurrentIndex(index ? int(*index) : -1);
    choice->setEnabled(item.isEditable());
}

/// Whoever scrolls past must not change photos.
bool MarkedFieldEditor::eventFilter(QObject*, QEvent* event) {
    if (event->type() != QEvent::Wheel)
        return false;
    event->ignore();
    return true;
}
