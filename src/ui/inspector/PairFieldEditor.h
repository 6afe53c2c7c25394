#pragma once
#include "ui/inspector/FieldEditor.h"

class TagLineEdit;

/// Two lines, side by side where there is room: latitude and longitude, or date and time. A date can be
/// picked from a calendar.
class PairFieldEditor : public FieldEditor {
    Q_OBJECT
public:
    explicit PairFieldEditor(Item& edited);

    void showValue() override;
    QList<QWidget*> fields() const override;
    void setNames(const QString& name, const QString& secondName, const QString& help) override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void pickDate();

    class QBoxLayout* lines;
    TagLineEdit *first, *second;
    QAction* calendar = nullptr;
};
