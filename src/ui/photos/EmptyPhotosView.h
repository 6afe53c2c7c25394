#pragma once
#include <QWidget>
#include <functional>

/// What stands in the place of the photos while none is loaded: what to do, and buttons that do it.
class EmptyPhotosView : public QWidget {
    Q_OBJECT
public:
    struct Commands {
        std::function<void()> addPhotos, addTracks;
        std::function<void()> tryDemoTrip; ///< none but on a first start
    };
    explicit EmptyPhotosView(const Commands& commands, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
};
