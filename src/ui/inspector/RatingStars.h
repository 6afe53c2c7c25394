#pragma once
#include <QAbstractSlider>

/// Five stars, 0 to 5 of which shine: set by clicks, the keys 0 to 5 and the arrows. Emits `chosen` for what
/// the user does; setValue only shows.
class RatingStars : public QAbstractSlider {
    Q_OBJECT
public:
    explicit RatingStars(QWidget* parent = nullptr);

    /// Written beside the stars, as long as none shines.
    void setPlaceholder(const QString& text);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

signals:
    void chosen(int stars);

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent*) override {}
    void wheelEvent(QWheelEvent* event) override;

private:
    int edge() const { return fontMetrics().height() + 4; }
    QRectF starPlace(int star) const;

    QString placeholder;
};
