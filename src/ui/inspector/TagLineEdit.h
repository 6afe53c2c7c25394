#pragma once
#include <QLineEdit>
#include <functional>
#include <optional>

class QKeyEvent;

/// Whether a key that a menu command may have, too, belongs to a text that is being typed: those that delete
/// words always, undo and redo as long as there is typing to be taken back or made again.
bool belongsToText(const QKeyEvent& key, bool canUndo, bool canRedo);

/// A line of text that completes what is typed, and that leaves Ctrl+Z to the window once nothing is left in
/// it that could be taken back.
class TagLineEdit : public QLineEdit {
    Q_OBJECT
public:
    using Completion = std::function<std::optional<std::string>(const std::string& typed)>;

    explicit TagLineEdit(QWidget* parent = nullptr) : QLineEdit(parent) {}

    /// What a typed text is completed to; the letters that are added are selected, so that typing goes on.
    void setCompletion(Completion newCompletion) { completion = std::move(newCompletion); }
    /// Shows a text that nobody has typed here: it cannot be taken back.
    void showText(const QString& shown);

signals:
    void cancelled(); ///< the Escape key

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void complete();

    Completion completion;
};
