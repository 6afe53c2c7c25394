#pragma once
#include "ui/inspector/FieldEditor.h"

class TagTextEdit;

/// A long text.
class TextFieldEditor : public FieldEditor {
    Q_OBJECT
public:
    explicit TextFieldEditor(Item& edited);

    void showValue() override;
    QList<QWidget*> fields() const override;

private:
    TagTextEdit* text;
};
