#pragma once
#include "ui/inspector/FieldEditor.h"

class TagLineEdit;

/// A value that is shown, and can be selected and copied, but not typed.
class StaticFieldEditor : public FieldEditor {
    Q_OBJECT
public:
    explicit StaticFieldEditor(Item& edited);

    void showValue() override;
    QList<QWidget*> fields() const override;

private:
    TagLineEdit* line;
};
