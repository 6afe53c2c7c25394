#include "ui/inspector/StaticFieldEditor.h"

#include "ui/inspector/TagLineEdit.h"

StaticFieldEditor::StaticFieldEditor(Item& edited) : FieldEditor(edited), line(new TagLineEdit) {
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(line);
    line->setReadOnly(true);
    line->setFrame(false);
    line->setFixedHeight(QLineEdit().sizeHint().height());
    QPalette plain = line->palette();
    plain.setColor(QPalette::Base, Qt::transparent);
    line->setPalette(plain);
}

QList<QWidget*> StaticFieldEditor::fields() const {
    return {line};
}

void StaticFieldEditor::showValue() {
    line->showText(shown(item.displayText()));
    line->setPlaceholderText(shown(item.placeholder()));
}
