#pragma once
#include "app/editor/KTMetadataFieldMultipleValueArrayViewItem.h"

#include <QAbstractListModel>

/// The table of a list editor: the elements that the selected photos share, and a last row for adding.
class ListFieldModel : public QAbstractListModel {
    Q_OBJECT
public:
    using Item = KTMetadataFieldMultipleValueArrayViewItem;

    /// @p edited must outlive the model.
    explicit ListFieldModel(Item& edited, QObject* parent = nullptr);

    /// Takes over what the item holds now.
    void showValue();
    int addRow() const { return int(shown.size()); }

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QStringList mimeTypes() const override;
    QMimeData* mimeData(const QModelIndexList& indexes) const override;
    Qt::DropActions supportedDropActions() const override { return Qt::MoveAction; }
    bool canDropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                         const QModelIndex& parent) const override;
    bool dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                      const QModelIndex& parent) override;

private:
    Item& item;
    Item::List shown;
    QString placeholder;
};
