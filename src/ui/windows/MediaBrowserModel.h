#pragma once
#include "app/MediaBrowserWindowController.h"

#include <QAbstractListModel>

/// What the folder of the media browser holds. Drags give the files.
class MediaBrowserModel : public QAbstractListModel {
    Q_OBJECT
public:
    /// @p browserController must outlive the model.
    explicit MediaBrowserModel(MediaBrowserWindowController& browserController, QObject* parent = nullptr);

    const MediaBrowserWindowController::Entry& entryAt(int row) const { return entries[std::size_t(row)]; }
    int rowCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : int(entries.size());
    }
    QVariant data(const QModelIndex& index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QStringList mimeTypes() const override;
    QMimeData* mimeData(const QModelIndexList& indexes) const override;
    Qt::DropActions supportedDragActions() const override { return Qt::CopyAction; }

private:
    MediaBrowserWindowController& controller;
    std::vector<MediaBrowserWindowController::Entry> entries;
    KTObservable::Observation observation;
};
