#include "ui/inspector/FieldLabel.h"

#include "metadata/KTMetadataFieldManager.h"
#include "ui/photos/PhotoStatus.h"
#include "ui/support/UIText.h"

namespace {

constexpr int kLeastWidth = 100, kMostWidth = 160, kSignEdge = 11, kGutter = 13;

/// All labels are as wide as the longest word needs that a field's name has in the user's language: words are
/// not broken.
int widthOfNames(const QFontMetrics& metrics) {
    int width = 0;
    for (const auto& field : KTMetadataFieldManager::sharedMetadataFieldManager().metadataFields())
        for (const QString& word : QString::fromStdString(field->name()).split(' '))
            width = std::max(width, metrics.horizontalAdvance(word));
    return std::clamp(width + kGutter, kLeastWidth, kMostWidth);
}

} // namespace

FieldLabel::FieldLabel(QWidget* parent) : QLabel(parent) {
    setWordWrap(true);
    setAlignment(Qt::AlignRight | Qt::AlignTop);
    setForegroundRole(QPalette::WindowText);
    static const int width = widthOfNames(fontMetrics());
    setFixedWidth(width);
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
