#pragma once
#include <QTreeView>

/// Gives a list of rows and columns what all lists of the program have: rows that are chosen as a whole,
/// equally high, without branches, and a name for people who hear it.
void setUpCellList(QTreeView& list, const QString& name);

/// The chosen rows, from above.
QList<int> chosenRows(const QTreeView& list);
