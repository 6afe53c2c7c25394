#include "ui/support/CellList.h"

#include <QHeaderView>

void setUpCellList(QTreeView& list, const QString& name) {
    list.setAccessibleName(name);
    list.setRootIsDecorated(false);
    list.setItemsExpandable(false);
    list.setUniformRowHeights(true);
    list.setAllColumnsShowFocus(true);
    list.setAlternatingRowColors(true);
    list.setSelectionMode(QAbstractItemView::ExtendedSelection);
    list.setEditTriggers(QAbstractItemView::NoEditTriggers);
    list.header()->setStretchLastSection(true);
}

QList<int> chosenRows(const QTreeView& list) {
    QList<int> rows;
    for (const QModelIndex& index : list.selectionModel()->selectedRows())
        rows << index.row();
    std::ranges::sort(rows);
    return rows;
}
