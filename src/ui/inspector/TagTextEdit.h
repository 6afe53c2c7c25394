#pragma once
#include <QPlainTextEdit>

/// A text of some lines that grows with its content, and leaves Ctrl+Z to the window once nothing is left in
/// it that could be taken back. Tab leaves it.
class TagTextEdit : public QPlainTextEdit {
    Q_OBJECT
public:
    explicit TagTextEdit(QWidget* parent = nullptr);

    /// What stands there while there is no text, in the colour of placeholders (Qt's own is not seen in dark
    /// palettes).
    void setHint(const QString& shown);
    /// Shows a text that nobody has typed here.
    void showText(const QString& shown);

signals:
    void textEdited(const QString& text);
    void editingFinished();
    void cancelled();

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void fitContent();

    QString hint;
    bool isShowing = false; // what the program shows, not what somebody types
};
