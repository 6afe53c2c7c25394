#include "ui/inspector/GroupTreeModel.h"

#include "app/editor/KTMetadataEditorViewController.h"
#include "app/editor/KTMetadataFieldArrayViewItem.h"
#include "ui/inspector/CatalogueModel.h"
#include "ui/support/ObservationLink.h"
#include "ui/support/UIText.h"

#include <QFont>
#include <QMimeData>

namespace {

constexpr quintptr kGroupRow = ~quintptr(0); // else the row of the field's group
constexpr const char* kGroupType = "application/x-waymark-editor-group";

QString fieldType() {
    return QString::fromUtf8(KTMetadataFieldArrayViewItem::kDragType.data());
}

} // namespace

GroupTreeModel::GroupTreeModel(KTMetadataEditorViewController& controller, QObject* parent)
    : QAbstractItemModel(parent), editor(controller) {
    editorObservation = observeFor(this, editor, "groups", [this] { followGroups(); });
    followGroups();
}

void GroupTreeModel::followGroups() {
    groupObservations.clear();
    for (const auto& group : editor.groups())
        groupObservations.push_back(observeFor(this, *group, "fields", [this] { reset(); }));
    reset();
}

/// A small model, which is taken over as a whole.
void GroupTreeModel::reset() {
    beginResetModel();
    groups = editor.groups();
    fields.clear();
    for (const auto& group : groups)
        fields.push_back(group->fields());
    endResetModel();
}

std::shared_ptr<KTMetadataGroup> GroupTreeModel::groupAt(const QModelIndex& index) const {
    if (!index.isValid())
        return nullptr;
    const quintptr row = index.internalId() == kGroupRow ? quintptr(index.row()) : index.internalId();
    return groups.at(row);
}

std::shared_ptr<KTMetadataField> GroupTreeModel::fieldAt(const QModelIndex& index) const {
    return index.isValid() && index.internalId() != kGroupRow
               ? fields.at(index.internalId()).at(std::size_t(index.row()))
               : nullptr;
}

QModelIndex GroupTreeModel::indexOfField(const KTMetadataField& field) const {
    for (std::size_t i = 0; i < fields.size(); ++i)
        for (std::size_t j = 0; j < fields[i].size(); ++j)
            if (fields[i][j].get() == &field)
                return createIndex(int(j), 0, quintptr(i));
    return {};
}

void GroupTreeModel::remove(const QModelIndex& index) {
    if (const auto field = fieldAt(index))
        editor.removeField(*field);
    else if (const auto group = groupAt(index))
        editor.removeGroup(group);
}

QModelIndex GroupTreeModel::move(const QModelIndex& index, bool isUp) {
    const auto field = fieldAt(index);
    const std::size_t row = std::size_t(index.row());
    if (field == nullptr) {
        const std::size_t to = isUp ? row - 1 : row + 1;
        if (to >= groups.size())
            return index;
        editor.moveGroup(row, to);
        return this->index(int(to), 0);
    }
    const std::size_t group = index.internalId(), count = fields[group].size();
    const std::string dragged = editor.dragDataOfField(*field);
    if (isUp && row > 0)
        editor.dropField(dragged, *groups[group], row - 1);
    else if (!isUp && row + 1 < count)
        editor.dropField(dragged, *groups[group], row + 2);
    else if (isUp && group > 0)
        editor.dropField(dragged, *groups[group - 1], fields[group - 1].size());
    else if (!isUp && group + 1 < groups.size())
        editor.dropField(dragged, *groups[group + 1], 0);
    return indexOfField(*field);
}

QModelIndex GroupTreeModel::index(int row, int column, const QModelIndex& parent) const {
    if (column != 0 || row < 0 || row >= rowCount(parent))
        return {};
    return createIndex(row, column, parent.isValid() ? quintptr(parent.row()) : kGroupRow);
}

QModelIndex GroupTreeModel::parent(const QModelIndex& index) const {
    if (!index.isValid() || index.internalId() == kGroupRow)
        return {};
    return createIndex(int(index.internalId()), 0, kGroupRow);
}

