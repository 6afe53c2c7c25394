#pragma once
#include "app/thumbnails/KTThumbnailService.h"

#include <QAbstractItemView>
#include <QTimer>

/// Tells the thumbnail service which rows a view of photos shows, those first, then a page after them and one
/// before, whenever that changes; and draws the view anew when thumbnails come. The view owns it.
class ThumbnailWisher : public QObject {
    Q_OBJECT
public:
    struct Rows {
        int first = 0, last = -1;
    };
    /// @p visibleRows tells which rows are in view, @p file whose picture a row shows (empty for none), @p
    /// edge how large their pictures are, in logical pixels.
    ThumbnailWisher(QAbstractItemView& shown, KTThumbnailService& thumbnails,
                    std::function<Rows()> visibleRows, std::function<std::filesystem::path(int row)> file,
                    std::function<int()> edge);
    ~ThumbnailWisher() override;

    /// The view shows something else soon.
    void updateSoon();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void update();

    QAbstractItemView& view;
    KTThumbnailService& service;
    const std::function<Rows()> rowsInView;
    const std::function<std::filesystem::path(int row)> fileOf;
    const std::function<int()> edgeOfPictures;
    QTimer timer;
    KTObservable::Observation observation;
};
