#include "ui/photos/PhotoListModel.h"

#include "metadata/KTFormatter.h"
#include "metadata/KTMetadataFieldManager.h"
#include "ui/photos/PhotoChangeCollector.h"
#include "ui/photos/PhotoStatus.h"
#include "ui/support/UIText.h"

namespace {

constexpr std::chrono::milliseconds kListPause{60}, kFilterPause{120}, kFilterStep{12};

} // namespace

PhotoListModel::PhotoListModel(KTPhotoController& photoController)
    : controller(photoController),
      edits(std::make_unique<PhotoChangeCollector>([this] { announceEdits(); })) {
    for (QTimer* timer : {&listTimer, &filterTimer})
        timer->setSingleShot(true);
    connect(&listTimer, &QTimer::timeout, this, &PhotoListModel::synchronize);
    connect(&filterTimer, &QTimer::timeout, this, [this] { filterFrom(0); });
    observation = controller.observe([this](const KTChange& change) {
        if (change.isPrior)
            return;
        if (change.key == "photos" && !listTimer.isActive())
            listTimer.start(kListPause);
        else if (change.key == "selectedPhotos" && !photoFilter.letsAllThrough())
            QMetaObject::invokeMethod(this, &PhotoListModel::deselectHidden, Qt::QueuedConnection);
    });
    synchronize();
}

PhotoListModel::~PhotoListModel() = default;

void PhotoListModel::setFieldKeys(const std::vector<std::string>& fieldKeys) {
    beginResetModel();
    keys.clear();
    fields.clear();
    for (const std::string& key : fieldKeys)
        if (const auto* field =
                KTMetadataFieldManager::sharedMetadataFieldManager().metadataFieldForKey(key)) {
            keys.push_back(key);
            fields.push_back(field);
        }
    endResetModel();
}

void PhotoListModel::setFilterText(const QString& text) {
    photoFilter.setText(text);
    filterTimer.start(kFilterPause);
}

void PhotoListModel::setFilterKind(PhotoFilter::Kind kind) {
    photoFilter.setKind(kind);
    synchronize();
}

void PhotoListModel::setFarFromTracks(PhotoFilter::IsFar question) {
    photoFilter.setIsFar(std::move(question));
}

/// A little at a time: the texts of many photos take a while to be read.
void PhotoListModel::filterFrom(std::size_t photo) {
    const auto all = controller.photos();
    const std::size_t next = photoFilter.prepare(*all, photo, kFilterStep);
    if (next < all->size() && !filterTimer.isActive())
        QTimer::singleShot(0, this, [this, next] { filterFrom(next); });
    else if (next >= all->size())
        synchronize();
}

int PhotoListModel::rowOf(const KTPhoto* photo) const {
    const auto place = rowsByPhoto.find(photo);
    return place == rowsByPhoto.end() ? -1 : place->second;
}

void PhotoListModel::synchronize() {
    listTimer.stop();
    const auto all = controller.photos();
    edits->follow(*all);
    adopt(photoFilter.letsAllThrough() ? *all : filtered(*all));
    if (!photoFilter.letsAllThrough())
        deselectHidden();
}

/// What the filter hides must not be subject to commands.
void PhotoListModel::deselectHidden() {
    const auto selected = controller.selectedPhotos();
    Photos visible;
    std::ranges::copy_if(*selected, std::back_inserter(visible),
                         [this](const Photo& photo) { return rowOf(photo.get()) >= 0; });
    if (visible.size() != selected->size())
        controller.photoManager().setSelectedPhotos(visible);
}

PhotoListModel::Photos PhotoListModel::filtered(const Photos& all) {
    Photos result;
    std::ranges::copy_if(all, std::back_inserter(result),
                         [this](const Photo& photo) { return photoFilter.matches(photo); });
    return result;
}

/// Photos that come are appended by most imports; everything else is a new list.
void PhotoListModel::adopt(Photos next) {
    if (next == rows)
        return;
    const bool isAppended = next.size() > rows.size() && std::equal(rows.begin(), rows.end(), next.begin());
    const std::size_t first = isAppended ? rows.size() : 0;
    if (isAppended)
        beginInsertRows({}, int(first), int(next.size()) - 1);
    else
        beginResetModel();
    rows = std::move(next);
    if (!isAppended)
        rowsByPhoto.clear();
    for (std::size_t row = first; row < rows.size(); ++row)
        rowsByPhoto[rows[row].get()] = int(row);
    if (isAppended)
        endInsertRows();
    else
        endResetModel();
}

