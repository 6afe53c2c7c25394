#include "ui/support/WrappingLine.h"

#include <QStyle>
#include <QWidget>

namespace {

constexpr int kSpacing = 6, kLineSpacing = 2;

} // namespace

WrappingLine::WrappingLine(std::initializer_list<QWidget*> widgets) {
    setContentsMargins({});
    for (QWidget* const widget : widgets)
        addWidget(widget);
}

WrappingLine::~WrappingLine() = default;

void WrappingLine::addItem(QLayoutItem* item) {
    items.emplace_back(item);
}

QLayoutItem* WrappingLine::itemAt(int index) const {
    return index >= 0 && index < count() ? items[std::size_t(index)].get() : nullptr;
}

QLayoutItem* WrappingLine::takeAt(int index) {
    if (index < 0 || index >= count())
        return nullptr;
    QLayoutItem* const item = items[std::size_t(index)].release();
    items.erase(items.begin() + index);
    return item;
}

QSize WrappingLine::sizeHint() const {
    QSize all(kSpacing * (count() - 1), 0);
    for (const auto& item : items) {
        const QSize size = item->sizeHint();
        all = {all.width() + size.width(), std::max(all.height(), size.height())};
    }
    return all;
}

QSize WrappingLine::minimumSize() const {
    QSize least;
    for (const auto& item : items)
        least = least.expandedTo(item->sizeHint());
    return least;
}

void WrappingLine::setGeometry(const QRect& place) {
    QLayout::setGeometry(place);
    layOut(place, true);
}

/// The height of all lines; moves the widgets there if that @p isMeant.
int WrappingLine::layOut(const QRect& place, bool isMeant) const {
    int x = 0, y = 0;
    for (std::size_t first = 0, next = 0; first < items.size(); first = next) {
        int height = 0;
        for (x = 0; next < items.size(); ++next) {
            const QSize size = items[next]->sizeHint();
            if (next > first && x + size.width() > place.width())
                break;
            x += size.width() + kSpacing;
            height = std::max(height, size.height());
        }
        x = 0;
        for (std::size_t i = first; i < next && isMeant; ++i) {
            const QSize size = items[i]->sizeHint();
            const QRect line(place.x() + x, place.y() + y, std::min(size.width(), place.width()), height);
            const QRect own = QStyle::alignedRect(Qt::LeftToRight, Qt::AlignVCenter, size, line);
            items[i]->setGeometry(QStyle::visualRect(parentWidget()->layoutDirection(), place, own));
            x += size.width() + kSpacing;
        }
        y += height + kLineSpacing;
    }
    return y - kLineSpacing;
}
