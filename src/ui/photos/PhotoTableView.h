#pragma once
#include "app/thumbnails/KTThumbnailService.h"
#include "ui/photos/PhotoListModel.h"

#include <QMap>
#include <QTableView>

/// The photo table: a row a photo, columns chosen in the header's context menu, sorted by a click on it; the
/// former order remains where the new one makes no difference. Shows and stores the setting
/// "defaultTableColumns".
class PhotoTableView : public QTableView {
    Q_OBJECT
public:
    PhotoTableView(PhotoListModel& list, KTPhotoController& photoController, KTThumbnailService& thumbnails,
                   QWidget* parent = nullptr);

    bool hasCompactRows() const { return isCompact; }
    void setCompactRows(bool compact);
    /// By field key, in logical pixels; those that are not named keep a width by their kind.
    QMap<QString, int> columnWidths() const;
    void setColumnWidths(const QMap<QString, int>& widths);

signals:
    void layoutChanged(); ///< widths or heights

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void startDrag(Qt::DropActions supportedActions) override;

private:
    void setUpHeader();
    void layOutColumns();
    void sortByColumn(int column);
    void showSortOrder();
    void showHeaderMenu(const QPoint& place);
    void setColumnShown(const QString& key, bool isShown);
    void storeColumnOrder();

    PhotoListModel& model;
    KTPhotoController& controller;
    QMap<QString, int> widthsByKey;
    bool isCompact = false;
    bool isLayingOut = false;
    KTObservable::Observation sortObservation, settingObservation;
};