void PhotoListModel::announceEdits() {
    int first = rowCount(), last = -1;
    for (const KTPhoto* const photo : edits->takeEdited()) {
        photoFilter.forget(photo);
        if (const int row = rowOf(photo); row >= 0) {
            first = std::min(first, row);
            last = std::max(last, row);
        }
    }
    if (last >= first)
        emit dataChanged(index(first, 0), index(last, columnCount() - 1));
    if (!photoFilter.letsAllThrough())
        filterTimer.start(kFilterPause);
}

void PhotoListModel::statusTextsDidChange() {
    if (photoFilter.kind() == PhotoFilter::Kind::FarFromTracks)
        filterTimer.start(kFilterPause);
    if (!rows.empty())
        emit dataChanged(index(0, StatusColumn), index(rowCount() - 1, StatusColumn));
}

int PhotoListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : int(rows.size());
}

int PhotoListModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : FirstFieldColumn + int(keys.size());
}

QVariant PhotoListModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid())
        return {};
    const Photo& photo = photoAt(index.row());
    const int column = index.column();
    switch (role) {
    case PhotoRole:
        return QVariant::fromValue(photo);
    case StatusRole:
        return PhotoStatus::signsOf(*photo);
    case SubtitleRole:
        return QString::fromStdString(photo->imageSubtitle());
    case Qt::DisplayRole:
        if (column == ThumbnailColumn)
            return uiPath(photo->filename());
        return column < FirstFieldColumn ? QVariant()
                                         : fieldText(*photo, std::size_t(column - FirstFieldColumn));
    case Qt::AccessibleTextRole:
        return column == StatusColumn ? QVariant(statusDescription(photo)) : QVariant();
    case Qt::ToolTipRole:
        if (column == StatusColumn)
            return statusDescription(photo);
        return column == ThumbnailColumn ? QVariant(uiPath(photo->fileURL())) : data(index, Qt::DisplayRole);
    default:
        return {};
    }
}

QVariant PhotoListModel::fieldText(const KTPhoto& photo, std::size_t field) const {
    const KTValue value = photo.valueForKey(keys[field]);
    if (!value.isSomething())
        return QString();
    const auto& formatter = fields[field]->formatter();
    return QString::fromStdString(formatter ? formatter->stringForObjectValue(value) : value.description());
}

QString PhotoListModel::statusDescription(const Photo& photo) const {
    QString result = PhotoStatus::describe(PhotoStatus::signsOf(*photo));
    if (const auto last = photo->lastPhotoOperation(); last && !last->resultDescription().empty())
        result += "\n" + QString::fromStdString(last->resultDescription());
    if (const QString more = statusText ? statusText(photo) : QString(); !more.isEmpty())
        result += "\n" + more;
    return result;
}

QVariant PhotoListModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal)
        return {};
    if (section >= FirstFieldColumn) {
        const auto* const field = fields[std::size_t(section - FirstFieldColumn)];
        if (role == Qt::DisplayRole)
            return QString::fromStdString(field->name());
        if (role == Qt::ToolTipRole)
            return QString::fromStdString(field->usageDescription());
        return role == FieldKeyRole ? QVariant(QString::fromStdString(field->key())) : QVariant();
    }
    if (role == Qt::AccessibleTextRole || role == Qt::ToolTipRole)
        return section == StatusColumn ? uiText("Status") : uiText("Picture");
    return {};
}

Qt::ItemFlags PhotoListModel::flags(const QModelIndex& index) const {
    if (!index.isValid())
        return Qt::ItemIsDropEnabled;
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDragEnabled | Qt::ItemNeverHasChildren;
}

QMimeData* PhotoListModel::mimeData(const QModelIndexList& indexes) const {
    std::vector<int> dragged;
    for (const QModelIndex& dragIndex : indexes)
        dragged.push_back(dragIndex.row());
    std::ranges::sort(dragged);
    const auto repeated = std::ranges::unique(dragged);
    dragged.erase(repeated.begin(), repeated.end());
    Photos photos;
    for (const int row : dragged)
        photos.push_back(photoAt(row));
    return new PhotoMimeData(std::move(photos));
}

void PhotoListModel::movePhotosToRow(const Photos& dragged, int row) {
    const auto all = controller.photos();
    std::unordered_map<const KTPhoto*, std::size_t> places;
    for (std::size_t place = 0; place < all->size(); ++place)
        places[(*all)[place].get()] = place;
    KTPhotoController::Indexes indexes;
    for (const Photo& photo : dragged)
        if (const auto place = places.find(photo.get()); place != places.end())
            indexes.push_back(place->second);
    std::ranges::sort(indexes);
    const bool isAtEnd = row < 0 || row >= rowCount();
    if (!indexes.empty())
        controller.moveItemsAtIndexes(indexes, isAtEnd ? all->size() : places[photoAt(row).get()]);
}