int GroupTreeModel::rowCount(const QModelIndex& parent) const {
    if (!parent.isValid())
        return int(groups.size());
    return parent.internalId() == kGroupRow ? int(fields[std::size_t(parent.row())].size()) : 0;
}

QVariant GroupTreeModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid())
        return {};
    const auto field = fieldAt(index);
    if (role == Qt::DisplayRole || role == Qt::EditRole)
        return QString::fromStdString(field ? field->name() : groupAt(index)->name());
    if (role == Qt::ToolTipRole)
        return field ? QString::fromStdString(field->usageDescription())
                     : uiText("A group of fields; double click to rename it");
    if (role == Qt::FontRole && !field) {
        QFont bold;
        bold.setBold(true);
        return bold;
    }
    return {};
}

QVariant GroupTreeModel::headerData(int, Qt::Orientation, int role) const {
    return role == Qt::DisplayRole ? QVariant(uiText("Groups and Fields")) : QVariant();
}

bool GroupTreeModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (role != Qt::EditRole || !index.isValid())
        return false;
    const std::string name = value.toString().trimmed().toStdString();
    if (const auto field = fieldAt(index))
        editor.renameField(*field, name);
    else
        editor.renameGroup(*groupAt(index), name);
    emit dataChanged(index, index);
    return true;
}

Qt::ItemFlags GroupTreeModel::flags(const QModelIndex& index) const {
    if (!index.isValid())
        return Qt::ItemIsDropEnabled;
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsEditable | Qt::ItemIsDragEnabled |
           Qt::ItemIsDropEnabled;
}

QStringList GroupTreeModel::mimeTypes() const {
    return {fieldType(), kGroupType, CatalogueModel::kGroupType};
}

QMimeData* GroupTreeModel::mimeData(const QModelIndexList& indexes) const {
    if (indexes.size() != 1)
        return nullptr;
    auto* const data = new QMimeData;
    if (const auto field = fieldAt(indexes.front()))
        data->setData(fieldType(), QByteArray::fromStdString(editor.dragDataOfField(*field)));
    else
        data->setData(kGroupType, QByteArray::number(indexes.front().row()));
    return data;
}

bool GroupTreeModel::dropGroup(const QMimeData& data, int before) {
    if (!data.hasFormat(kGroupType)) {
        const auto added = CatalogueModel::draggedGroup(data);
        return added && editor.addCatalogueGroup(*added, std::size_t(before));
    }
    const int from = data.data(kGroupType).toInt();
    editor.moveGroup(std::size_t(from), std::size_t(std::max(0, from < before ? before - 1 : before)));
    return true;
}

/// A field before the row where it is dropped; onto a group at its end. A group before another group.
bool GroupTreeModel::dropMimeData(const QMimeData* data, Qt::DropAction, int row, int,
                                  const QModelIndex& parent) {
    if (data->hasFormat(kGroupType) || data->hasFormat(CatalogueModel::kGroupType)) {
        int before = row >= 0 && !parent.isValid() ? row : int(groups.size());
        if (parent.isValid())
            before = parent.internalId() == kGroupRow ? parent.row() : int(parent.internalId());
        return dropGroup(*data, before);
    }
    if (!data->hasFormat(fieldType()) || groups.empty())
        return false;
    const bool isOnField = parent.isValid() && parent.internalId() != kGroupRow;
    const std::size_t group = isOnField          ? parent.internalId()
                              : parent.isValid() ? std::size_t(parent.row())
                              : row > 0          ? std::size_t(row - 1)
                              : row == 0         ? 0
                                                 : groups.size() - 1;
    std::size_t at = fields[group].size();
    if (isOnField)
        at = std::size_t(parent.row());
    else if (parent.isValid() && row >= 0)
        at = std::size_t(row);
    return editor.dropField(data->data(fieldType()).toStdString(), *groups[group], at);
}
