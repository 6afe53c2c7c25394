#pragma once
#include <QLabel>

/// The name of a field, to the left of its editor, with a dot before it while the field has an edit that is
/// not saved.
class FieldLabel : public QLabel {
    Q_OBJECT
public:
    explicit FieldLabel(QWidget* parent = nullptr);

    void setUnsaved(bool isUnsavedNow);
    /// What the bubble says: the name, what the field is for, and whether it has an unsaved edit.
    void setHelp(const QString& text);
    /// The name and the help as rich text, so that long ones are wrapped.
    static QString bubble(const QString& title, const QString& help);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void showBubble();

    bool isUnsaved = false;
    QString help;
};
