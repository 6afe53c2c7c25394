#pragma once
#include <QStandardItemModel>

class KTMetadataEditorViewController;
class KTMetadataGroup;

/// All fields that have an editor, in the groups of the catalogue, from which they are dragged into the
/// inspector. Those that it shows are marked.
class CatalogueModel : public QStandardItemModel {
    Q_OBJECT
public:
    /// @p controller must outlive the model.
    explicit CatalogueModel(KTMetadataEditorViewController& controller, QObject* parent = nullptr);

    /// The key of a field; empty for the row of a group.
    static std::string keyAt(const QModelIndex& index);
    /// The group whose row it is; null for the row of a field.
    static std::shared_ptr<const KTMetadataGroup> groupAt(const QModelIndex& index);
    /// Marks anew what the inspector shows.
    void showMarks();

    /// Of a group that is dragged: its place in the catalogue.
    static constexpr const char* kGroupType = "application/x-waymark-catalogue-group";
    static std::shared_ptr<const KTMetadataGroup> draggedGroup(const QMimeData& data);

    Qt::DropActions supportedDragActions() const override { return Qt::CopyAction; }
    QStringList mimeTypes() const override;
    QMimeData* mimeData(const QModelIndexList& indexes) const override;

private:
    KTMetadataEditorViewController& editor;
};
