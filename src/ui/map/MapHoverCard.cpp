#include "ui/map/MapHoverCard.h"

#include "ui/photos/ThumbnailPainter.h"

#include <QPainter>

namespace {

constexpr int kMargin = 8, kPicture = 96, kTextWidth = 240, kDistance = 14;

QFont titleFont(QFont font) {
    font.setBold(true);
    return font;
}

} // namespace

MapHoverCard::MapHoverCard(KTThumbnailService& thumbnails, QWidget* map) : QWidget(map), service(thumbnails) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    QWidget::hide();
    observation = service.observe([this](const KTChange& change) {
        if (!change.isPrior)
            update();
    });
}

MapHoverCard::~MapHoverCard() {
    service.setWishes(this, {});
}

void MapHoverCard::show(const Content& content, QPoint anchor) {
    const bool isOther = content.subject != shown.subject || content.text != shown.text;
    shown = content;
    if (isOther)
        service.setWishes(this, content.file.empty()
                                    ? std::vector<KTThumbnailService::Wish>()
                                    : std::vector<KTThumbnailService::Wish>{
                                          {content.file, int(kPicture * devicePixelRatioF() + 0.5)}});
    if (content.subject == nullptr) {
        hide();
        return;
    }
    resize(wantedSize());
    const QRect map = parentWidget()->rect();
    const bool isLeft = anchor.x() + kDistance + width() > map.right();
    const bool isAbove = anchor.y() + kDistance + height() > map.bottom();
    move(isLeft ? anchor.x() - kDistance - width() : anchor.x() + kDistance,
         isAbove ? anchor.y() - kDistance - height() : anchor.y() + kDistance);
    setVisible(true);
    update();
}

QRect MapHoverCard::textArea() const {
    const int left = shown.file.empty() ? kMargin : kPicture + 2 * kMargin;
    return {left, kMargin, kTextWidth, 1000};
}

QSize MapHoverCard::wantedSize() const {
    const QRect title =
        QFontMetrics(titleFont(font())).boundingRect(textArea(), Qt::TextWordWrap, shown.title);
    const QRect text = fontMetrics().boundingRect(textArea(), Qt::TextWordWrap, shown.text);
    const int height = title.height() + (shown.text.isEmpty() ? 0 : text.height() + 2);
    const int minimum = shown.file.empty() ? 0 : kPicture * 2 / 3;
    return {textArea().left() + std::max(title.width(), text.width()) + kMargin + 2,
            std::max(height, minimum) + 2 * kMargin};
}

void MapHoverCard::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QColor edge = palette().color(QPalette::WindowText);
    edge.setAlphaF(0.35F);
    painter.setPen(edge);
    painter.setBrush(palette().base());
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 5, 5);
    if (!shown.file.empty())
        paintThumbnail(painter, service, shown.file,
                       QRect(kMargin, kMargin, kPicture, height() - 2 * kMargin), palette());
    painter.setPen(palette().color(QPalette::Text));
    painter.setFont(titleFont(font()));
    QRect used;
    painter.drawText(textArea(), Qt::TextWordWrap, shown.title, &used);
    painter.setFont(font());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(textArea().translated(0, used.height() + 2), Qt::TextWordWrap, shown.text);
}
