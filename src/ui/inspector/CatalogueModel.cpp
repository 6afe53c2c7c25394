#include "ui/inspector/CatalogueModel.h"

#include "app/editor/KTMetadataEditorViewController.h"
#include "app/editor/KTMetadataFieldArrayViewItem.h"
#include "metadata/KTMetadataFieldManager.h"
#include "ui/support/UIText.h"

#include <QGuiApplication>
#include <QMimeData>
#include <QPalette>

namespace {

constexpr int kKeyRole = Qt::UserRole;

} // namespace

CatalogueModel::CatalogueModel(KTMetadataEditorViewController& controller, QObject* parent)
    : QStandardItemModel(parent), editor(controller) {
    setHorizontalHeaderLabels({uiText("All Fields")});
    for (const auto& group : KTMetadataFieldManager::sharedMetadataFieldManager().metadataGroups()) {
        auto* const groupRow = new QStandardItem(QString::fromStdString(group->name()));
        groupRow->setFlags(Qt::ItemIsEnabled);
        for (const auto& field : group->fields()) {
            if (!KTMetadataFieldItemFor(*field))
                continue;
            auto* const row = new QStandardItem;
            row->setData(QString::fromStdString(field->key()), kKeyRole);
            row->setData(QString::fromStdString(field->name()), kKeyRole + 1);
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

void CatalogueModel::showMarks() {
    const QBrush shownColour = QGuiApplication::palette().brush(QPalette::PlaceholderText);
    for (int i = 0; i < rowCount(); ++i)
        for (int j = 0; j < item(i)->rowCount(); ++j) {
            QStandardItem& row = *item(i)->child(j);
            const bool isShown = editor.showsField(keyAt(row.index()));
            const QString name = row.data(kKeyRole + 1).toString();
            row.setText(isShown ? uiText("%1 (shown)").arg(name) : name);
            row.setData(isShown ? QVariant(shownColour) : QVariant(), Qt::ForegroundRole);
        }
}

QStringList CatalogueModel::mimeTypes() const {
    return {QString::fromUtf8(KTMetadataFieldArrayViewItem::kDragType.data())};
}

QMimeData* CatalogueModel::mimeData(const QModelIndexList& indexes) const {
    if (indexes.size() != 1 || keyAt(indexes.front()).empty())
        return nullptr;
    auto* const data = new QMimeData;
    data->setData(mimeTypes().first(),
                  QByteArray::fromStdString(editor.dragDataOfCatalogueField(keyAt(indexes.front()))));
    return data;
}
