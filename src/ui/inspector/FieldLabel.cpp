#include "ui/inspector/FieldLabel.h"

#include "ui/photos/PhotoStatus.h"
#include "ui/support/UIText.h"

namespace {

constexpr int kWidth = 100, kSignEdge = 11, kGutter = 13;

} // namespace

FieldLabel::FieldLabel(QWidget* parent) : QLabel(parent) {
    setWordWrap(true);
    setAlignment(Qt::AlignRight | Qt::AlignTop);
    setForegroundRole(QPalette::WindowText);
    setFixedWidth(kWidth);
    setContentsMargins(kGutter, 0, 0, 0);
    setTextFormat(Qt::PlainText);
}

void FieldLabel::setUnsaved(bool isUnsavedNow) {
    if (isUnsaved == isUnsavedNow)
        return;
    isUnsaved = isUnsavedNow;
    setAccessibleDescription(isUnsaved ? uiText("unsaved changes") : QString());
    showBubble();
    update();
}

void FieldLabel::setHelp(const QString& text) {
    help = text;
    showBubble();
}

QString FieldLabel::bubble(const QString& title, const QString& help) {
    return "<p><b>" + title.toHtmlEscaped() + "</b></p>" +
           (help.isEmpty() ? QString() : "<p>" + help.toHtmlEscaped() + "</p>");
}

void FieldLabel::showBubble() {
    QString shown = bubble(text(), help);
    if (isUnsaved)
        shown += "<p>" + uiText("This field has changes that are not saved. Its menu reverts them.") + "</p>";
    setToolTip(shown);
}

void FieldLabel::paintEvent(QPaintEvent* event) {
    QLabel::paintEvent(event);
    if (!isUnsaved)
        return;
    QPainter painter(this);
    const int top = (fontMetrics().height() - kSignEdge) / 2 + margin() + contentsMargins().top();
    PhotoStatus::paint(painter, PhotoStatus::Unsaved, QRectF(0, top, kSignEdge, kSignEdge), palette(), false);
}
