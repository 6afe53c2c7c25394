#include "ui/inspector/TagLineEdit.h"

#include <QKeyEvent>

bool belongsToText(const QKeyEvent& key, bool canUndo, bool canRedo) {
    if (key.matches(QKeySequence::Undo))
        return canUndo;
    if (key.matches(QKeySequence::Redo))
        return canRedo;
    return key.matches(QKeySequence::DeleteStartOfWord) || key.matches(QKeySequence::DeleteEndOfWord);
}

void TagLineEdit::showText(const QString& shown) {
    if (text() == shown && !isUndoAvailable() && !isRedoAvailable())
        return;
    const int place = text() == shown ? cursorPosition() : hasFocus() ? int(shown.size()) : 0;
    setText(shown);
    setCursorPosition(place);
}

bool TagLineEdit::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride && !isReadOnly()) {
        auto& key = static_cast<QKeyEvent&>(*event);
        const bool isOurs = belongsToText(key, isUndoAvailable(), isRedoAvailable());
        if (isOurs || key.matches(QKeySequence::Undo) || key.matches(QKeySequence::Redo)) {
            event->setAccepted(isOurs);
            return isOurs;
        }
    }
    return QLineEdit::event(event);
}

void TagLineEdit::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        emit cancelled();
        return;
    }
    const QString before = text();
    QLineEdit::keyPressEvent(event);
    const bool isLetter = !event->text().isEmpty() && event->text().front().isPrint();
    if (completion && isLetter && text() != before && cursorPosition() == text().size())
        complete();
}

void TagLineEdit::complete() {
    const auto whole = completion(text().toStdString());
    const QString added = whole ? QString::fromStdString(*whole).mid(text().size()) : QString();
    if (added.isEmpty())
        return;
    insert(added);
    setSelection(int(text().size()), -int(added.size()));
}
