#include "ui/inspector/ListFieldModel.h"

#include <QGuiApplication>
#include <QIODevice>
#include <QMimeData>
#include <QPalette>

ListFieldModel::ListFieldModel(Item& edited, QObject* parent) : QAbstractListModel(parent), item(edited) {}

void ListFieldModel::showValue() {
    const QString newPlaceholder = QString::fromStdString(item.placeholderOfRow(item.values().size()));
    if (shown == item.values() && placeholder == newPlaceholder)
        return;
    beginResetModel();
    shown = item.values();
    placeholder = newPlaceholder;
    endResetModel();
}

int ListFieldModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : addRow() + 1;
}

QVariant ListFieldModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid())
        return {};
    const bool isAddRow = index.row() >= addRow();
    const QString text = isAddRow ? QString() : QString::fromStdString(shown[std::size_t(index.row())]);
    switch (role) {
    case Qt::DisplayRole:
        return isAddRow ? placeholder : text;
    case Qt::EditRole:
    case Qt::ToolTipRole:
        return text;
    case Qt::ForegroundRole:
        return isAddRow ? QVariant(QGuiApplication::palette().brush(QPalette::PlaceholderText)) : QVariant();
    default:
        return {};
    }
}

Qt::ItemFlags ListFieldModel::flags(const QModelIndex& index) const {
    if (!item.isEditable())
        return Qt::NoItemFlags;
    if (!index.isValid())
        return Qt::ItemIsDropEnabled;
    const Qt::ItemFlags common = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsEditable;
    return index.row() < addRow() ? common | Qt::ItemIsDragEnabled : common;
}

QStringList ListFieldModel::mimeTypes() const {
    return {QString::fromStdString(item.movedValueRowsType())};
}

QMimeData* ListFieldModel::mimeData(const QModelIndexList& indexes) const {
    Item::Rows rows;
    for (const QModelIndex& index : indexes)
        rows.push_back(std::size_t(index.row()));
    std::ranges::sort(rows);
    if (!item.canDragRows(rows))
        return nullptr;
    QByteArray bytes;
    for (const std::size_t row : rows)
        bytes += QByteArray::number(qulonglong(row)) + ' ';
    auto* const data = new QMimeData;
    data->setData(mimeTypes().first(), bytes.trimmed());
    return data;
}

bool ListFieldModel::canDropMimeData(const QMimeData* data, Qt::DropAction action, int, int,
                                     const QModelIndex&) const {
    return action == Qt::MoveAction && data->hasFormat(mimeTypes().first());
}

/// Above the row it is dropped on, or at the end. The rows are looked at by their places, which stay as they
/// are during a drag within one table.
bool ListFieldModel::dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                                  const QModelIndex& parent) {
    if (!canDropMimeData(data, action, row, column, parent))
        return false;
    const int place = row >= 0 ? row : parent.isValid() ? parent.row() : addRow();
    Item::Rows rows;
    for (const QByteArray& number : data->data(mimeTypes().first()).split(' '))
        rows.push_back(std::size_t(number.toULongLong()));
    item.moveValuesAtIndexes(rows, std::size_t(std::min(place, addRow())));
    return true;
}
