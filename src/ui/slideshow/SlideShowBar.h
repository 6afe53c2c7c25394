#pragma once
#include "export/slideshow/SlideShowController.h"

#include <QFrame>

class QHBoxLayout;
class QLabel;
class QToolButton;

/// The controls of a slide show, which lie over it: to and fro, pause, map, transitions, end; and which photo
/// of how many is shown.
class SlideShowBar : public QFrame {
    Q_OBJECT
public:
    SlideShowBar(SlideShowController& slideShow, QWidget* parent);

    void setMapShown(bool isShown);

signals:
    void mapWanted(bool isWanted);

private:
    QToolButton* add(const char* icon, const QString& name, const QString& key,
                     std::function<void()> command);
    void follow();

    SlideShowController& show;
    QHBoxLayout* row;
    QLabel* photo;
    QToolButton *pause, *map, *cycling;
    KTObservable::Observation observation;
};
