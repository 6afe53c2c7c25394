#pragma once
#include "app/thumbnails/KTThumbnailService.h"
#include "platform/observing/KTObservable.h"

#include <QWidget>

/// The small board beside what the pointer is on: a picture, a title and some
/// lines.
class MapHoverCard : public QWidget {
    Q_OBJECT
public:
    struct Content {
        const void* subject = nullptr;   ///< what it is about; null for nothing
        std::filesystem::path file = {}; ///< whose thumbnail is shown; empty for none
        QString title = {}, text = {};
    };

    MapHoverCard(KTThumbnailService& thumbnails, QWidget* map);
    ~MapHoverCard() override;

    /// Shows @p content beside @p anchor of the map; hides for nothing.
    void show(const Content& content, QPoint anchor);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QSize wantedSize() const;
    QRect textArea() const;

    KTThumbnailService& service;
    Content shown;
    KTObservable::Observation observation;
};
