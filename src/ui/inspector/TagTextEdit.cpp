#include "ui/inspector/TagTextEdit.h"

#include "ui/inspector/TagLineEdit.h"

#include <QAbstractTextDocumentLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QTextDocument>

namespace {

constexpr int kFewestLines = 2, kMostLines = 9;

} // namespace

TagTextEdit::TagTextEdit(QWidget* parent) : QPlainTextEdit(parent) {
    setTabChangesFocus(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(this, &QPlainTextEdit::textChanged, this, [this] {
        if (!isShowing)
            emit textEdited(toPlainText());
    });
    connect(document()->documentLayout(), &QAbstractTextDocumentLayout::documentSizeChanged, this,
            &TagTextEdit::fitContent);
    fitContent();
}

/// The document counts its height in lines.
void TagTextEdit::fitContent() {
    const int lines = std::clamp(int(document()->size().height()), kFewestLines, kMostLines);
    const int height =
        lines * fontMetrics().lineSpacing() + int(2 * document()->documentMargin()) + 2 * frameWidth() + 2;
    if (height != minimumHeight())
        setFixedHeight(height);
}

void TagTextEdit::setHint(const QString& shown) {
    hint = shown;
    viewport()->update();
}

void TagTextEdit::paintEvent(QPaintEvent* event) {
    QPlainTextEdit::paintEvent(event);
    if (hint.isEmpty() || !document()->isEmpty())
        return;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    const int margin = int(document()->documentMargin());
    painter.drawText(viewport()->rect().adjusted(margin, margin, -margin, 0),
                     int(Qt::AlignTop | Qt::AlignLeading) | Qt::TextWordWrap, hint);
}

void TagTextEdit::showText(const QString& shown) {
    isShowing = true;
    if (toPlainText() != shown)
        setPlainText(shown);
    else
        document()->clearUndoRedoStacks();
    isShowing = false;
}

bool TagTextEdit::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride) {
        auto& key = static_cast<QKeyEvent&>(*event);
        const bool isOurs = belongsToText(key, document()->isUndoAvailable(), document()->isRedoAvailable());
        if (isOurs || key.matches(QKeySequence::Undo) || key.matches(QKeySequence::Redo)) {
            event->setAccepted(isOurs);
            return isOurs;
        }
    }
    return QPlainTextEdit::event(event);
}

void TagTextEdit::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape)
        emit cancelled();
    else
        QPlainTextEdit::keyPressEvent(event);
}

void TagTextEdit::focusOutEvent(QFocusEvent* event) {
    QPlainTextEdit::focusOutEvent(event);
    emit editingFinished();
}
