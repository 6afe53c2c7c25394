#pragma once
#include <QWidget>

class QBoxLayout;
class QLabel;

/// What the user tells a date tool; the window has the buttons that do it.
class DateToolPanel : public QWidget {
    Q_OBJECT
public:
    using QWidget::QWidget;

    virtual void apply() = 0;
    /// What the button does, for its tool tip.
    virtual QString applyTip() const = 0;
    virtual bool canRevert() const { return false; }
    virtual void revert() {}

protected:
    /// A label for @p field, with its key of access.
    static QLabel* labelFor(QWidget* field, const QString& text);
    /// A text in small, faint letters.
    static QLabel* note(const QString& text);
};
