#pragma once
#include "platform/observing/KTObservable.h"

#include <QAbstractItemModel>
#include <memory>

class KTMetadataEditorViewController;
class KTMetadataField;
class KTMetadataGroup;

/// The inspector's groups and, below each, its fields, as they can be arranged: renamed in place, dragged,
/// and taking fields and groups dragged from the catalogue.
class GroupTreeModel : public QAbstractItemModel {
    Q_OBJECT
public:
    /// @p controller must outlive the model.
    explicit GroupTreeModel(KTMetadataEditorViewController& controller, QObject* parent = nullptr);

    /// The group of a row, or of a field's row; null for none.
    std::shared_ptr<KTMetadataGroup> groupAt(const QModelIndex& index) const;
    /// Null for a group's row.
    std::shared_ptr<KTMetadataField> fieldAt(const QModelIndex& index) const;
    QModelIndex indexOfField(const KTMetadataField& field) const;

    // Commands on a row
    void remove(const QModelIndex& index);
    /// A group among the groups; a field within its group and into its neighbours. Its new place.
    QModelIndex move(const QModelIndex& index, bool isUp);

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& = {}) const override { return 1; }
    QVariant data(const QModelIndex& index, int role) const override;
    /// Shown nowhere, but read out.
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QStringList mimeTypes() const override;
    QMimeData* mimeData(const QModelIndexList& indexes) const override;
    Qt::DropActions supportedDropActions() const override { return Qt::MoveAction | Qt::CopyAction; }
    Qt::DropActions supportedDragActions() const override { return Qt::MoveAction; }
    bool dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                      const QModelIndex& parent) override;

private:
    void followGroups();
    void reset();
    bool dropGroup(const QMimeData& data, int before);

    KTMetadataEditorViewController& editor;
    std::vector<std::shared_ptr<KTMetadataGroup>> groups;
    std::vector<std::vector<std::shared_ptr<KTMetadataField>>> fields; // of each group
    KTObservable::Observation editorObservation;
    std::vector<KTObservable::Observation> groupObservations;
};
