#include "ui/inspector/CatalogueModel.h"

#include "app/editor/KTMetadataEditorViewController.h"
#include "app/editor/KTMetadataFieldArrayViewItem.h"
#include "metadata/KTMetadataFieldManager.h"
#include "ui/support/UIText.h"

#include <QGuiApplication>
#include <QMimeData>
#include <QPalette>

namespace {

constexpr int kKeyRole = Qt::UserRole, kNameRole = kKeyRole + 1, kGroupRole = kKeyRole + 2;

const auto& catalogueGroups() {
    return KTMetadataFieldManager::sharedMetadataFieldManager().metadataGroups();
}

std::shared_ptr<const KTMetadataGroup> groupOf(const QVariant& place) {
    bool isNumber = false;
    const std::size_t index = place.toUInt(&isNumber);
    return isNumber && index < catalogueGroups().size() ? catalogueGroups()[index] : nullptr;
}

} // namespace

CatalogueModel::CatalogueModel(KTMetadataEditorViewController& controller, QObject* parent)
    : QStandardItemModel(parent), editor(controller) {
    setHorizontalHeaderLabels({uiText("All Fields")});
    for (std::size_t i = 0; i < catalogueGroups().size(); ++i) {
        const auto& group = catalogueGroups()[i];
        auto* const groupRow = new QStandardItem(QString::fromStdString(group->name()));
        groupRow->setData(uint(i), kGroupRole);
        groupRow->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDragEnabled);
        for (const auto& field : group->fields()) {
            if (!KTMetadataFieldItemFor(*field))
                continue;
            auto* const row = new QStandardItem;
            row->setData(QString::fromStdString(field->key()), kKeyRole);
            row->setData(QString::fromStdString(field->name()), kNameRole);
            row->setToolTip(QString::fromStdString(field->usageDescription()));
            row->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDragEnabled);
            groupRow->appendRow(row);
        }
        if (groupRow->hasChildren())
            appendRow(groupRow);
        else
            delete groupRow;
    }
    showMarks();
}

std::string CatalogueModel::keyAt(const QModelIndex& index) {
    return index.data(kKeyRole).toString().toStdString();
}

std::shared_ptr<const KTMetadataGroup> CatalogueModel::groupAt(const QModelIndex& index) {
    return groupOf(index.data(kGroupRole));
}

std::shared_ptr<const KTMetadataGroup> CatalogueModel::draggedGroup(const QMimeData& data) {
    return groupOf(data.data(kGroupType));
}

void CatalogueModel::showMarks() {
    const QBrush shownColour = QGuiApplication::palette().brush(QPalette::PlaceholderText);
    for (int i = 0; i < rowCount(); ++i)
        for (int j = 0; j < item(i)->rowCount(); ++j) {
            QStandardItem& row = *item(i)->child(j);
            const bool isShown = editor.showsField(keyAt(row.index()));
            const QString name = row.data(kNameRole).toString();
            row.setText(isShown ? uiText("%1 (shown)").arg(name) : name);
            row.setData(isShown ? QVariant(shownColour) : QVariant(), Qt::ForegroundRole);
        }
}

QStringList CatalogueModel::mimeTypes() const {
    return {QString::fromUtf8(KTMetadataFieldArrayViewItem::kDragType.data()), kGroupType};
}

QMimeData* CatalogueModel::mimeData(const QModelIndexList& indexes) const {
    if (indexes.size() != 1)
        return nullptr;
    const QModelIndex& dragged = indexes.front();
    auto* const data = new QMimeData;
    if (groupAt(dragged))
        data->setData(kGroupType, dragged.data(kGroupRole).toByteArray());
    else
        data->setData(mimeTypes().first(),
                      QByteArray::fromStdString(editor.dragDataOfCatalogueField(keyAt(dragged))));
    return data;
}
