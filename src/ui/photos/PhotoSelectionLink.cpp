#include "ui/photos/PhotoSelectionLink.h"

#include <QScopedValueRollback>
#include <QScrollBar>

PhotoSelectionLink::PhotoSelectionLink(QAbstractItemView& view, PhotoListModel& list,
                                       KTPhotoController& photoController)
    : QObject(&view), itemView(view), model(list), controller(photoController) {
    connect(view.selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &PhotoSelectionLink::viewDidSelect);
    connect(view.model(), &QAbstractItemModel::modelAboutToBeReset, this, &PhotoSelectionLink::rememberPlace);
    connect(view.model(), &QAbstractItemModel::modelReset, this, &PhotoSelectionLink::restorePlace,
            Qt::QueuedConnection);
    observation = controller.observe([this](const KTChange& change) {
        if (!change.isPrior && change.key == "selectedPhotos" && !isApplying)
            showSelection();
    });
    showSelection();
}

std::vector<int> PhotoSelectionLink::selectedRows() const {
    std::vector<int> rows;
    for (const QItemSelectionRange& range : itemView.selectionModel()->selection())
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows.push_back(row);
    std::ranges::sort(rows);
    const auto repeated = std::ranges::unique(rows);
    rows.erase(repeated.begin(), repeated.end());
    return rows;
}

void PhotoSelectionLink::viewDidSelect() {
    if (isApplying)
        return;
    const QScopedValueRollback applying(isApplying, true);
    PhotoListModel::Photos photos;
    for (const int row : selectedRows())
        photos.push_back(model.photoAt(row));
    controller.photoManager().setSelectedPhotos(photos);
}

/// One range a run of neighbours: selecting all rows one by one would take seconds.
QItemSelection PhotoSelectionLink::selectionOf(const std::vector<int>& rows) const {
    const QAbstractItemModel& shown = *itemView.model();
    QItemSelection result;
    for (std::size_t i = 0; i < rows.size();) {
        std::size_t end = i + 1;
        while (end < rows.size() && rows[end] == rows[end - 1] + 1)
            ++end;
        result.append(QItemSelectionRange(shown.index(rows[i], 0),
                                          shown.index(rows[end - 1], shown.columnCount() - 1)));
        i = end;
    }
    return result;
}

void PhotoSelectionLink::showSelection() {
    const QScopedValueRollback applying(isApplying, true);
    model.synchronize();
    std::vector<int> rows;
    for (const auto& photo : *controller.selectedPhotos())
        if (const int row = model.rowOf(photo.get()); row >= 0)
            rows.push_back(row);
    std::ranges::sort(rows);
    if (rows == selectedRows())
        return;
    QItemSelectionModel& selection = *itemView.selectionModel();
    selection.select(selectionOf(rows), QItemSelectionModel::ClearAndSelect);
    const bool isCurrentSelected = selection.isSelected(selection.currentIndex());
    if (!rows.empty() && !isCurrentSelected) {
        const QModelIndex first = itemView.model()->index(
            rows.front(), selection.currentIndex().column() < 0 ? 0 : selection.currentIndex().column());
        selection.setCurrentIndex(first, QItemSelectionModel::NoUpdate);
        itemView.scrollTo(first);
    }
}

void PhotoSelectionLink::rememberPlace() {
    const QModelIndex index = itemView.currentIndex();
    current = index.isValid() && index.row() < model.rowCount() ? model.photoAt(index.row()) : nullptr;
    scrollPosition = itemView.verticalScrollBar()->value();
}

void PhotoSelectionLink::restorePlace() {
    showSelection();
    const QScopedValueRollback applying(isApplying, true);
    if (const int row = current ? model.rowOf(current.get()) : -1; row >= 0)
        itemView.selectionModel()->setCurrentIndex(itemView.model()->index(row, 0),
                                                   QItemSelectionModel::NoUpdate);
    itemView.verticalScrollBar()->setValue(scrollPosition);
}
