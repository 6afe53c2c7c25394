#include "ui/photos/PhotoTableView.h"

#include "metadata/KTMetadataFieldManager.h"
#include "platform/defaults/KTUserDefaults.h"
#include "ui/photos/PhotoSelectionLink.h"
#include "ui/photos/PhotoTableDelegate.h"
#include "ui/photos/PhotoViewActions.h"
#include "ui/photos/ThumbnailWisher.h"
#include "ui/support/ObservationLink.h"
#include "ui/support/UIText.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QMenu>

namespace {

constexpr std::string_view kColumnsSetting = "defaultTableColumns";
constexpr int kRowHeight = 41, kCompactRowHeight = 24;
constexpr int kStatusWidth = 38;
constexpr int kTextWidth = 130, kNumberWidth = 96, kDateWidth = 148;

int usualWidth(const KTMetadataField* field) {
    switch (field ? field->propertyType() : KTValueType::Text) {
    case KTValueType::Decimal:
        return kNumberWidth;
    case KTValueType::Date:
    case KTValueType::DateComponents:
        return kDateWidth;
    default:
        return kTextWidth;
    }
}

} // namespace

PhotoTableView::PhotoTableView(PhotoListModel& list, KTPhotoController& photoController,
                               KTThumbnailService& thumbnails, QWidget* parent)
    : QTableView(parent), model(list), controller(photoController) {
    setAccessibleName(uiText("Photos"));
    setModel(&model);
    setItemDelegate(new PhotoTableDelegate(thumbnails, this));
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false); // Tab leaves the table
    setShowGrid(false);
    setAlternatingRowColors(true);
    setWordWrap(false);
    setFrameShape(NoFrame);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollMode(ScrollPerPixel);
    setDragEnabled(true);
    setDragDropMode(DragOnly);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    setUpHeader();
    setCompactRows(false);

    new PhotoSelectionLink(*this, model, controller);
    new ThumbnailWisher(
        *this, thumbnails,
        [this] {
            const int last = rowAt(viewport()->height() - 1);
            return ThumbnailWisher::Rows{rowAt(0), last < 0 ? model.rowCount() - 1 : last};
        },
        [this](int row) { return model.photoAt(row)->fileURL(); },
        [this] { return columnWidth(PhotoListModel::ThumbnailColumn); });
    sortObservation =
        observeFor(this, controller.photoManager(), "photoSortDescriptors", [this] { showSortOrder(); });
    settingObservation = observeFor(this, KTUserDefaults::standardUserDefaults(),
                                    std::string(kColumnsSetting), [this] { layOutColumns(); });
    layOutColumns();
}

void PhotoTableView::setUpHeader() {
    QHeaderView& header = *horizontalHeader();
    header.setAccessibleName(uiText("Columns of the photo table"));
    header.setSectionsMovable(true);
    header.setSectionsClickable(true);
    header.setHighlightSections(false);
    header.setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    header.setMinimumSectionSize(20);
    header.setContextMenuPolicy(Qt::CustomContextMenu);
    connect(&header, &QHeaderView::sectionClicked, this, &PhotoTableView::sortByColumn);
    connect(&header, &QHeaderView::customContextMenuRequested, this, &PhotoTableView::showHeaderMenu);
    connect(&header, &QHeaderView::sectionMoved, this, [this] {
        if (!isLayingOut)
            QMetaObject::invokeMethod(this, &PhotoTableView::storeColumnOrder, Qt::QueuedConnection);
    });
    connect(&header, &QHeaderView::sectionResized, this, [this](int column, int, int width) {
        const QString key = model.headerData(column, Qt::Horizontal, PhotoListModel::FieldKeyRole).toString();
        if (!isLayingOut && !key.isEmpty()) {
            widthsByKey[key] = width;
            emit layoutChanged();
        }
    });
}

void PhotoTableView::setCompactRows(bool compact) {
    isCompact = compact;
    const int height = compact ? kCompactRowHeight : kRowHeight;
    verticalHeader()->setMinimumSectionSize(height);
    verticalHeader()->setDefaultSectionSize(height);
    setColumnWidth(PhotoListModel::ThumbnailColumn, height * 3 / 2 - 4);
    emit layoutChanged();
}

QMap<QString, int> PhotoTableView::columnWidths() const {
    return widthsByKey;
}

void PhotoTableView::setColumnWidths(const QMap<QString, int>& widths) {
    widthsByKey = widths;
    layOutColumns();
}

