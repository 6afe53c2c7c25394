#pragma once
#include "ui/photos/PhotoListModel.h"

#include <QAbstractItemView>
#include <QItemSelection>

/// Keeps the selection of a view of photos and that of the collection the same, and the view's place when its
/// rows change. The view's rows are those of @p list. Photos that the filter hides are not selected.
class PhotoSelectionLink : public QObject {
    Q_OBJECT
public:
    /// @p view has its model; it owns the link.
    PhotoSelectionLink(QAbstractItemView& view, PhotoListModel& list, KTPhotoController& photoController);

private:
    void viewDidSelect();
    void showSelection();
    void rememberPlace();
    void restorePlace();
    std::vector<int> selectedRows() const;
    QItemSelection selectionOf(const std::vector<int>& rows) const;

    QAbstractItemView& itemView;
    PhotoListModel& model;
    KTPhotoController& controller;
    PhotoListModel::Photo current;
    int scrollPosition = 0;
    bool isApplying = false;
    KTObservable::Observation observation;
};
