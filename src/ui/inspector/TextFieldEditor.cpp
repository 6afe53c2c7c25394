#include "ui/inspector/TextFieldEditor.h"

#include "ui/inspector/TagTextEdit.h"

TextFieldEditor::TextFieldEditor(Item& edited) : FieldEditor(edited), text(new TagTextEdit) {
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(text);
    connect(text, &TagTextEdit::textEdited, this,
            [this](const QString& typed) { item.setText(typed.toStdString()); });
    connect(text, &TagTextEdit::editingFinished, this, [this] { item.endEditing(); });
    connect(text, &TagTextEdit::cancelled, this, [this] { item.cancelEditing(); });
}

QList<QWidget*> TextFieldEditor::fields() const {
    return {text};
}

void TextFieldEditor::showValue() {
    const QString value = shown(item.text());
    if (!item.isEditing() || text->toPlainText() != value)
        text->showText(value);
    text->setHint(shown(item.placeholder()));
    text->setEnabled(item.isEditable());
}
