#pragma once
#include "ui/datetools/CoverPictures.h"

#include <QVariantAnimation>
#include <QWidget>

/// A strip of photos: one in front, its neighbours turned in perspective on both sides. Arrow keys, page
/// keys, Home and End, the wheel and a click bring another one to the front, in a short movement.
class CoverFlowView : public QWidget {
    Q_OBJECT
public:
    using Photos = CoverPictures::Photos;

    /// The service must outlive the view.
    explicit CoverFlowView(KTThumbnailService& thumbnails, QWidget* parent = nullptr);

    /// What is shown, and which of them is in front. Without a movement where the photos are others.
    void setPhotos(std::shared_ptr<const Photos> newPhotos, std::optional<std::size_t> newFront);
    std::size_t count() const { return photos ? photos->size() : 0; }
    std::optional<std::size_t> front() const { return frontIndex; }
    /// "IMG_1.jpg, 3 of 80", in the user's language; empty without photos.
    QString frontText() const;
    /// How many photos stand in view on each side.
    int reach() const { return CoverFlowGeometry(size()).reach(); }
    /// Brings the photo to the front that is so many places further; no further than the ends.
    void step(std::ptrdiff_t places);

    QSize sizeHint() const override { return {720, 230}; }
    QSize minimumSizeHint() const override { return {240, 130}; }

signals:
    /// The user brought it to the front.
    void frontChosen(std::size_t index);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    struct Drawn {
        std::size_t index;
        QRectF place;
    };

    void moveTo(double target);
    void wish();
    void renewLook();
    void drawGround(QPainter& painter) const;
    const StandingPicture::View* viewOf(const CoverFlowGeometry& geometry, std::ptrdiff_t index);
    void drawPhoto(QPainter& painter, const CoverFlowGeometry& geometry, std::ptrdiff_t index);
    void drawFocus(QPainter& painter) const;

    CoverPictures pictures;
    std::shared_ptr<const Photos> photos;
    std::optional<std::size_t> frontIndex;
    double position = 0; // in the strip, of what is in front now; between two photos while they move
    QVariantAnimation movement;
    int turnedWheel = 0;      // what is left of less than a step
    std::vector<Drawn> drawn; // in this order
    KTObservable::Observation observation;
};
