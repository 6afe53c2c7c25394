#include "ui/datetools/DatePreviewList.h"

#include "ui/support/CellList.h"
#include "ui/support/UIText.h"

#include <QHeaderView>

namespace {

enum Column { PhotoColumn, DateColumn, BeforeColumn, AfterColumn, StateColumn };

constexpr int kMostRows = 6; // two dates of three photos

QString placeText(KTDatePreview::Place place) {
    switch (place) {
    case KTDatePreview::Place::Front:
        return uiText("in front");
    case KTDatePreview::Place::First:
        return uiText("first");
    default:
        return uiText("last");
    }
}

} // namespace

DatePreviewList::DatePreviewList(QWidget* parent) : QTreeWidget(parent) {
    setUpCellList(*this, uiText("What would change"));
    setHeaderLabels({uiText("Photo"), uiText("Date"), uiText("Before"), uiText("After"), QString()});
    setToolTip(uiText("What the button makes of the photo in front, and of the first and the last one"));
    setSelectionMode(SingleSelection);
    setTextElideMode(Qt::ElideMiddle);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Maximum); // on small screens one scrolls
    const int em = fontMetrics().horizontalAdvance('m');
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(PhotoColumn, QHeaderView::Stretch);
    for (const auto& [column, width] : {std::pair(DateColumn, 10), std::pair(BeforeColumn, 13),
                                        std::pair(AfterColumn, 14), std::pair(StateColumn, 7)})
        setColumnWidth(column, width * em);
}

QSize DatePreviewList::sizeHint() const {
    const int row = std::max(sizeHintForRow(0), fontMetrics().height() + 4);
    return {520, header()->sizeHint().height() + kMostRows * row + 2 * frameWidth()};
}

/// One photo may be an example of several kinds.
void DatePreviewList::setPreviews(const std::vector<KTDatePreview>& previews) {
    clear();
    for (std::size_t i = 0; i < previews.size(); ++i) {
        const KTDatePreview& preview = previews[i];
        auto isOfPhoto = [&](const KTDatePreview& other) { return other.photo == preview.photo; };
        if (std::any_of(previews.begin(), previews.begin() + std::ptrdiff_t(i), isOfPhoto))
            continue;
        QStringList places;
        for (const KTDatePreview& other : previews)
            if (isOfPhoto(other))
                places << placeText(other.place);
        for (const KTDateChange& change : preview.changes)
            addRow(*preview.photo, places.join(", "), change);
        if (preview.changes.empty())
            new QTreeWidgetItem(this,
                                {uiText("%1 (%2)").arg(uiPath(preview.photo->filename()), places.join(", ")),
                                 QString(), QString(), uiText("stays as it is")});
    }
}

void DatePreviewList::addRow(const KTPhoto& photo, const QString& places, const KTDateChange& change) {
    const bool isInForce = photo.valueForKey(change.key) == change.newDate;
    const QString before = QString::fromStdString(change.oldText());
    auto* const row = new QTreeWidgetItem(
        this, {uiText("%1 (%2)").arg(uiPath(photo.filename()), places), QString::fromStdString(change.name()),
               before.isEmpty() ? uiText("none") : before, QString::fromStdString(change.newText()),
               isInForce ? uiText("already so") : QString()});
    row->setForeground(StateColumn, palette().color(QPalette::PlaceholderText));
    QFont strong = font();
    strong.setBold(!isInForce && change.oldText() != change.newText());
    row->setFont(AfterColumn, strong);
}
