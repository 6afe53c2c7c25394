#pragma once
#include "platform/transitions/KTTransition.h"

#include <QElapsedTimer>
#include <QTimer>
#include <QWidget>

/// One picture on black, as large as the view allows, and the transition to the next one. Paints no frame
/// later than it is due: what comes too late is left out.
class SlideShowView : public QWidget {
    Q_OBJECT
public:
    /// What is to be seen: a picture, or in its place a title with a text below.
    struct Slide {
        QImage picture;
        QString title, text;
    };

    explicit SlideShowView(QWidget* parent = nullptr);

    /// Another slide, which replaces the shown one as @p style says.
    void showSlide(Slide slide, KTTransitionStyle style);
    /// The shown slide in another size.
    void replacePicture(const QImage& picture);
    bool isInTransition() const { return frames.isActive(); }
    /// The view's size in the screen's pixels.
    QSize frameSize() const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    QImage canvasOf(const Slide& slide) const;
    void drawText(QPainter& painter, const Slide& slide) const;
    void endTransition();

    Slide shown;
    QImage canvas;        // of it
    QImage before, frame; // of a transition: what was seen, and what is now
    KTTransitionStyle transition = KTTransitionStyle::None;
    QElapsedTimer sinceBegin;
    QTimer frames;
};
