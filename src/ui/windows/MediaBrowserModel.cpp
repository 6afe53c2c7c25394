#include "ui/windows/MediaBrowserModel.h"

#include "ui/support/DroppedPaths.h"
#include "ui/support/ObservationLink.h"
#include "ui/support/UIText.h"

#include <QMimeData>

MediaBrowserModel::MediaBrowserModel(MediaBrowserWindowController& browserController, QObject* parent)
    : QAbstractListModel(parent), controller(browserController), entries(controller.entries()) {
    observation = observeFor(this, controller, "entries", [this] {
        beginResetModel();
        entries = controller.entries();
        endResetModel();
    });
}

QVariant MediaBrowserModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid())
        return {};
    const auto& entry = entryAt(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return uiPath(entry.path.filename());
    case Qt::ToolTipRole:
        return uiPath(entry.path);
    case Qt::AccessibleDescriptionRole:
        return entry.isFolder ? uiText("Folder") : uiText("Photo");
    default:
        return {};
    }
}

Qt::ItemFlags MediaBrowserModel::flags(const QModelIndex& index) const {
    return index.isValid() ? Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDragEnabled
                           : Qt::ItemFlags();
}

QStringList MediaBrowserModel::mimeTypes() const {
    return {"text/uri-list"};
}

QMimeData* MediaBrowserModel::mimeData(const QModelIndexList& indexes) const {
    std::vector<std::filesystem::path> paths;
    for (const QModelIndex& index : indexes)
        paths.push_back(entryAt(index.row()).path);
    auto* const data = new QMimeData;
    data->setData("text/uri-list", (addressesOf(paths).join("\r\n") + "\r\n").toLatin1());
    return data;
}
