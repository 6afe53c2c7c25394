#pragma once
#include "collection/KTPhotoController.h"
#include "ui/photos/PhotoFilter.h"
#include "ui/photos/PhotoMimeData.h"

#include <QAbstractTableModel>
#include <QTimer>

class PhotoChangeCollector;

/// The photos of the photo controller, as far as the filter lets them through, a row a photo. The first two
/// columns are the status and the thumbnail, the others fields of the catalogue. No cell touches the disk.
///
/// Changes reach the views in batches: what comes or goes and what is edited within a few hundredths of a
/// second is announced together. Main thread.
class PhotoListModel : public QAbstractTableModel {
    Q_OBJECT
public:
    using Photo = std::shared_ptr<KTPhoto>;
    using Photos = KTPhotoController::Photos;

    enum Column { StatusColumn, ThumbnailColumn, FirstFieldColumn };
    enum Role {
        PhotoRole = Qt::UserRole, ///< the photo
        StatusRole,               ///< its PhotoStatus signs
        SubtitleRole,
        FieldKeyRole, ///< of a header: the field's key; empty for the first columns
    };

    /// @p photoController must outlive the model.
    explicit PhotoListModel(KTPhotoController& photoController);
    ~PhotoListModel() override;

    /// The keys of the fields shown, in order.
    const std::vector<std::string>& fieldKeys() const { return keys; }
    /// Keys that the catalogue does not know are left out.
    void setFieldKeys(const std::vector<std::string>& fieldKeys);

    const PhotoFilter& filter() const { return photoFilter; }
    void setFilterText(const QString& text);
    void setFilterKind(PhotoFilter::Kind kind);
    void setFarFromTracks(PhotoFilter::IsFar question);

    const Photos& photos() const { return rows; }
    const Photo& photoAt(int row) const { return rows[std::size_t(row)]; }
    /// -1 for a photo that is not listed.
    int rowOf(const KTPhoto* photo) const;
    /// Brings the rows up to date now.
    void synchronize();
    /// A text for a photo that belongs to its status, such as why it cannot be geotagged; empty for none.
    using StatusText = std::function<QString(const Photo&)>;
    void setStatusText(StatusText text) { statusText = std::move(text); }
    /// Tells the views that the status texts of all rows may be others.
    void statusTextsDidChange();

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QStringList mimeTypes() const override { return {"text/uri-list"}; }
    QMimeData* mimeData(const QModelIndexList& indexes) const override;

    /// Dragged photos go before @p row of this list.
    void movePhotosToRow(const Photos& dragged, int row);

private:
    void filterFrom(std::size_t photo);
    void adopt(Photos next);
    Photos filtered(const Photos& all);
    void deselectHidden();
    void announceEdits();
    QVariant fieldText(const KTPhoto& photo, std::size_t field) const;
    QString statusDescription(const Photo& photo) const;

    KTPhotoController& controller;
    std::vector<std::string> keys;
    std::vector<const KTMetadataField*> fields; // of the keys
    PhotoFilter photoFilter;
    StatusText statusText;
    Photos rows;
    std::unordered_map<const KTPhoto*, int> rowsByPhoto;
    std::unique_ptr<PhotoChangeCollector> edits;
    QTimer listTimer, filterTimer;
    KTObservable::Observation observation;
};

Q_DECLARE_METATYPE(std::shared_ptr<KTPhoto>)
