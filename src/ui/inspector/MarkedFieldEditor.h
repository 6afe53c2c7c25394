#pragma once
#include "ui/inspector/FieldEditor.h"

class QComboBox;

/// The copyright status, one of a few.
class MarkedFieldEditor : public FieldEditor {
    Q_OBJECT
public:
    explicit MarkedFieldEditor(Item& edited);

    void showValue() override;
    QList<QWidget*> fields() const override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QComboBox* choice;
};