/// Brings the model's columns and their widths up to date with the setting.
void PhotoTableView::layOutColumns() {
    isLayingOut = true;
    const auto wanted = KTUserDefaults::standardUserDefaults().textsForKey(kColumnsSetting);
    if (wanted != model.fieldKeys())
        model.setFieldKeys(wanted);
    QHeaderView& header = *horizontalHeader();
    for (int column = 0; column < model.columnCount(); ++column)
        header.moveSection(header.visualIndex(column), column);
    setColumnWidth(PhotoListModel::StatusColumn, kStatusWidth);
    header.setSectionResizeMode(PhotoListModel::StatusColumn, QHeaderView::Fixed);
    header.setSectionResizeMode(PhotoListModel::ThumbnailColumn, QHeaderView::Fixed);
    setCompactRows(isCompact);
    auto& catalogue = KTMetadataFieldManager::sharedMetadataFieldManager();
    for (std::size_t i = 0; i < model.fieldKeys().size(); ++i) {
        const std::string& key = model.fieldKeys()[i];
        setColumnWidth(
            PhotoListModel::FirstFieldColumn + int(i),
            widthsByKey.value(QString::fromStdString(key), usualWidth(catalogue.metadataFieldForKey(key))));
    }
    isLayingOut = false;
    showSortOrder();
}

/// A click on the column that leads turns its order; another column takes the lead.
void PhotoTableView::sortByColumn(int column) {
    const QString key = model.headerData(column, Qt::Horizontal, PhotoListModel::FieldKeyRole).toString();
    if (key.isEmpty())
        return;
    auto order = controller.photoManager().wantedSortDescriptors();
    const bool isLeading = !order.empty() && order.front().key == key.toStdString();
    const bool isAscending = !isLeading || !order.front().isAscending;
    std::erase_if(order, [&](const KTSortDescriptor& other) { return other.key == key.toStdString(); });
    order.insert(order.begin(), {key.toStdString(), isAscending});
    controller.photoManager().sortPhotosSoon(std::move(order));
}

void PhotoTableView::showSortOrder() {
    const auto order = controller.photoManager().photoSortDescriptors();
    const auto& keys = model.fieldKeys();
    const auto leading = order.empty() ? keys.end() : std::ranges::find(keys, order.front().key);
    QHeaderView& header = *horizontalHeader();
    header.setSortIndicatorShown(leading != keys.end());
    if (leading != keys.end())
        header.setSortIndicator(PhotoListModel::FirstFieldColumn + int(leading - keys.begin()),
                                order.front().isAscending ? Qt::AscendingOrder : Qt::DescendingOrder);
}

void PhotoTableView::showHeaderMenu(const QPoint& place) {
    auto* const menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const auto& shown = model.fieldKeys();
    for (const auto& group : KTMetadataFieldManager::sharedMetadataFieldManager().metadataGroups()) {
        QMenu* const submenu = menu->addMenu(QString::fromStdString(group->name()));
        for (const auto& field : group->fields()) {
            QAction* const action = submenu->addAction(QString::fromStdString(field->name()));
            action->setCheckable(true);
            action->setChecked(std::ranges::count(shown, field->key()) != 0);
            connect(action, &QAction::toggled, this,
                    [this, key = QString::fromStdString(field->key())](bool isShown) {
                        setColumnShown(key, isShown);
                    });
        }
    }
    menu->addSeparator();
    QAction* const compact = menu->addAction(uiText("Compact Rows"));
    compact->setCheckable(true);
    compact->setChecked(isCompact);
    connect(compact, &QAction::toggled, this, &PhotoTableView::setCompactRows);
    connect(menu->addAction(uiText("Restore Usual Columns")), &QAction::triggered, this, [this] {
        widthsByKey.clear();
        KTUserDefaults::standardUserDefaults().setValue(kColumnsSetting, KTValue());
    });
    menu->popup(horizontalHeader()->mapToGlobal(place));
}

void PhotoTableView::setColumnShown(const QString& key, bool isShown) {
    auto keys = model.fieldKeys();
    std::erase(keys, key.toStdString());
    if (isShown)
        keys.push_back(key.toStdString());
    KTUserDefaults::standardUserDefaults().setValue(kColumnsSetting, KTValue::listOfTexts(keys));
}

void PhotoTableView::storeColumnOrder() {
    std::vector<std::string> keys;
    for (int place = 0; place < model.columnCount(); ++place) {
        const int column = horizontalHeader()->logicalIndex(place);
        if (column >= PhotoListModel::FirstFieldColumn)
            keys.push_back(model.fieldKeys()[std::size_t(column - PhotoListModel::FirstFieldColumn)]);
    }
    KTUserDefaults::standardUserDefaults().setValue(kColumnsSetting, KTValue::listOfTexts(keys));
    layOutColumns();
}

void PhotoTableView::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Delete))
        controller.removeSelectedPhotosAction();
    else
        QTableView::keyPressEvent(event);
}

void PhotoTableView::contextMenuEvent(QContextMenuEvent* event) {
    showPhotoMenu(*this, controller, indexAt(event->pos()));
}

void PhotoTableView::startDrag(Qt::DropActions) {
    startPhotoDrag(*this);
}
